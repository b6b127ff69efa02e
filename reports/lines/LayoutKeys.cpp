// See LayoutKeys.h.
#include "reports/lines/LayoutKeys.h"

#include "reports/formula/SelectionFormula.h"
#include "reports/lines/LayoutValues.h"
#include "reports/lines/TemplateParser.h"
#include "store/catalogue/Catalogue.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr std::array<std::pair<QLatin1String, Orientation>, 3> orientations{
    {{"Automatic"_L1, Orientation::Automatic},
     {"Portrait"_L1, Orientation::Portrait},
     {"Landscape"_L1, Orientation::Landscape}}};
constexpr std::array<std::pair<QLatin1String, Alignment>, 3> alignments{
    {{"Left"_L1, Alignment::Left}, {"Centre"_L1, Alignment::Centre}, {"Right"_L1, Alignment::Right}}};
constexpr std::array<std::pair<QLatin1String, ChartKind>, 3> chartKinds{
    {{"Ranking"_L1, ChartKind::Ranking}, {"Course"_L1, ChartKind::Course}, {"Shares"_L1, ChartKind::Shares}}};
constexpr std::array<std::pair<QLatin1String, RankPart>, 3> rankParts{
    {{"Share"_L1, RankPart::Share}, {"Cumulated"_L1, RankPart::Cumulated}, {"Letter"_L1, RankPart::Letter}}};
constexpr std::array<std::pair<QLatin1String, PointSource>, 2> pointSources{
    {{"Lines"_L1, PointSource::Lines}, {"Groups"_L1, PointSource::Groups}}};

bool takeTable(const QString& value, LayoutTarget& target)
{
    target.layout.source.table = store::catalogueTable(value);
    return target.layout.source.table != nullptr;
}

bool takeLines(const QString& value, LayoutTarget& target)
{
    auto& source = target.layout.source;
    source.keys = parseFields(value, target.table());
    return std::ranges::all_of(source.keys, [&](const auto& key) { return key.table == source.table; });
}

bool takeWhere(const QString& value, LayoutTarget& target)
{
    // No day is passed in: periods that end today are for the user's selection, not for a layout.
    const auto condition = parseSelection(value, QDate(), target.table());
    target.source->where = condition;
    const auto* const table = target.source->table;
    return !mentions(condition, [table](const auto& field) { return field.table != table; });
}

bool takeFormat(const QString& value, CellFormat& format)
{
    const auto parsed = parseFormat(value);
    if (parsed)
        format = *parsed;
    return parsed.has_value();
}

bool takeColumnFormat(const QString& value, LayoutTarget& target)
{
    ColumnLayout& layout = *target.column;
    if (!takeFormat(value, layout.format))
        return false;
    layout.column.alignment = layout.format.alignment();
    return true;
}

bool takeWords(const QString& value, LayoutTarget& target)
{
    auto& format = target.column->format;
    const auto words = parseWords(value);
    if (!words)
        return false;
    format.kind = FormatKind::Words;
    format.words = *words;
    return true;
}

/// A number is calculated; any other value is a text with fields in it. A day alone in its column remains a
/// day, so that spreadsheets can sort by it.
bool takeColumnValue(const QString& value, LayoutTarget& target)
{
    auto& layout = *target.column;
    layout.column.leastDecimals = layout.format.leastDecimals;
    layout.column.mostDecimals = layout.format.mostDecimals;
    layout.text.format = layout.format;
    if (layout.format.isNumber()) {
        layout.column.kind = ColumnKind::Number;
        layout.number = parseExpression(value, target.fields());
        return true;
    }
    layout.text.text = parseTemplate(value, target.fields());
    if (layout.format.kind == FormatKind::Date && layout.text.text.parts.size() == 1)
        layout.column.kind = ColumnKind::Date;
    return true;
}

/// Shares have one decimal place unless the column's format says otherwise.
bool takeRank(const QString& value, LayoutTarget& target)
{
    auto& layout = *target.column;
    if (!target.layout.classes || layout.number || !layout.text.text.isEmpty() ||
        !takeChoice(value, rankParts, layout.rank))
        return false;
    if (layout.rank == RankPart::Letter)
        return true;
    if (!layout.format.isNumber())
        layout.format = {FormatKind::Number, 1, 1, {}};
    layout.column.kind = ColumnKind::Number;
    layout.column.alignment = Alignment::Right;
    layout.column.leastDecimals = layout.format.leastDecimals;
    layout.column.mostDecimals = layout.format.mostDecimals;
    return true;
}

bool takeTotal(const QString& value, LayoutTarget& target)
{
    auto& layout = *target.column;
    return takeYesNo(value, layout.isTotalled) && (layout.number || layout.rank == RankPart::Share ||
                                                   layout.rank == RankPart::Cumulated || !layout.isTotalled);
}

bool takeCompare(const QString& value, LayoutTarget& target)
{
    ColumnLayout& layout = *target.column;
    const bool canBe = layout.number || layout.rank == RankPart::Letter;
    return takeYesNo(value, layout.column.isCompared) && (canBe || !layout.column.isCompared);
}

bool takeClassBy(const QString& value, LayoutTarget& target)
{
    target.layout.classes.emplace().by = parseExpression(value, target.fields());
    return target.layout.source.addsUp();
}

/// Ascending, above 0 and up to 100. Classes are letters, so there are at most 25 limits.
bool takeLimits(const QString& value, LayoutTarget& target)
{
    constexpr std::size_t mostLimits = 25;
    auto& limits = target.layout.classes->limits;
    for (const QString& text : value.split(u',')) {
        const auto limit = Decimal::tryParse(text.toStdString());
        const Decimal least = limits.empty() ? Decimal() : limits.back();
        if (!limit || *limit <= least || *limit > Decimal(100, 0))
            return false;
        limits.push_back(*limit);
    }
    return limits.size() <= mostLimits;
}

bool takeWidth(const QString& value, LayoutTarget& target)
{
    constexpr double narrowest = 1;
    constexpr double widest = 280;
    bool isNumber = false;
    const double width = value.toDouble(&isNumber);
    if (!isNumber || !(width >= narrowest && width <= widest))
        return false;
    target.column->column.width = paper::millimetres(width);
    return true;
}

bool takeSort(const QString& value, LayoutTarget& target)
{
    const auto key = parseSortKey(value, target.table());
    if (!key)
        return false;
    checkField(target.layout, *target.source, key->field, 1);
    target.source->order.push_back(*key);
    return true;
}

bool takeGroupBy(const QString& value, LayoutTarget& target)
{
    const auto fields = parseFields(value, target.table());
    if (fields.size() != 1)
        return false;
    target.layout.group.emplace().by = target.fields().slotOf(fields.front(), 1);
    target.source->groupBy = fields.front();
    return true;
}

bool takeLinkReport(const QString& value, LayoutTarget& target)
{
    target.layout.link.emplace().report = value;
    return value.endsWith(".rpt"_L1, Qt::CaseInsensitive) && !value.contains(u'/') && !value.contains(u'\\');
}

/// A report that shows only groups identifies each line by the field of its group.
bool takeLinkField(const QString& value, LayoutTarget& target)
{
    const auto fields = parseFields(value, target.table());
    const auto& source = *target.source;
    if (fields.size() != 1 || source.isSum(fields.front()))
        return false;
    if (target.layout.group && !target.layout.group->showsLines && fields.front() != source.groupBy)
        return false;
    target.layout.link->field = fields.front();
    target.layout.link->slot = target.fields().slotOf(fields.front(), 1);
    return true;
}

bool takeChartBy(const QString& value, LayoutTarget& target)
{
    const auto fields = parseFields(value, target.table());
    auto& source = target.chart->query.emplace();
    source.table = target.layout.source.table;
    source.keys = fields;
    source.order.push_back({fields.front(), Order::Plain});
    target.chart->from = PointSource::Query;
    target.source = &source;
    return fields.size() == 1 && fields.front().table == source.table;
}

bool takeChartWhere(const QString& value, LayoutTarget& target)
{
    return target.chart->query && takeWhere(value, target);
}

bool takeFind(const QString& value, LayoutTarget& target)
{
    const auto fields = parseFields(value, target.table());
    if (fields.size() != 1 || target.layout.reads(*fields.front().table))
        return false;
    target.join->key = fields.front();
    target.join->table = fields.front().table;
    return true;
}

bool takeBy(const QString& value, LayoutTarget& target)
{
    const auto fields = parseFields(value, target.table());
    if (fields.size() != 1)
        return false;
    checkField(target.layout, *target.source, fields.front(), 1);
    target.join->of = fields.front();
    return true;
}

/// Only one join can add lines, and only to lines that are made by the field it is found by.
bool takeWhole(const QString& value, LayoutTarget& target)
{
    if (!takeYesNo(value, target.join->isWhole))
        return false;
    return !target.join->isWhole || (target.source->keys == std::vector{target.join->of} &&
                                     std::ranges::none_of(target.layout.joins, &Join::isWhole));
}

bool takeMost(const QString& value, LayoutTarget& target)
{
    constexpr int limit = 100;
    bool isNumber = false;
    target.chart->most = value.toInt(&isNumber);
    return isNumber && target.chart->most > 0 && target.chart->most <= limit;
}

bool takeValueFormat(const QString& value, LayoutTarget& target)
{
    return takeFormat(value, target.chart->valueFormat) && target.chart->valueFormat.isNumber();
}

// Keys are read in the order of these rows: a table before its fields, a format before its value.
// clang-format off
constexpr std::array<KeyRule, 8> reportKeys{{
    {u"Title", true, "the heading of the report"_L1, [](const QString& value, LayoutTarget& target) { target.layout.title = value; return true; }},
    {u"Table", true, "a table of the customer's database"_L1, takeTable},
    {u"Lines", false, "the fields of the table that make a line, such as {PLUSALES.ID}"_L1, takeLines},
    {u"ZeroLines", false, "YES or NO"_L1, [](const QString& value, LayoutTarget& target) { return takeYesNo(value, target.layout.showsZeroLines); }},
    {u"ZeroIn", false, "numbers that are all zero in the lines to be shown"_L1, [](const QString& value, LayoutTarget& target) { target.layout.zeroIn = parseExpressions(value, target.fields()); return true; }},
    {u"EmptyRecords", false, "YES or NO"_L1, [](const QString& value, LayoutTarget& target) { return takeYesNo(value, target.layout.showsEmptyRecords); }},
    {u"Orientation", false, "Automatic, Portrait or Landscape"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, orientations, target.layout.orientation); }},
    {u"Where", false, "a condition on fields of the report's table"_L1, takeWhere},
}};
constexpr std::array<KeyRule, 3> joinKeys{{
    {u"Find", true, "a field of a table that is not read yet, such as {PLUDATA.PLUNUMBER}"_L1, takeFind},
    {u"By", true, "a field by whose value the record is found, such as {PLUSALES.ID}"_L1, takeBy},
    {u"All", false, "YES or NO, and YES once, for the only field of Lines"_L1, takeWhole},
}};
constexpr std::array<KeyRule, 3> classKeys{{
    {u"By", true, "a number computed from fields, in a report with Lines"_L1, takeClassBy},
    {u"Limits", true, "per cents in ascending order, such as 80,95"_L1, takeLimits},
    {u"Heading", false, "a text with {class} and {lines}"_L1, [](const QString& value, LayoutTarget& target) { target.layout.classes->heading = value; return true; }},
}};
constexpr std::array<KeyRule, 11> columnKeys{{
    {u"Heading", false, "the heading of the column"_L1, [](const QString& value, LayoutTarget& target) { target.column->column.heading = value; return true; }},
    {u"Format", false, "Text, Digits, Money, Quantity, Date, Time, YesNo or a pattern such as 0.00"_L1, takeColumnFormat},
    {u"Words", false, "words for numbers, such as 0;None,1;Added"_L1, takeWords},
    {u"Value", false, "fields such as {PLUSALES.ID}"_L1, takeColumnValue},
    {u"Class", false, "Share, Cumulated or Letter in place of Value, in a report with section Classes"_L1, takeRank},
    {u"Missing", false, "a text"_L1, [](const QString& value, LayoutTarget& target) { target.column->text.missing = parseTemplate(value, target.fields()); return true; }},
    {u"Width", true, "millimetres from 1 to 280"_L1, takeWidth},
    {u"Align", false, "Left, Centre or Right"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, alignments, target.column->column.alignment); }},
    {u"Total", false, "YES or NO, and YES only for a number"_L1, takeTotal},
    {u"Compare", false, "YES or NO, and YES only for a number or the letter of a class"_L1, takeCompare},
    {u"Show", false, "numbers that are not all zero where the column is shown"_L1, [](const QString& value, LayoutTarget& target) { target.column->shownIf = parseExpressions(value, target.fields()); return true; }},
}};
constexpr KeyRule furtherValue{u"Value2", false, "a text with fields"_L1, [](const QString& value, LayoutTarget& target) { target.column->text.further.push_back(parseTemplate(value, target.fields())); return !target.column->number; }};
constexpr std::array<KeyRule, 4> groupKeys{{
    {u"By", true, "a field such as {PLUDATA.GROUPNO}"_L1, takeGroupBy},
    {u"Heading", true, "a text with fields"_L1, [](const QString& value, LayoutTarget& target) { target.layout.group->heading.text = parseTemplate(value, target.fields()); return true; }},
    {u"Missing", false, "a text"_L1, [](const QString& value, LayoutTarget& target) { target.layout.group->heading.missing = parseTemplate(value, target.fields()); return true; }},
    {u"Lines", false, "YES, or NO for groups alone"_L1, [](const QString& value, LayoutTarget& target) { return takeYesNo(value, target.layout.group->showsLines); }},
}};
constexpr std::array<KeyRule, 2> linkKeys{{
    {u"Report", true, "the name of a report file, such as articledays.rpt"_L1, takeLinkReport},
    {u"Field", true, "a field that tells the lines apart, such as {PLUSALES.ID}; of groups alone, that of [Group]"_L1, takeLinkField},
}};
constexpr auto sortExpected = "a field, with \"by value\" or \"descending\" after it or nothing"_L1;
constexpr std::array<KeyRule, 3> sortKeys{{
    {u"Key1", true, sortExpected, takeSort},
    {u"Key2", false, sortExpected, takeSort},
    {u"Key3", false, sortExpected, takeSort},
}};
constexpr std::array<KeyRule, 11> chartKeys{{
    {u"Kind", true, "Ranking, Course or Shares"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, chartKinds, target.chart->kind); }},
    {u"Title", true, "the heading of the picture"_L1, [](const QString& value, LayoutTarget& target) { target.chart->title = value; return true; }},
    {u"From", false, "Lines or Groups"_L1, [](const QString& value, LayoutTarget& target) { return takeChoice(value, pointSources, target.chart->from); }},
    {u"By", false, "a field of the report's table by which it is added up"_L1, takeChartBy},
    {u"Where", false, "a condition on fields of the report's table, beside By"_L1, takeChartWhere},
    {u"Format", false, "Text, Digits, Day, Date or Time"_L1, [](const QString& value, LayoutTarget& target) { return takeFormat(value, target.chart->label.format); }},
    {u"Label", false, "a text with fields"_L1, [](const QString& value, LayoutTarget& target) { target.chart->label.text = parseTemplate(value, target.fields()); return true; }},
    {u"Missing", false, "a text"_L1, [](const QString& value, LayoutTarget& target) { target.chart->label.missing = parseTemplate(value, target.fields()); return true; }},
    {u"Value", true, "a number computed from fields"_L1, [](const QString& value, LayoutTarget& target) { target.chart->value = parseExpression(value, target.fields()); return true; }},
    {u"ValueFormat", false, "Money or Quantity"_L1, takeValueFormat},
    {u"Most", false, "a whole number from 1 to 100"_L1, takeMost},
}};
// clang-format on

} // namespace

const LayoutKeys& layoutKeys()
{
    static constexpr LayoutKeys keys{reportKeys, joinKeys,  classKeys, columnKeys,  groupKeys,
                                     sortKeys,   chartKeys, linkKeys,  furtherValue};
    return keys;
}

} // namespace norvane::reports
