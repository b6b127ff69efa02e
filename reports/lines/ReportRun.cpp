// Makes a report's lines from its layout; see ReportRun.h.
#include "reports/lines/ReportRun.h"

#include "platform/RuntimeFailure.h"
#include "reports/formula/ExactNumbers.h"
#include "reports/formula/SelectionFormula.h"
#include "reports/lines/ComparedReport.h"
#include "reports/lines/DayFiller.h"
#include "reports/lines/LayoutReader.h"
#include "reports/lines/LineBuilder.h"
#include "reports/lines/LineFilters.h"
#include "reports/lines/ReportQuery.h"
#include "reports/lines/SummaryRun.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// Columns that are wider than this together do not fit an upright sheet.
constexpr paper::Length uprightWidth = paper::millimetres(190);
/// Characters of a formula in the heading, so that room is left for the lines.
constexpr qsizetype longestShownFormula = 200;

QString shortened(const QString& formula)
{
    return formula.size() <= longestShownFormula ? formula : formula.left(longestShownFormula) + u"..."_s;
}

Period otherPeriod(const ReportRequest& request, const Period& period)
{
    return request.comparedWith == ComparedWith::YearEarlier ? yearEarlier(period) : periodBefore(period);
}

QString uncollectedText(std::size_t days)
{
    return days == 1 ? u"1 day without a collection"_s : u"%1 days without a collection"_s.arg(days);
}

class Run
{
public:
    Run(const ReportRequest& request, ReportLayout layout, const KeepGoing& keepGoing)
        : m_keepGoing(keepGoing), m_request(request), m_layout(std::move(layout)),
          m_query(request, m_layout, keepGoing)
    {
        // An article may be in another class in the other period, and a line is in one place only.
        if (m_layout.classes && request.comparedWith != ComparedWith::Nothing)
            m_layout.classes->heading.clear();
    }

    ReportData make()
    {
        select();
        const MoneyFormat money = m_query.moneyFormat();
        setMoney(money);
        m_query.readNames(money);
        ReportData data(columns());
        ChartBuilder charts(m_layout);
        if (m_period && !m_days)
            m_days = m_query.salesDays(*m_period);
        addLines(data, charts);
        addCharts(data, charts, money);
        setHeading(data.heading);
        if (data.lineCount() == 0)
            data.heading.notice = notice();
        setPage(data);
        if (m_layout.link)
            data.link = linkOf(m_layout, m_request.filters);
        return data;
    }
    /// The days of the period, where they are known before make().
    void setDays(const std::optional<SalesDays>& days) { m_days = days; }
    [[nodiscard]] bool hasComparedColumn() const
    {
        return std::ranges::any_of(m_layout.columns,
                                   [](const ColumnLayout& column) { return column.column.isCompared; });
    }
    /// What make() has made beside the other period of the request.
    ReportData compared(const ReportData& data);
    /// Adds the days without a collection below all lines, unless the period is one day or ends today.
    void listMissing(ReportData& data) const;
    /// Of a summary, whose blocks are made by runs of their own. @throws ReportError for a selection that is
    /// more or less than a period or nothing.
    SummaryFrame frame();

private:
    void select();
    void setMoney(const MoneyFormat& money);
    [[nodiscard]] std::vector<ReportColumn> columns() const;
    void addLines(ReportData& data, ChartBuilder& charts);
    [[nodiscard]] int collectedDays() const;
    void addWholeLines(ReportData& data, ChartBuilder& charts);
    void addCharts(ReportData& data, ChartBuilder& charts, const MoneyFormat& money);
    void runChart(ChartPoints& points);
    void setHeading(ReportHeading& heading) const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString notice() const;
    void setPage(ReportData& data) const;
    [[nodiscard]] Period otherPeriod() const;

    const KeepGoing& m_keepGoing;
    const ReportRequest& m_request;
    ReportLayout m_layout;
    ReportQuery m_query;
    std::optional<Period> m_period;
    bool m_isOnlyPeriod = true;      ///< the selection asks for days alone, or for nothing
    std::optional<SalesDays> m_days; ///< of the period
    bool m_lacksChart = false;       ///< one has a value that is too large to draw
    QStringList m_otherTables;
};

void Run::select()
{
    const QDate today = m_request.now.date();
    try {
        const auto whole = parseSelection(m_request.selectionFormula, today);
        const auto reads = [this](const store::TableDefinition& table) {
            return m_layout.reads(table);
        };
        const auto condition = restrictedTo(whole, reads, m_otherTables);
        if (const auto day = m_layout.source.day()) {
            m_period = periodOf(condition, *day);
            m_isOnlyPeriod = condition.isAlwaysTrue() || isOnlyPeriod(condition, *day);
        } else {
            m_isOnlyPeriod = condition.isAlwaysTrue();
        }
        addFilters(m_layout, m_request.filters, m_otherTables);
        m_query.select(condition, today);
    } catch (const FormulaError& error) {
        throw ReportError(u"%1: mistake in the selection formula, %2."_s.arg(m_layout.path, error.text()));
    }
}

void Run::setMoney(const MoneyFormat& money)
{
    for (auto& layout : m_layout.columns) {
        layout.column.dress.isGrouped = layout.format.isGrouped();
        if (layout.format.kind != FormatKind::Money)
            continue;
        layout.column.leastDecimals = layout.column.mostDecimals = money.decimals;
        layout.column.dress.currency = money.currency;
    }
}

std::vector<ReportColumn> Run::columns() const
{
    std::vector<ReportColumn> columns;
    for (const auto& layout : m_layout.columns)
        columns.push_back(layout.column);
    return columns;
}

void Run::addLines(ReportData& data, ChartBuilder& charts)
{
    if (m_layout.needsWhole())
        return addWholeLines(data, charts);
    LineBuilder builder(m_layout, data, charts, {}, collectedDays());
    m_query.run(m_layout.source, [&builder](const LineFields& fields) { builder.add(fields); });
    builder.finish();
}

/// @return 0 where no days can be counted.
int Run::collectedDays() const
{
    if (!m_days)
        return 0;
    const qint64 days = m_days->first.daysTo(m_days->last) + 1;
    return static_cast<int>(days) - static_cast<int>(m_days->missing.size());
}

/// Shares of the whole are known only when all lines are read, so the lines are kept until then.
void Run::addWholeLines(ReportData& data, ChartBuilder& charts)
{
    std::vector<LineFields> lines;
    LineNumbers numbers(m_layout);
    SlotTotals totals(m_layout.source.fields.size());
    m_query.run(m_layout.source, [&](const LineFields& fields) {
        numbers.read(fields);
        totals.add(numbers.numbers());
        if (m_layout.showsZeroLines || !numbers.areZero())
            lines.push_back(fields);
    });
    const auto ranks = m_layout.classes ? rankLines(m_layout, lines) : std::vector<LineRank>(lines.size());
    LineBuilder builder(m_layout, data, charts, totals.texts(), collectedDays());
    for (std::size_t i = 0; i < lines.size(); ++i)
        builder.add(lines[i], ranks[i]);
    builder.finish();
}

void Run::addCharts(ReportData& data, ChartBuilder& charts, const MoneyFormat& money)
{
    for (auto& points : charts.charts()) {
        if (points.layout().from == PointSource::Query)
            runChart(points);
        auto chart = points.finished(money);
        m_lacksChart = m_lacksChart || points.isTooLarge();
        if (!chart.points.empty())
            data.charts.push_back(std::move(chart));
    }
}

void Run::runChart(ChartPoints& points)
{
    LineSource source = *points.layout().query;
    const auto key = static_cast<std::size_t>(std::ranges::find(source.fields, source.keys.front()) -
                                              source.fields.begin());
    const bool isOverDays = key < source.fields.size() && source.day() == source.keys.front();
    DayFiller filler(points, key, source.fields.size());
    std::vector<std::string> numbers(source.fields.size());
    bool hasRows = false;
    if (isOverDays && m_days) {
        filler.begin(m_days->first);
        source.isByMonth = points.layout().kind == ChartKind::Course && points.layout().value->addsUp() &&
                           m_days->first.daysTo(m_days->last) >= qint64{mostDaysOfCourse};
    }
    m_query.run(source, [&](const LineFields& fields) {
        std::ranges::transform(fields, numbers.begin(), exactText);
        const QDate day = isOverDays ? fields[key].toDate() : QDate();
        hasRows = true;
        filler.fillUpTo(day);
        points.add(textOf(points.layout().label, fields), {numbers, {}}, day);
    });
    if (isOverDays && m_days && hasRows)
        filler.fillUpTo(m_days->last.addDays(1));
}

/// The report's title is the heading of the pages, and the title of the window if none is set for it. A
/// window's title is never the heading of the pages.
void Run::setHeading(ReportHeading& heading) const
{
    heading.title = m_request.reportTitle.isEmpty() ? m_layout.title : m_request.reportTitle;
    heading.windowTitle = m_request.windowTitle.isEmpty() ? heading.title : m_request.windowTitle;
    heading.subtitle = subtitle();
    heading.customer = m_request.customer;
    heading.printed = m_request.now;
    if (m_period) {
        heading.from = m_period->from;
        heading.to = m_period->to;
    }
}

QString Run::subtitle() const
{
    QStringList parts;
    for (const LineFilter& filter : m_request.filters)
        parts.append(filter.name);
    if (m_period)
        parts.append(m_period->text());
    if (m_days && !m_days->missing.empty() && m_period->from != m_period->to)
        parts.append(uncollectedText(m_days->missing.size()));
    if (!m_isOnlyPeriod)
        parts.append(u"selected by %1"_s.arg(shortened(m_request.selectionFormula)));
    if (!m_otherTables.isEmpty())
        parts.append(u"the selection names another table (%1)"_s.arg(m_otherTables.join(u", "_s)));
    if (m_lacksChart)
        parts.append(u"a chart is left out because a sum has more than 18 digits"_s);
    QString text = parts.join(u"; "_s);
    if (!text.isEmpty())
        text.front() = text.front().toUpper();
    return text;
}

QString Run::notice() const
{
    const QString nothing = u"There is nothing to show"_s;
    return m_period ? u"%1: %2."_s.arg(nothing, m_period->text()) : nothing + u'.';
}

void Run::setPage(ReportData& data) const
{
    paper::Length width;
    for (const auto& column : data.columns())
        width = width + column.width;
    const bool isAutomatic = m_layout.orientation == Orientation::Automatic;
    data.page = {m_layout.orientation == Orientation::Landscape || (isAutomatic && width > uprightWidth),
                 isAutomatic};
}

Period Run::otherPeriod() const
{
    const bool isPeriod = m_period && !m_period->isOpen() && m_isOnlyPeriod;
    const bool hasNumber = hasComparedColumn();
    if (!isPeriod || !hasNumber) {
        throw ReportError(u"%1 cannot be compared with another period: %2."_s.arg(
            m_layout.path,
            hasNumber ? u"its selection is not a period"_s : u"no column of the layout has Compare=YES"_s));
    }
    return reports::otherPeriod(m_request, *m_period);
}

ReportData Run::compared(const ReportData& data)
{
    const Period period = otherPeriod();
    ReportRequest request = m_request;
    request.selectionFormula = formulaOf(m_layout.source.day()->text(), period);
    request.filters.clear(); // the layout has them already
    Run other(request, m_layout, m_keepGoing);
    const ReportData before = other.make();
    ReportData both =
        comparedReport(data, before, m_layout.classes ? OtherLines::Last : OtherLines::ByFirstColumn);
    both.heading.subtitle += u"; before: %1"_s.arg(before.heading.subtitle);
    if (both.lineCount() > 0)
        both.heading.notice.clear();
    setPage(both);
    return both;
}

void Run::listMissing(ReportData& data) const
{
    constexpr std::size_t mostListed = 40;
    const bool isListed = m_days && !m_days->missing.empty() && data.lineCount() > 0;
    if (!isListed || m_period->from == m_period->to || m_period->isToDate())
        return;
    data.addLine(LineKind::Remark, {u"Without a collection: "_s + textOfDays(m_days->missing, mostListed)});
}

SummaryFrame Run::frame()
{
    select();
    if (!m_isOnlyPeriod || (m_period && m_period->isOpen()))
        throw ReportError(u"%1 is a summary of a period, and its selection is none."_s.arg(m_layout.path));
    SummaryFrame frame;
    if (m_period)
        m_days = m_query.salesDays(*m_period);
    frame.now = {m_period, m_days};
    setHeading(frame.heading);
    frame.heading.notice = notice();
    return frame;
}

/// A summary of all days is compared with nothing.
SummaryFrame frameOf(const ReportRequest& request, const ReportLayout& layout, const KeepGoing& keepGoing)
{
    SummaryFrame frame = Run(request, layout, keepGoing).frame();
    if (request.comparedWith == ComparedWith::Nothing || !frame.now.period)
        return frame;
    ReportRequest other = request;
    other.selectionFormula = formulaOf(layout.source.day()->text(), otherPeriod(request, *frame.now.period));
    const SummaryFrame before = Run(other, layout, keepGoing).frame();
    frame.before = before.now;
    frame.heading.subtitle += u"; before: %1"_s.arg(before.heading.subtitle);
    return frame;
}

ReportData summary(const ReportRequest& request, const ReportLayout& layout, const KeepGoing& keepGoing)
{
    return runSummary(request, layout, frameOf(request, layout, keepGoing),
                      [&keepGoing](const ReportRequest& of, const ReportLayout& block, const auto& days) {
                          Run run(of, block, keepGoing);
                          run.setDays(days);
                          return run.make();
                      });
}

} // namespace

ReportData runReport(const ReportRequest& request, const KeepGoing& keepGoing)
{
    try {
        ReportLayout layout = readLayout(request.reportFile);
        if (!layout.blocks.empty())
            return summary(request, layout, keepGoing);
        Run run(request, std::move(layout), keepGoing);
        ReportData data = run.make();
        // A link from a compared report may lead to one that has nothing to compare.
        const bool isAlone = request.comparedWith == ComparedWith::Nothing ||
                             (!request.filters.empty() && !run.hasComparedColumn());
        if (!isAlone)
            data = run.compared(data);
        run.listMissing(data);
        return data;
    } catch (const RuntimeFailure& failure) {
        throw ReportError(u"%1: %2"_s.arg(request.dataFile, failure.text()));
    }
}

} // namespace norvane::reports
