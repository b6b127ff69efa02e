// See BlockKeys.h.
#include "reports/lines/BlockKeys.h"

#include "reports/lines/LayoutValues.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr std::array<std::pair<QLatin1String, BlockKind>, 4> blockKinds{{{"Figure"_L1, BlockKind::Figure},
                                                                         {"Table"_L1, BlockKind::Table},
                                                                         {"HeatMap"_L1, BlockKind::HeatMap},
                                                                         {"Days"_L1, BlockKind::Days}}};
constexpr std::array<std::pair<QLatin1String, BlockPlace>, 3> blockPlaces{
    {{"Left"_L1, BlockPlace::Left}, {"Right"_L1, BlockPlace::Right}, {"Wide"_L1, BlockPlace::Wide}}};
constexpr std::array<std::pair<QLatin1String, bool>, 2> shownParts{
    {{"Lines"_L1, false}, {"Groups"_L1, true}}};

const BlockLayout& blockOf(const LayoutTarget& target, int number)
{
    return target.layout.blocks[static_cast<std::size_t>(number) - 1];
}

/// Blocks are read in their order, so the one being read is not yet among those that it can name.
bool takeBlock(const QString& value, const LayoutTarget& target, int& number)
{
    bool isNumber = false;
    number = value.toInt(&isNumber);
    return isNumber && number > 0 && static_cast<std::size_t>(number) <= target.layout.blocks.size();
}

bool takeOf(const QString& value, LayoutTarget& target)
{
    auto& block = *target.block;
    return takeBlock(value, target, block.of) && blockOf(target, block.of).table;
}

bool takeQuotient(const QString& value, LayoutTarget& target)
{
    auto& [first, second] = target.block->quotient;
    const auto isFigure = [&target](int number) {
        return blockOf(target, number).kind == BlockKind::Figure;
    };
    return value.count(u',') == 1 && takeBlock(value.section(u',', 0, 0), target, first) &&
           takeBlock(value.section(u',', 1), target, second) && isFigure(first) && isFigure(second);
}

bool takeLimit(const QString& value, BlockCut& cut, bool isSorted, bool smallestFirst)
{
    constexpr int limit = 100;
    bool isNumber = false;
    cut = {cut.showsGroups, isSorted, smallestFirst, value.toInt(&isNumber)};
    return isNumber && cut.most > 0 && cut.most <= limit;
}

bool takeNumberFormat(const QString& value, LayoutTarget& target)
{
    const auto format = parseFormat(value);
    target.block->format = format.value_or(CellFormat());
    return format && format->isNumber();
}

// clang-format off
constexpr auto limitExpected = "a whole number from 1 to 100"_L1;
constexpr std::array<KeyRule, 10> blockRules{{
    {u"Title", true, "the heading of the block"_L1, [](const QString& value, LayoutTarget& target) { target.block->title = value; return true; }},
    {u"Kind", false, "Figure, Table, HeatMap or Days"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, blockKinds, target.block->kind); }},
    {u"Place", false, "Left, Right or Wide"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, blockPlaces, target.block->place); }},
    {u"Of", false, "the number of an earlier block with a table"_L1, takeOf},
    {u"Quotient", false, "the numbers of two earlier figures, such as 1,2"_L1, takeQuotient},
    {u"QuotientFormat", false, "Money, Quantity or a pattern such as 0.00"_L1, takeNumberFormat},
    {u"Parts", false, "Lines or Groups"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, shownParts, target.block->cut.showsGroups); }},
    {u"Largest", false, limitExpected, [](const QString& value, LayoutTarget& target) { return takeLimit(value, target.block->cut, true, false); }},
    {u"Smallest", false, limitExpected, [](const QString& value, LayoutTarget& target) { return takeLimit(value, target.block->cut, true, true); }},
    {u"Share", false, "YES or NO"_L1, [](const QString& value, LayoutTarget& target) { return takeYesNo(value, target.block->hasShare); }},
}};
// clang-format on

} // namespace

std::span<const KeyRule> blockKeys()
{
    return blockRules;
}

} // namespace norvane::reports
