// The steps of a collection as a table, and the run over them; see CollectionRun.h.
#include "sales/CollectionRun.h"

#include "base/SharedRoutines.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "platform/ChildProcess.h"
#include "sales/PollImport.h"
#include "sales/PollStamp.h"

#include <QDate>
#include <QScopeGuard>

#include <algorithm>

namespace norvane::sales
{
namespace
{

/// The reports in the order in which they are collected and made into text.
constexpr int reports[] = {190, 191, 192, 194, 218};

/// Results of the consolidation that stand for sales already consolidated and waiting: they are collected
/// now.
constexpr int waitingResults[] = {-13, -14};

bool waits(int result)
{
    return std::find(std::begin(waitingResults), std::end(waitingResults), result) !=
           std::end(waitingResults);
}

} // namespace

/// One run of the transfer tool.
struct CollectionRun::ToolStep {
    const char* statusText; ///< nullptr leaves the former step's text standing
    QString (*line)(const link::LinkSettings& link, const QString& suffix);
    const char* suffix;
    bool passesWaiting; ///< whether sales that wait from an earlier run are as good as success
};

// clang-format off
const CollectionRun::ToolStep CollectionRun::stepsAheadOfImport[] = {
    {"Get Memory",           link::salesOpeningLine, link::memorySuffix,            false},
    {nullptr,                link::salesOpeningLine, link::openingSuffix,           false},
    {"Consolidate Reports",  link::salesLine,
     " P0001010100010000000000000000000000000000000000000000000100 -Z",            true},
    {"Collect Report Files", link::salesLine,        " -P 190 191 192 194 218",     false},
};
const CollectionRun::ToolStep CollectionRun::clearing =
    {"Clear Data at ECR",    link::salesLine,        " -C",                         false};
// clang-format on

CollectionRun::CollectionRun(const ApplicationValues& values, CollectionOutside outside)
    : m_values(values), m_outside(std::move(outside))
{
}

void CollectionRun::collect()
{
    // Asked for what it leaves behind: poll194.dll exists from now on, empty if need be.
    (void)ReadPoll194Stamp(m_values);
    m_link = link::readLinkSettings(m_values);
    m_left = false;
    m_dialResult = m_outside.connectLink(m_link);
    if (!m_outside.run.goOn()) {
        // Who has left during the dialling has hung up already.
        return;
    }
    std::optional<int> failed;
    {
        // Also when a failure ends the run: a call that nobody hangs up costs the shop money.
        const auto hangUp = qScopeGuard([this] { m_outside.disconnectLink(); });
        failed = failedResult();
    }
    if (failed) {
        m_outside.run.boxes.message(link::resultText(*failed, m_dialResult),
                                    QStringLiteral("Communications Error"));
    }
}

/// All steps. @return the result that stopped them, nothing when they went through or the user left.
std::optional<int> CollectionRun::failedResult()
{
    if (m_dialResult == link::modemFailed) {
        // No step has a result yet.
        return 0;
    }
    for (const ToolStep& step : stepsAheadOfImport) {
        if (const auto failed = runStep(step); failed || m_left) {
            return failed;
        }
    }
    m_outside.run.showStep(QStringLiteral("Parse data...."));
    if (sendsDescriptions()) {
        return link::descriptionsPolled;
    }
    convertReports();
    importReports();
    // Nothing but a failure may part the import from the clearing: a repeat would add the same sales again.
    if (const auto failed = runStep(clearing)) {
        return failed;
    }
    m_outside.run.showStep(QStringLiteral("Communications Successful...."));
    return std::nullopt;
}

std::optional<int> CollectionRun::runStep(const ToolStep& step)
{
    if (&step != &clearing && !m_outside.run.goOn()) {
        m_left = true;
        return std::nullopt;
    }
    if (step.statusText != nullptr) {
        m_outside.run.showStep(QLatin1String(step.statusText));
    }
    runTool(step.line(m_link, QLatin1String(step.suffix)));
    const int result = link::resultNumber(m_outside.run.readStatus());
    const bool succeeded = result == 0 || (step.passesWaiting && waits(result));
    return succeeded ? std::nullopt : std::optional(result);
}

/// By the stamp of the PLU report: such records hold a text that no layout has a place for.
bool CollectionRun::sendsDescriptions() const
{
    const QString stamp = ReadPoll194Stamp(m_values).trimmed();
    return stamp.endsWith(QLatin1Char('3')) || stamp.endsWith(QLatin1Char('2'));
}

/// Nobody looks at how a conversion ended: a former text that is left standing is imported as it is.
void CollectionRun::convertReports()
{
    const QString model = GetModelCode(m_values);
    for (const int report : reports) {
        runTool(QStringLiteral("convert w%1 fpoll%2.dll tPOLL%2.txt S%2").arg(model).arg(report));
    }
}

void CollectionRun::importReports() const
{
    // One day for all reports, also when the imports run across midnight.
    const QDate collected = QDate::currentDate();
    for (const PollFile& file : pollFiles()) {
        importPollFile(file, m_values, collected);
    }
}

void CollectionRun::runTool(const QString& commandLine)
{
    if (!m_outside.run.runAndWait(commandLine)) {
        m_outside.run.showNotice(
            QStringLiteral("The program %1 was not found.").arg(commandWords(commandLine).value(0)));
    }
}

} // namespace norvane::sales
