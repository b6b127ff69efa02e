// The catalogue of function keys, key links, look-ups, recipes, cards and the hot list.
#include "store/catalogue/CatalogueRows.h"

namespace norvane::store::rows
{
namespace
{

// register file 2. flag2 of some keys is an amount with decimals, of the others a pair of option digits.
constexpr FieldRow functionKey[] = {
    whole("id"),      text("DESCRIPTION", 12), whole("HALO"),  whole("flag1"),
    decimal("flag2"), whole("flag3"),          whole("flag4"),
};

// register file 16. An unused key holds empty text.
constexpr FieldRow keyLink[] = {
    whole("ID"),
    text("KEYLINK", 4),
};

// register file 17
constexpr FieldRow nlu[] = {
    whole("ID"),
    text("NLU", 18),
};

// register file 57
constexpr FieldRow wlu[] = {
    whole("WLUno"),         text("DESCRIPTION", 12),
    whole("LINK"),          whole("#OfCondiments"),
    whole("#OfWLU"),        flag("Allowcondiment"),
    flag("Allowplu"),       flag("Allowfunction"),
    flag("condimentMulti"), flag("allowexit"),
    flag("condimentsort"),  numbered(50, whole("wlutype*"), digits("codenumber*", 18)),
};

// register file 60
constexpr FieldRow recipe[] = {
    whole("recipeno"),
    text("DESCRIPTION", 16),
    numbered(20, whole("item*"), whole("recipe*"), whole("qty*")),
};

// register file 85
constexpr FieldRow cardCategory[] = {
    whole("id"),      text("DESCRIPTOR", 16),   whole("DISCOUNT"),
    whole("PREMIUM"), whole("POINTMULTIPLIER"), whole("REDEEMMULTIPLIER"),
    flag("INACTIVE"), flag("DISALLOWPOINT"),    flag("ACCURENOTMULTIPLY"),
};

// register file 86
constexpr FieldRow hotList[] = {
    whole("id"),
    text("REFERENCE", 30),
    flag("INACTIVE"),
    flag("HOTLISTED"),
};

constexpr TableRow keysRows[] = {
    {"FUNCTIONKEY", functionKey, {"primarykey"}, "id"},
    {"KEYLINK", keyLink, {"primarykey"}, "ID"},
    {"NLU", nlu, {"primarykey"}, "ID"},
    {"WLU", wlu, {"primarykey"}, "WLUno"},
    {"RECIPE", recipe, {"recipeno"}, "recipeno"},
    {"CARDCATEGORY", cardCategory, {"primarykey"}, "id"},
    {"HOTLIST", hotList, {"primarykey"}, "id"},
};

} // namespace

std::span<const TableRow> keyTables()
{
    return keysRows;
}

} // namespace norvane::store::rows
