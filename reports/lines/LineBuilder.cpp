// See LineBuilder.h.
#include "reports/lines/LineBuilder.h"

#include "platform/RuntimeFailure.h"
#include "reports/formula/ExactNumbers.h"
#include "reports/lines/LineFilters.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr auto tooLong = "too long"_L1;
/// Characters of a number that a page has room for.
constexpr std::size_t longestSumShown = 40;

/// The column of a total's label: the first that shows words and is always shown, otherwise the first column.
std::size_t labelColumnOf(const ReportLayout& layout)
{
    const auto& columns = layout.columns;
    const auto isWord = [](const ColumnLayout& column) {
        return !column.number && column.rank == RankPart::None && column.format.kind != FormatKind::Digits &&
               column.shownIf.empty();
    };
    const auto word = std::ranges::find_if(columns, isWord);
    return word == columns.end() ? 0 : static_cast<std::size_t>(word - columns.begin());
}

/// Whether the field is what makes a record worth a line.
bool isContent(const ReportLayout& layout, const FieldName& field)
{
    if (!layout.source.addsUp())
        return !isRecordNumber(layout.source, field);
    const auto whole = std::ranges::find_if(layout.joins, &Join::isWhole);
    return whole != layout.joins.end() && field.table == whole->table && field != whole->key;
}

} // namespace

LineBuilder::LineBuilder(const ReportLayout& layout, ReportData& data, ChartBuilder& charts,
                         std::vector<std::string> whole, int days)
    : m_layout(layout), m_data(data), m_charts(charts), m_whole(std::move(whole)), m_days(days),
      m_numbers(layout), m_groupTotals(layout.source.fields.size()), m_totals(layout.source.fields.size()),
      m_labelColumn(labelColumnOf(layout)),
      m_isTotalled(std::ranges::any_of(layout.columns, &ColumnLayout::isTotalled))
{
    for (const auto& column : layout.columns)
        m_isShown.push_back(column.shownIf.empty());
    for (std::size_t slot = 0; slot < layout.source.fields.size(); ++slot) {
        if (isContent(layout, layout.source.fields[slot]))
            m_contents.push_back(slot);
    }
}

void LineBuilder::add(const LineFields& fields, const LineRank& rank)
{
    m_numbers.read(fields);
    m_rank = rank;
    if (isLeftOut(fields))
        return;
    if (m_layout.group) {
        changeGroup(fields);
    } else if (m_layout.hasGroups()) {
        changeClass();
    }
    if (!m_layout.group || m_layout.group->showsLines)
        addDetail(fields);
    m_groupTotals.add(m_numbers.numbers());
    m_totals.add(m_numbers.numbers());
    m_charts.addLine(fields, all(m_numbers.numbers()));
    noteShown();
}

/// Most amounts of a line are zero, such as those of the price levels that a shop does not use.
bool LineBuilder::isZeroField(const Expression& expression) const
{
    const auto slot = expression.loneSlot();
    return slot && m_numbers.numbers()[static_cast<std::size_t>(*slot)] == "0";
}

bool LineBuilder::isSet(const Expression& expression) const
{
    if (isZeroField(expression))
        return false;
    const auto value = expression.value(all(m_numbers.numbers()));
    return value && *value != Decimal();
}

/// A line without amounts, or a record in which nothing but its number is set: of a list, or of a join that
/// adds lines for all of its records.
bool LineBuilder::isLeftOut(const LineFields& fields) const
{
    const auto isAmount = [this](const Expression& expression) {
        return isSet(expression);
    };
    if (std::ranges::any_of(m_layout.zeroIn, isAmount) || (!m_layout.showsZeroLines && m_numbers.areZero()))
        return true;
    if (m_layout.showsEmptyRecords || m_contents.empty() ||
        (m_layout.source.addsUp() && !m_numbers.areZero()))
        return false;
    return std::ranges::all_of(m_contents,
                               [&fields](std::size_t slot) { return namesNothing(fields.at(slot)); });
}

void LineBuilder::changeGroup(const LineFields& fields)
{
    const auto& by = fields.at(static_cast<std::size_t>(m_layout.group->by));
    const auto& heading = m_layout.group->heading;
    const bool isNone = namesNothing(by);
    const store::Value group = isNone ? store::Value() : by;
    if (m_group && *m_group == group)
        return;
    openGroup(group, isNone && !heading.missing.isEmpty() ? textOf(heading.missing, {}, fields)
                                                          : textOf(heading, fields));
}

void LineBuilder::changeClass()
{
    const auto group = store::Value::text(m_rank.letter);
    if (m_group && *m_group == group)
        return;
    QString heading = m_layout.classes->heading;
    heading.replace("{class}"_L1, m_rank.letter, Qt::CaseInsensitive);
    openGroup(group,
              heading.replace("{lines}"_L1, QString::number(m_rank.linesOfClass), Qt::CaseInsensitive));
}

void LineBuilder::openGroup(const store::Value& group, const QString& heading)
{
    closeGroup();
    m_group = group;
    m_groupHeading = heading;
    if (!m_layout.group || m_layout.group->showsLines)
        m_data.addLine(LineKind::GroupHeading, {m_groupHeading});
}

void LineBuilder::closeGroup()
{
    if (!m_group)
        return;
    const auto totals = m_groupTotals.texts();
    m_charts.addGroup(m_groupHeading, all(totals));
    if (m_layout.group && !m_layout.group->showsLines) {
        addTotal(LineKind::Detail, m_groupTotals, m_groupHeading);
        setLink(*m_group);
    } else if (m_isTotalled) {
        addTotal(LineKind::Subtotal, m_groupTotals, u"Total %1"_s.arg(m_groupHeading));
    }
    m_groupTotals = SlotTotals(m_layout.source.fields.size());
}

void LineBuilder::addDetail(const LineFields& fields)
{
    std::vector<ReportCell> cells;
    cells.reserve(m_layout.columns.size());
    for (const auto& column : m_layout.columns)
        cells.push_back(cell(column, fields));
    m_data.addLine(LineKind::Detail, std::move(cells));
    if (m_layout.link)
        setLink(fields.at(static_cast<std::size_t>(m_layout.link->slot)));
}

void LineBuilder::setLink(const store::Value& value)
{
    if (m_layout.link)
        m_data.setLinkValue(filterValue(value));
}

ReportCell LineBuilder::cell(const ColumnLayout& column, const LineFields& fields) const
{
    if (column.rank != RankPart::None)
        return rankCell(column.rank);
    if (column.number) {
        const auto slot = column.number->loneSlot();
        if (slot && fields.at(static_cast<std::size_t>(*slot)).isNull())
            return {};
        return isZeroField(*column.number) ? Decimal() : number(column, m_numbers.numbers());
    }
    if (column.column.kind == ColumnKind::Date) {
        const QDate day = fields.at(static_cast<std::size_t>(*column.text.text.parts.front().slot)).toDate();
        return day.isValid() ? ReportCell(day) : ReportCell();
    }
    const QString text = textOf(column.text, fields);
    return text.isEmpty() ? ReportCell() : ReportCell(text);
}

ReportCell LineBuilder::rankCell(RankPart part) const
{
    if (part == RankPart::Letter)
        return m_rank.letter;
    const auto& share = part == RankPart::Share ? m_rank.share : m_rank.cumulated;
    return share ? ReportCell(*share) : ReportCell(noRank.toString());
}

/// The share of several lines is that of their numbers together, the cumulated share that of all lines up to
/// them.
ReportCell LineBuilder::totalOf(const ColumnLayout& column, const std::vector<std::string>& numbers) const
{
    if (column.rank == RankPart::None)
        return number(column, numbers);
    const auto sums = column.rank == RankPart::Share ? numbers : m_totals.texts();
    const auto share = shareOf(*m_layout.classes, all(sums));
    return share ? ReportCell(*share) : ReportCell(noRank.toString());
}

/// @return nothing where the number has more digits than a Decimal holds.
std::optional<ReportCell> LineBuilder::shortNumber(const ColumnLayout& column, const SlotNumbers& numbers)
{
    try {
        const auto value = column.number->value(numbers);
        if (!value)
            return ReportCell();
        if (value->digits() < Decimal::mostDigits)
            return ReportCell(*value);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::Overflow)
            throw;
    }
    return std::nullopt;
}

/// A sum of more digits than a Decimal holds becomes a text with all of them. A quotient of such sums cannot
/// be calculated, and the cell says so.
ReportCell LineBuilder::number(const ColumnLayout& column, const std::vector<std::string>& numbers) const
{
    const SlotNumbers from = all(numbers);
    if (auto cell = shortNumber(column, from))
        return *std::move(cell);
    try {
        const std::string rounded =
            roundedText(column.number->exactValue(from).value_or("0"), column.column.mostDecimals);
        if (!isLong(rounded))
            return decimalOf(rounded);
        if (rounded.size() <= longestSumShown)
            return shownDigits(QString::fromStdString(rounded), column.column.leastDecimals);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::Overflow)
            throw;
    }
    return QString(tooLong);
}

void LineBuilder::noteShown()
{
    for (std::size_t i = 0; i < m_isShown.size(); ++i) {
        for (const auto& expression : m_layout.columns[i].shownIf) {
            if (m_isShown[i])
                break;
            m_isShown[i] = isSet(expression);
        }
    }
}

void LineBuilder::addTotal(LineKind kind, const SlotTotals& totals, const QString& label)
{
    const auto numbers = totals.texts();
    std::vector<ReportCell> cells(m_layout.columns.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (m_layout.columns[i].isTotalled)
            cells[i] = totalOf(m_layout.columns[i], numbers);
    }
    if (!m_layout.columns[m_labelColumn].isTotalled)
        cells[m_labelColumn] = label;
    m_data.addLine(kind, std::move(cells));
}

void LineBuilder::finish()
{
    closeGroup();
    if (m_isTotalled && m_data.lineCount() > 0)
        addTotal(LineKind::GrandTotal, m_totals, u"Total"_s);
    m_data.keepColumns(m_isShown);
}

} // namespace norvane::reports
