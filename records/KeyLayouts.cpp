// The records of function keys, key links, look-ups, recipes, card categories and the hot list.
#include "records/RecordLayouts.h"

namespace norvane::records
{
namespace
{

/// Newer firmware keeps the texts of the function keys from here on.
constexpr int firstCardKey = 257;

/// The columns of a function key up to its first flag, and those of its other flags.
std::vector<ColumnGroup> functionKeyColumns(const std::vector<ColumnGroup>& flags)
{
    static const std::vector<std::string> cardTexts{
        "CASH W/DRAW", "ADD BALANCE", "SUB BALANCE", "ADD POINTS",  "SUB POINTS",
        "DISP CARD",   "PRINT CARD",  "REDEEM PNTS", "ADD HOTLIST", "DEL HOTLIST"};
    std::vector<ColumnGroup> columns{
        text(12, "DESCRIPTION").keepingMarks().withheldFrom(firstCardKey, cardTexts),
        number(8, "HALO").withLeadingZeros(),
        number(2, "flag1").withLeadingZeros(),
    };
    columns.insert(columns.end(), flags.begin(), flags.end());
    return columns;
}

} // namespace

// clang-format off

/// File 2. Some keys hold a number instead of the second and later flags.
const RecordLayout& functionKeyLayout()
{
    static const ColumnSet wholeNumbers{{258, 259}, functionKeyColumns({
        piece("flag2", "0000", 0), piece("flag2", "0000", -2), spare(2),
    })};
    static const ColumnSet amounts{{264}, functionKeyColumns({
        piece("flag2", "0000.00", 0), piece("flag2", "0000.00", 2), piece("flag2", "0000.00", -2).joinedBy("."),
    })};
    static const RecordLayout layout{"id", functionKeyColumns({
        number(2, "flag2").withLeadingZeros(), number(2, "flag3").withLeadingZeros(), number(2, "flag4").withLeadingZeros(),
    }), {wholeNumbers, amounts}};
    return layout;
}

/// File 16. No key and key 271 have their own numbers.
const RecordLayout& keyLinkLayout()
{
    static const RecordLayout layout{"ID", {
        number(4, "KEYLINK").withCodeWords({{"200", "0", "0200"}, {"300", "271", "0300"}}),
    }};
    return layout;
}

/// File 17.
const RecordLayout& numberLookUpLayout()
{
    static const RecordLayout layout{"ID", {number(18, "NLU").withLeadingZeros()}};
    return layout;
}

/// File 57. An entry of type 2 is a function; its short number is at the left.
const RecordLayout& windowLookUpLayout()
{
    static const RecordLayout layout{"WLUno", {
        text(12, "DESCRIPTION"),
        number(4, "LINK"),
        number(2, "#OfCondiments"),
        number(4, "#OfWLU"),
        options({{4, "Allowcondiment"}, {2, "Allowplu"}, {1, "Allowfunction"}}, {{4, "condimentMulti"}, {2, "allowexit"}}),
        options({{4, "condimentsort"}}),
        numbered(50, {options({threeWay("wlutype*")}), number(18, "codenumber*").leftBoundWhile("wlutype*", "2", 4)}),
    }};
    return layout;
}

/// File 60. A kind of 2 comes back as 1, and 1 as 0; the item is sent where the register expects the
/// quantity.
const RecordLayout& recipeLayout()
{
    static const RecordLayout layout{"recipeno", {
        text(16, "DESCRIPTION").namedByDefault("Recipe "),
        numbered(20, {
            options({{"item*", {{2, 4, 0}, {1, 2, 4}}}}),
            number(4, "recipe*").cutTo(4),
            number(6, "recipe*").readInto("qty*").cutTo(6),
        }),
    }};
    return layout;
}

/// File 85.
const RecordLayout& cardCategoryLayout()
{
    static const RecordLayout layout{"id", {
        text(16, "DESCRIPTOR"),
        number(4, "DISCOUNT"),
        number(4, "PREMIUM"),
        number(4, "POINTMULTIPLIER"),
        number(4, "REDEEMMULTIPLIER"),
        options({{1, "INACTIVE"}}, {{2, "DISALLOWPOINT"}, {1, "ACCURENOTMULTIPLY"}}),
    }};
    return layout;
}

/// File 86.
const RecordLayout& hotListLayout()
{
    static const RecordLayout layout{"id", {
        text(30, "REFERENCE"),
        options({{1, "INACTIVE"}}, {{1, "HOTLISTED"}}),
    }};
    return layout;
}

// clang-format on

} // namespace norvane::records
