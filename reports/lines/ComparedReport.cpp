// See ComparedReport.h.
#include "reports/lines/ComparedReport.h"

#include <QHash>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr int percentPlaces = 1;
constexpr paper::Length percentWidth = paper::millimetres(20);
/// Room for "Quantity before".
constexpr paper::Length leastWidth = paper::millimetres(28);

bool isNumberLess(const QString& one, const QString& other)
{
    return one.size() == other.size() ? one < other : one.size() < other.size();
}

/// A report with its columns and lines in the order of the comparison.
class ComparedLines
{
public:
    explicit ComparedLines(const ReportData& data) : m_data(data)
    {
        int column = 0;
        for (; column < data.columnCount() && !columns()[place(column)].isCompared; ++column)
            m_named.push_back(column);
        for (; column < data.columnCount(); ++column) {
            if (columns()[place(column)].isCompared)
                m_compared.push_back(column);
        }
        for (qsizetype line = 0; line < data.lineCount(); ++line)
            addKey(line);
    }

    [[nodiscard]] const std::vector<int>& named() const { return m_named; }
    [[nodiscard]] const std::vector<int>& compared() const { return m_compared; }
    [[nodiscard]] const ReportColumn& column(int column) const { return columns()[place(column)]; }

    [[nodiscard]] qsizetype count() const { return m_data.lineCount(); }
    [[nodiscard]] const QString& key(qsizetype line) const { return m_keys[place(line)]; }
    [[nodiscard]] qsizetype lineOf(const QString& key) const { return m_lines.value(key, -1); }
    [[nodiscard]] LineKind kind(qsizetype line) const { return m_data.lineKind(line); }
    [[nodiscard]] ReportCell cell(qsizetype line, int column) const { return m_data.cell(line, column); }
    [[nodiscard]] std::optional<QString> linkValue(qsizetype line) const { return m_data.linkValue(line); }
    [[nodiscard]] QString name(qsizetype line) const { return m_data.plainText(line, 0); }

private:
    template <typename Number>
    [[nodiscard]] static std::size_t place(Number number)
    {
        return static_cast<std::size_t>(number);
    }
    [[nodiscard]] const std::vector<ReportColumn>& columns() const { return m_data.columns(); }

    /// Group, kind and texts of the line; its occurrence, too, should a layout repeat them.
    void addKey(qsizetype line)
    {
        const LineKind kind = m_data.lineKind(line);
        if (kind == LineKind::GroupHeading)
            m_group = name(line);
        QString key = (kind == LineKind::GrandTotal ? QString() : m_group) + u'\n' +
                      QString::number(static_cast<int>(kind));
        for (const int column : m_named)
            key += kind == LineKind::Detail ? u'\n' + m_data.plainText(line, column) : QString();
        QString unique = key;
        for (int again = 2; m_lines.contains(unique); ++again)
            unique = key + u'\n' + QString::number(again);
        m_lines.insert(unique, line);
        m_keys.push_back(unique);
    }

    const ReportData& m_data;
    std::vector<int> m_named;
    std::vector<int> m_compared;
    QString m_group;
    std::vector<QString> m_keys;
    QHash<QString, qsizetype> m_lines;
};

std::vector<ReportColumn> columnsOf(const ComparedLines& lines)
{
    std::vector<ReportColumn> columns;
    for (const int column : lines.named())
        columns.push_back(lines.column(column));
    for (const int compared : lines.compared()) {
        ReportColumn column = lines.column(compared);
        const QString heading = column.heading;
        columns.push_back(column);
        if (column.kind != ColumnKind::Number) {
            column.heading = heading + u" before"_s;
            columns.push_back(std::move(column));
            continue;
        }
        column.width = std::max(column.width, leastWidth);
        for (const char16_t* const after : {u" before", u" change"}) {
            column.heading = heading + QString::fromUtf16(after);
            columns.push_back(column);
        }
        columns.push_back({heading + u" %"_s, percentWidth, Alignment::Right, ColumnKind::Number,
                           percentPlaces, percentPlaces});
    }
    return columns;
}

/// @return nothing for a number that does not fit a decimal and is a text, and where there is none, as in the
/// total of a column without totals.
std::optional<Decimal> numberIn(const ReportCell& cell)
{
    const auto* const number = std::get_if<Decimal>(&cell);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

Decimal negative(const Decimal& number)
{
    return {-number.coefficient(), number.scale()};
}

class Merge
{
public:
    Merge(const ComparedLines& now, const ComparedLines& before, OtherLines others)
        : m_now(now), m_before(before), m_others(others), m_result(columnsOf(now))
    {
    }

    /// Lines that only one of the periods has are placed between those that both have, by their first column,
    /// or those of the other period last.
    ReportData all()
    {
        for (;;) {
            while (m_other < m_before.count() && isDone(m_other))
                ++m_other;
            if (takesOther()) {
                add(-1, m_other++);
            } else if (m_line < m_now.count()) {
                add(m_line, m_before.lineOf(m_now.key(m_line)));
                ++m_line;
            } else {
                return std::move(m_result);
            }
        }
    }

private:
    /// Whether a line of the other period was added beside one of this period.
    [[nodiscard]] bool isDone(qsizetype other) const
    {
        const qsizetype line = m_now.lineOf(m_before.key(other));
        return line >= 0 && line < m_line;
    }

    [[nodiscard]] bool takesOther() const
    {
        if (m_other >= m_before.count() || m_now.lineOf(m_before.key(m_other)) >= 0)
            return false;
        if (m_others == OtherLines::Last && m_line < m_now.count() && m_now.kind(m_line) == LineKind::Detail)
            return false;
        if (m_line >= m_now.count() || m_before.lineOf(m_now.key(m_line)) >= 0)
            return true;
        return m_now.kind(m_line) == LineKind::Detail && m_before.kind(m_other) == LineKind::Detail &&
               isNumberLess(m_before.name(m_other), m_now.name(m_line));
    }

    /// @param now, before lines; -1 for a period that does not have it
    void add(qsizetype now, qsizetype before)
    {
        const ComparedLines& named = now >= 0 ? m_now : m_before;
        const qsizetype line = now >= 0 ? now : before;
        std::vector<ReportCell> cells;
        for (const int column : named.named())
            cells.push_back(named.cell(line, column));
        if (named.kind(line) != LineKind::GroupHeading) {
            for (std::size_t i = 0; i < m_now.compared().size(); ++i)
                addCompared(cells, i, now, before);
        }
        m_result.addLine(named.kind(line), std::move(cells));
        if (const auto value = named.linkValue(line))
            m_result.setLinkValue(*value);
    }

    void addCompared(std::vector<ReportCell>& cells, std::size_t compared, qsizetype now,
                     qsizetype before) const
    {
        ReportCell cell = cellOf(m_now, now, compared);
        ReportCell other = cellOf(m_before, before, compared);
        if (now < 0 && other == ReportCell())
            cell = {};
        if (before < 0 && cell == ReportCell())
            other = {};
        if (m_now.column(m_now.compared()[compared]).kind == ColumnKind::Number)
            return addNumbers(cells, cell, other);
        cells.push_back(cell);
        cells.push_back(other);
    }

    /// Where a period does not have the line, its numbers are zero and its texts dashes.
    [[nodiscard]] static ReportCell cellOf(const ComparedLines& lines, qsizetype line, std::size_t compared)
    {
        const int column = lines.compared()[compared];
        if (line >= 0)
            return lines.cell(line, column);
        return lines.column(column).kind == ColumnKind::Number ? ReportCell(Decimal()) : ReportCell(u"–"_s);
    }

    static void addNumbers(std::vector<ReportCell>& cells, const ReportCell& now, const ReportCell& before)
    {
        const auto number = numberIn(now);
        const auto other = numberIn(before);
        cells.push_back(number ? ReportCell(*number) : now);
        cells.push_back(other ? ReportCell(*other) : before);
        if (!number || !other) {
            cells.insert(cells.end(), 2, ReportCell());
            return;
        }
        const Decimal change = number->plus(negative(*other));
        cells.emplace_back(change);
        cells.push_back(changePercent(change, *other));
    }

    const ComparedLines& m_now;
    const ComparedLines& m_before;
    OtherLines m_others;
    ReportData m_result;
    qsizetype m_line = 0; ///< next of each
    qsizetype m_other = 0;
};

} // namespace

ReportCell changePercent(const Decimal& change, const Decimal& before)
{
    constexpr int significant = 12;
    constexpr int hundred = 2;
    if (before.coefficient() == 0)
        return u"–"_s;
    const Decimal whole = before.coefficient() < 0 ? negative(before) : before;
    return change.dividedBy(whole, significant).shifted(hundred);
}

ReportData comparedReport(const ReportData& now, const ReportData& before, OtherLines others)
{
    const ComparedLines lines(now);
    const ComparedLines earlier(before);
    ReportData result = Merge(lines, earlier, others).all();
    result.heading = now.heading;
    result.page = now.page;
    result.charts = now.charts;
    result.link = now.link;
    return result;
}

} // namespace norvane::reports
