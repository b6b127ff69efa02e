// See BlockTable.h.
#include "reports/lines/BlockTable.h"

#include "platform/DecimalTotal.h"
#include "reports/formula/ExactNumbers.h"
#include "reports/lines/ComparedReport.h"
#include "reports/lines/SalesDays.h"

#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>
#include <deque>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

QString dash()
{
    return u"–"_s;
}

constexpr int weekdays = 7;

struct BlockRow {
    QString name;
    std::vector<ReportCell> numbers;
};

ReportColumn nameColumn(const QString& heading)
{
    return {heading, paper::millimetres(60)};
}

const ReportColumn& columnOf(const ReportData& data, int column)
{
    return data.columns()[static_cast<std::size_t>(column)];
}

std::vector<int> columnsOfKind(const ReportData& data, bool areNumbers)
{
    std::vector<int> columns;
    for (int column = 0; column < data.columnCount(); ++column) {
        if ((columnOf(data, column).kind == ColumnKind::Number) == areNumbers)
            columns.push_back(column);
    }
    return columns;
}

Decimal numberOf(const ReportCell& cell)
{
    const auto* const number = std::get_if<Decimal>(&cell);
    return number == nullptr ? Decimal() : *number;
}

/// The rows of a block with their numbers, from a report's lines.
class BlockRows
{
public:
    BlockRows(const ReportData& data, const BlockLayout& block)
        : m_data(data), m_block(block), m_texts(columnsOfKind(data, false)),
          m_numbers(columnsOfKind(data, true))
    {
        for (qsizetype line = 0; line < data.lineCount(); ++line)
            take(line);
        if (block.cut.isSorted && !m_numbers.empty())
            sort();
        cut();
    }

    ReportData table()
    {
        std::vector<ReportColumn> columns{
            nameColumn(m_texts.empty() ? QString() : columnOf(m_data, m_texts.front()).heading)};
        for (const int column : m_numbers)
            columns.push_back(columnOf(m_data, column));
        if (m_block.hasShare) {
            columns.push_back(
                {u"Share %"_s, paper::millimetres(20), Alignment::Right, ColumnKind::Number, 1, 1});
        }
        ReportData table(std::move(columns));
        for (BlockRow& row : m_rows)
            add(table, LineKind::Detail, std::move(row));
        // The articles of a block of groups are in its total, too.
        if (m_total && !m_rows.empty() && (m_block.of == 0 || m_block.cut.showsGroups))
            add(table, LineKind::GrandTotal, *m_total);
        return table;
    }

private:
    void take(qsizetype line)
    {
        const LineKind kind = m_data.lineKind(line);
        const bool isGroup = kind == LineKind::Subtotal && m_block.cut.showsGroups;
        if (kind == LineKind::GroupHeading) {
            m_group = m_data.text(line, 0);
        } else if (kind == LineKind::GrandTotal) {
            m_total = BlockRow{u"Total"_s, numbersOf(line)};
        } else if (isGroup || (kind == LineKind::Detail && !m_block.cut.showsGroups)) {
            m_rows.push_back({isGroup ? m_group : nameOf(line), numbersOf(line)});
        }
    }

    [[nodiscard]] QString nameOf(qsizetype line) const
    {
        QStringList names;
        for (const int column : m_texts)
            names << m_data.text(line, column);
        names.removeAll(QString());
        return names.join(u' ');
    }

    [[nodiscard]] std::vector<ReportCell> numbersOf(qsizetype line) const
    {
        std::vector<ReportCell> numbers;
        for (const int column : m_numbers)
            numbers.push_back(m_data.cell(line, column));
        return numbers;
    }

    /// A compared number is followed by that of the other period, the change and per cent.
    [[nodiscard]] bool isPercent(std::size_t number) const
    {
        constexpr std::size_t compared = 3;
        return number >= compared && columnOf(m_data, m_numbers[number]).heading ==
                                         columnOf(m_data, m_numbers[number - compared]).heading + u" %"_s;
    }

    /// The last number of the layout.
    [[nodiscard]] std::size_t mainNumber() const
    {
        constexpr std::size_t compared = 3;
        const std::size_t last = m_numbers.size() - 1;
        return isPercent(last) ? last - compared : last;
    }

    /// What was sold in the other period only is not among the worst of this one.
    void sort()
    {
        const auto main = mainNumber();
        if (m_block.cut.smallestFirst) {
            std::erase_if(m_rows, [main](const BlockRow& row) {
                return numberOf(row.numbers[main]).coefficient() == 0;
            });
        }
        std::ranges::stable_sort(m_rows, [this, main](const BlockRow& one, const BlockRow& other) {
            const Decimal left = numberOf(one.numbers[main]);
            const Decimal right = numberOf(other.numbers[main]);
            return m_block.cut.smallestFirst ? left < right : right < left;
        });
    }

    /// A single line beyond the limit needs no more room than the words that would take its place.
    void cut()
    {
        const auto most = static_cast<std::size_t>(m_block.cut.most);
        const bool keepsRest = !m_block.cut.smallestFirst;
        if (most == 0 || m_rows.size() <= most + (keepsRest ? 1 : 0))
            return;
        BlockRow rest{u"and %1 more"_s.arg(m_rows.size() - most), std::vector<ReportCell>(m_numbers.size())};
        for (std::size_t number = 0; number < m_numbers.size() && m_total; ++number) {
            rest.numbers[number] = isPercent(number) ? changePercent(numberOf(rest.numbers[number - 1]),
                                                                     numberOf(rest.numbers[number - 2]))
                                                     : sumOfRest(number, most);
        }
        m_rows.resize(most);
        if (keepsRest)
            m_rows.push_back(std::move(rest));
    }

    /// @return nothing for a number that the layout does not add up.
    [[nodiscard]] ReportCell sumOfRest(std::size_t number, std::size_t first) const
    {
        if (std::holds_alternative<std::monostate>(m_total->numbers[number]))
            return {};
        DecimalTotal sum;
        for (std::size_t row = first; row < m_rows.size(); ++row)
            sum.add(std::string_view(numberOf(m_rows[row].numbers[number]).text()));
        return decimalOf(sum.text());
    }

    void add(ReportData& table, LineKind kind, BlockRow row) const
    {
        std::vector<ReportCell> cells{row.name};
        if (m_block.hasShare && !m_numbers.empty())
            row.numbers.push_back(shareOf(row));
        std::ranges::move(row.numbers, std::back_inserter(cells));
        table.addLine(kind, std::move(cells));
    }

    [[nodiscard]] ReportCell shareOf(const BlockRow& row) const
    {
        constexpr int significant = 12;
        constexpr int hundred = 2;
        const Decimal whole = m_total ? numberOf(m_total->numbers[mainNumber()]) : Decimal();
        if (whole.coefficient() == 0)
            return dash();
        return numberOf(row.numbers[mainNumber()]).dividedBy(whole, significant).shifted(hundred);
    }

    const ReportData& m_data;
    const BlockLayout& m_block;
    std::vector<int> m_texts;
    std::vector<int> m_numbers;
    QString m_group;
    std::vector<BlockRow> m_rows;
    std::optional<BlockRow> m_total;
};

/// The days of the week in their order: those of a week from its first day on, else from Sunday on.
std::vector<int> weekdaysOf(QDate from, QDate to)
{
    const bool isShort = from.isValid() && to.isValid() && from.daysTo(to) < weekdays;
    const int count = isShort ? static_cast<int>(std::max<qint64>(from.daysTo(to), 0)) + 1 : weekdays;
    std::vector<int> days;
    days.reserve(weekdays);
    for (int day = 0; day < count; ++day)
        days.push_back(((isShort ? from.dayOfWeek() : Qt::Sunday) - 1 + day) % weekdays + 1);
    return days;
}

/// Exact sums by text and day of the week.
class WeekTotals
{
public:
    using Row = std::array<DecimalTotal, weekdays + 1>; ///< by Qt's number of the day; the sum of all at 0

    WeekTotals(const ReportData& data, int number)
    {
        const auto texts = columnsOfKind(data, false);
        for (qsizetype line = 0; line < data.lineCount(); ++line) {
            const auto day = std::get<QDate>(data.cell(line, texts.at(0)));
            const std::string value = numberOf(data.cell(line, number)).text();
            for (Row* const row : {&rowOf(data.text(line, texts.at(1))), &total}) {
                row->at(static_cast<std::size_t>(day.dayOfWeek())).add(std::string_view(value));
                row->at(0).add(std::string_view(value));
            }
        }
    }

    std::vector<QString> names;
    std::deque<Row> rows;
    Row total;

private:
    Row& rowOf(const QString& name)
    {
        const auto known = m_places.constFind(name);
        if (known != m_places.cend())
            return rows[*known];
        m_places.insert(name, rows.size());
        names.push_back(name);
        return rows.emplace_back();
    }

    QHash<QString, std::size_t> m_places;
};

/// The columns beside the sum; a single day is the sum.
std::vector<int> shownWeekdays(QDate from, QDate to)
{
    auto days = weekdaysOf(from, to);
    if (days.size() == 1)
        days.clear();
    return days;
}

std::vector<ReportCell> weekCells(const QString& name, const WeekTotals::Row& row,
                                  const std::vector<int>& days)
{
    std::vector<ReportCell> cells{name};
    for (const int day : days)
        cells.emplace_back(decimalOf(row.at(static_cast<std::size_t>(day)).text()));
    cells.emplace_back(decimalOf(row.at(0).text()));
    return cells;
}

} // namespace

ReportData blockTable(const ReportData& data, const BlockLayout& block)
{
    return BlockRows(data, block).table();
}

ReportData figureOf(const ReportData& data, const QString& title)
{
    const int column = columnsOfKind(data, true).back();
    ReportData figure({nameColumn({}), columnOf(data, column)});
    DecimalTotal sum;
    for (qsizetype line = 0; line < data.lineCount(); ++line) {
        if (data.lineKind(line) == LineKind::Detail)
            sum.add(std::string_view(numberOf(data.cell(line, column)).text()));
    }
    figure.addLine(LineKind::Detail, {title, decimalOf(sum.text())});
    return figure;
}

ReportData quotientOf(const ReportData& first, const ReportData& second, const QString& title,
                      ReportColumn number)
{
    constexpr int significant = 17;
    const Decimal divisor = numberOf(second.cell(0, 1));
    ReportData figure({nameColumn({}), std::move(number)});
    if (divisor.coefficient() == 0) {
        figure.addLine(LineKind::Detail, {title, dash()});
    } else {
        figure.addLine(LineKind::Detail, {title, numberOf(first.cell(0, 1)).dividedBy(divisor, significant)});
    }
    return figure;
}

ReportData weekTable(const ReportData& data, QDate from, QDate to)
{
    const int number = columnsOfKind(data, true).back();
    const auto days = shownWeekdays(from, to);
    std::vector<ReportColumn> columns{nameColumn(columnOf(data, columnsOfKind(data, false).at(1)).heading)};
    for (const int day : days) {
        columns.push_back(columnOf(data, number));
        columns.back().heading = QLocale::c().dayName(day, QLocale::ShortFormat);
    }
    columns.push_back(columnOf(data, number));
    ReportData table(std::move(columns));
    const WeekTotals totals(data, number);
    for (std::size_t row = 0; row < totals.rows.size(); ++row)
        table.addLine(LineKind::Detail, weekCells(totals.names[row], totals.rows[row], days));
    if (!totals.rows.empty())
        table.addLine(LineKind::GrandTotal, weekCells(u"Total"_s, totals.total, days));
    return table;
}

ReportData daysTable(const std::vector<QDate>& days)
{
    constexpr std::size_t mostListed = 20;
    ReportData table({nameColumn({})});
    if (!days.empty())
        table.addLine(LineKind::Detail, {textOfDays(days, mostListed)});
    return table;
}

} // namespace norvane::reports
