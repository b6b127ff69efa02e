// See SummaryRun.h.
#include "reports/lines/SummaryRun.h"

#include "reports/lines/BlockTable.h"
#include "reports/lines/ComparedReport.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// The lines of a block's layout over both periods.
struct BlockLines {
    ReportData now;
    ReportData before;
    ReportData both; ///< compared, or those of the period where nothing is compared
};

bool hasCompared(const ReportData& data)
{
    return std::ranges::any_of(data.columns(), &ReportColumn::isCompared);
}

bool isSameColumn(const ReportColumn& one, const ReportColumn& other)
{
    return one.heading == other.heading && one.mostDecimals == other.mostDecimals &&
           one.dress.currency == other.dress.currency;
}

/// The columns of a block as the narrower page shows them: "Before" and "%" after the number that they
/// belong to. The change is left out, because it follows from these two.
ReportData pageTable(const ReportData& table)
{
    std::vector<ReportColumn> columns;
    std::vector<int> kept;
    QString compared;
    for (int column = 0; column < table.columnCount(); ++column) {
        ReportColumn shown = table.columns()[static_cast<std::size_t>(column)];
        if (shown.heading == compared + u" change"_s)
            continue;
        if (shown.heading == compared + u" before"_s) {
            shown.heading = u"Before"_s;
        } else if (shown.heading == compared + u" %"_s) {
            shown.heading = u"%"_s;
        } else {
            compared = shown.heading;
        }
        columns.push_back(std::move(shown));
        kept.push_back(column);
    }
    ReportData page(std::move(columns));
    for (qsizetype line = 0; line < table.lineCount(); ++line) {
        std::vector<ReportCell> cells;
        cells.reserve(kept.size());
        for (const int column : kept)
            cells.push_back(table.cell(line, column));
        page.addLine(table.lineKind(line), std::move(cells));
    }
    return page;
}

ReportData noLines()
{
    ReportData table({{QString(), paper::millimetres(60)}});
    table.addLine(LineKind::Detail, {u"None"_s});
    return table;
}

/// Puts the tables of all blocks into one, in which equal columns are the same.
class SummaryLines
{
public:
    explicit SummaryLines(const std::vector<ReportData>& tables) : m_tables(tables)
    {
        std::vector<ReportColumn> columns{{u"Item"_s, paper::millimetres(60)}};
        for (const ReportData& table : tables)
            m_places.push_back(placesOf(table, columns));
        m_data = ReportData(std::move(columns));
    }

    /// @return the first line of the block.
    qsizetype add(std::size_t block, const QString& title, bool hasTitle)
    {
        const ReportData& table = m_tables[block];
        const qsizetype first = m_data.lineCount();
        if (hasTitle)
            m_data.addLine(LineKind::GroupHeading, {title});
        for (qsizetype line = 0; line < table.lineCount(); ++line) {
            std::vector<ReportCell> cells(static_cast<std::size_t>(m_data.columnCount()));
            for (int column = 0; column < table.columnCount(); ++column)
                cells[m_places[block][static_cast<std::size_t>(column)]] = table.cell(line, column);
            const bool isTotal = table.lineKind(line) == LineKind::GrandTotal;
            m_data.addLine(isTotal ? LineKind::Subtotal : LineKind::Detail, std::move(cells));
        }
        return first;
    }

    [[nodiscard]] ReportData taken() { return std::move(m_data); }

private:
    static std::vector<std::size_t> placesOf(const ReportData& table, std::vector<ReportColumn>& columns)
    {
        std::vector<std::size_t> places{0};
        for (int column = 1; column < table.columnCount(); ++column) {
            const ReportColumn& own = table.columns()[static_cast<std::size_t>(column)];
            const auto found = std::ranges::find_if(
                columns, [&own](const ReportColumn& known) { return isSameColumn(known, own); });
            places.push_back(static_cast<std::size_t>(found - columns.begin()));
            if (found == columns.end())
                columns.push_back(own);
        }
        return places;
    }

    const std::vector<ReportData>& m_tables;
    std::vector<std::vector<std::size_t>>
        m_places; ///< by block: the column of the summary for each of its own
    ReportData m_data;
};

class Summary
{
public:
    Summary(const ReportRequest& request, const ReportLayout& layout, const SummaryFrame& frame,
            const LayoutRunner& run)
        : m_request(request), m_layout(layout), m_frame(frame), m_run(run)
    {
    }

    ReportData make()
    {
        std::vector<ReportData> tables;
        for (const BlockLayout& block : m_layout.blocks) {
            m_lines.push_back(linesOf(block));
            tables.push_back(tableOf(block));
            if (tables.back().lineCount() == 0)
                tables.back() = noLines();
        }
        ReportData data = together(m_hasSales ? tables : std::vector<ReportData>());
        data.heading = m_frame.heading;
        if (m_hasSales)
            data.heading.notice.clear();
        return data;
    }

private:
    [[nodiscard]] BlockLines linesOf(const BlockLayout& block)
    {
        BlockLines lines;
        if (block.isQuotient()) {
            lines.now = quotient(block, &BlockLines::now);
            lines.before = quotient(block, &BlockLines::before);
        } else if (block.table) {
            lines.now = linesOf(block, m_frame.now);
            if (m_frame.before && hasCompared(lines.now))
                lines.before = linesOf(block, *m_frame.before);
        }
        const bool isCompared = m_frame.before && lines.before.columnCount() > 0;
        lines.both = isCompared ? comparedReport(lines.now, lines.before) : lines.now;
        return lines;
    }

    /// A list, such as the settings of the registers, has no period, and its lines are not sales.
    [[nodiscard]] ReportData linesOf(const BlockLayout& block, const SummaryPeriod& of)
    {
        const auto day = block.table->source.day();
        ReportRequest request = m_request;
        request.selectionFormula = day && of.period ? formulaOf(day->text(), *of.period) : QString();
        request.comparedWith = ComparedWith::Nothing;
        ReportData lines = m_run(request, *block.table, day ? of.days : std::nullopt);
        m_hasSales = m_hasSales || (day && lines.lineCount() > 0);
        return block.kind == BlockKind::Figure ? figureOf(lines, block.title) : std::move(lines);
    }

    [[nodiscard]] ReportData quotient(const BlockLayout& block, ReportData BlockLines::*of) const
    {
        const auto [first, second] = block.quotient;
        const ReportData& dividend = lines(first).*of;
        const ReportData& divisor = lines(second).*of;
        if (dividend.lineCount() == 0 || divisor.lineCount() == 0)
            return ReportData();
        ReportColumn column = dividend.columns().back();
        if (block.format.kind != FormatKind::Money && block.format.isNumber()) {
            column.leastDecimals = block.format.leastDecimals;
            column.mostDecimals = block.format.mostDecimals;
            column.dress.currency.clear();
        }
        return quotientOf(dividend, divisor, block.title, column);
    }

    [[nodiscard]] const BlockLines& lines(int block) const
    {
        return m_lines.at(static_cast<std::size_t>(block) - 1);
    }

    /// The lines of the block itself are the last ones.
    [[nodiscard]] ReportData tableOf(const BlockLayout& block) const
    {
        const BlockLines& own = block.of == 0 ? m_lines.back() : lines(block.of);
        switch (block.kind) {
        case BlockKind::Figure:
            return own.both;
        case BlockKind::HeatMap:
            return weekTable(own.now, m_frame.heading.from, m_frame.heading.to);
        case BlockKind::Days:
            return daysTable(m_frame.now.days ? m_frame.now.days->missing : std::vector<QDate>());
        default:
            return blockTable(own.both, block);
        }
    }

    [[nodiscard]] ReportData together(const std::vector<ReportData>& tables) const
    {
        SummaryLines all(tables);
        std::vector<ReportBlock> blocks;
        for (std::size_t i = 0; i < tables.size(); ++i) {
            const BlockLayout& block = m_layout.blocks[i];
            const qsizetype first = all.add(i, block.title, block.kind != BlockKind::Figure);
            blocks.push_back({block.title, block.kind, block.place, pageTable(tables[i]), first});
        }
        ReportData data = all.taken();
        data.blocks = std::move(blocks);
        return data;
    }

    const ReportRequest& m_request;
    const ReportLayout& m_layout;
    const SummaryFrame& m_frame;
    const LayoutRunner& m_run;
    std::vector<BlockLines> m_lines;
    bool m_hasSales = false;
};

} // namespace

ReportData runSummary(const ReportRequest& request, const ReportLayout& layout, const SummaryFrame& frame,
                      const LayoutRunner& run)
{
    return Summary(request, layout, frame, run).make();
}

} // namespace norvane::reports
