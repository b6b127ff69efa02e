// The steps of a collection as a table, and the run over them; see CollectionRun.h.
#include "sales/CollectionRun.h"

#include "base/SharedRoutines.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "sales/PollImport.h"
#include "sales/PollStamp.h"

#include <QDate>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// The reports in the order in which they are collected and made into text.
constexpr int reports[] = {190, 191, 192, 194, 218};

/// Results of the consolidation that mean: sales were consolidated before and wait to be collected.
constexpr int waitingResults[] = {-13, -14};

bool waits(int result)
{
    return std::find(std::begin(waitingResults), std::end(waitingResults), result) !=
           std::end(waitingResults);
}

} // namespace

/// One run of the transfer tool.
struct CollectionRun::ToolStep {
    const char* statusText; ///< nullptr keeps the text of the step before
    QString (*line)(const link::LinkSettings& link, const QString& suffix);
    QLatin1StringView suffix;
    bool passesWaiting; ///< whether sales waiting from an earlier run count as success
};

// clang-format off
const CollectionRun::ToolStep CollectionRun::stepsAheadOfImport[] = {
    {"Get Memory",           link::salesOpeningLine, link::memorySuffix,            false},
    {nullptr,                link::salesOpeningLine, link::openingSuffix,           false},
    {"Consolidate Reports",  link::salesLine,
     " P0001010100010000000000000000000000000000000000000000000100 -Z"_L1,         true},
    {"Collect Report Files", link::salesLine,        " -P 190 191 192 194 218"_L1,  false},
};
const CollectionRun::ToolStep CollectionRun::clearing =
    {"Clear Data at ECR",    link::salesLine,        " -C"_L1,                      false};
// clang-format on

CollectionRun::CollectionRun(const ApplicationValues& values, CollectionOutside outside)
    : m_values(values), m_outside(std::move(outside))
{
}

void CollectionRun::collect()
{
    // Called because it makes an empty poll194.dll when there is none.
    (void)ReadPoll194Stamp(m_values);
    m_link = link::readLinkSettings(m_values);
    m_left = false;
    m_dialResult = m_outside.connectLink(m_link);
    // A user who left while the modem dialled has hung up already.
    if (!m_outside.run.goOn())
        return;
    if (const auto failed = resultOfCall())
        m_outside.run.boxes.message(link::resultText(*failed, m_dialResult), u"Communications Error"_s);
}

std::optional<int> CollectionRun::resultOfCall()
{
    // Also when a failure ends the run: an open call costs the shop money.
    const auto hangUp = qScopeGuard([this] { m_outside.disconnectLink(); });
    return failedResult();
}

/// All steps. @return the result that stopped them, nothing when they went through or the user left.
std::optional<int> CollectionRun::failedResult()
{
    // No step has a result yet.
    if (m_dialResult == link::modemFailed)
        return 0;
    if (const auto failed = fetchReports(); failed || m_left)
        return failed;
    m_outside.run.showStep(u"Parse data...."_s);
    if (sendsDescriptions())
        return link::descriptionsPolled;
    convertReports();
    importReports();
    return clearRegisters();
}

std::optional<int> CollectionRun::fetchReports()
{
    for (const ToolStep& step : stepsAheadOfImport) {
        if (const auto failed = runStep(step); failed || m_left)
            return failed;
    }
    return std::nullopt;
}

/// Follows the import at once: only a failure may come between, because a repeated import adds the same
/// sales again.
std::optional<int> CollectionRun::clearRegisters()
{
    const auto failed = runStep(clearing);
    if (!failed)
        m_outside.run.showStep(u"Communications Successful...."_s);
    return failed;
}

std::optional<int> CollectionRun::runStep(const ToolStep& step)
{
    if (&step != &clearing && !m_outside.run.goOn()) {
        m_left = true;
        return std::nullopt;
    }
    if (step.statusText != nullptr)
        m_outside.run.showStep(QLatin1String(step.statusText));
    link::runTool(m_outside.run, step.line(m_link, step.suffix));
    const int result = link::resultNumber(m_outside.run.readStatus());
    const bool succeeded = result == 0 || (step.passesWaiting && waits(result));
    return succeeded ? std::nullopt : std::optional(result);
}

/// Told by the stamp of the PLU report. No layout has a column for the descriptions in such records.
bool CollectionRun::sendsDescriptions() const
{
    const QString stamp = ReadPoll194Stamp(m_values).trimmed();
    return stamp.endsWith(u'3') || stamp.endsWith(u'2');
}

/// Nothing checks how a conversion ended: when it fails, an older text is imported as it is.
void CollectionRun::convertReports()
{
    const QString model = GetModelCode(m_values);
    for (const int report : reports)
        link::runTool(m_outside.run, u"convert w%1 fpoll%2.dll tPOLL%2.txt S%2"_s.arg(model).arg(report));
}

void CollectionRun::importReports() const
{
    // One day for all reports, also when the imports run across midnight.
    const QDate collected = QDate::currentDate();
    for (const PollFile& file : pollFiles())
        importPollFile(file, m_values, collected);
}

} // namespace norvane::sales
