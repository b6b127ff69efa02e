// The steps of a collection as a table, and the run over them; see CollectionRun.h.
#include "sales/CollectionRun.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "customers/CustomerLog.h"
#include "customers/DataOwner.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "sales/PollImport.h"
#include "sales/PollStamp.h"
#include "sales/UnclearedSales.h"

#include <QLocale>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// The reports in the order of collection.
constexpr int reports[] = {190, 191, 192, 194, 218};

/// Results of the consolidation: sales of an earlier consolidation wait to be collected.
constexpr int waitingResults[] = {-13, -14};

constexpr const char* asIfAnswered = "The collection would go on as if a register had answered.";
constexpr const char* asIfConsolidated =
    "The collection would go on as if the registers had made up their reports.";
constexpr const char* olderSales = "Older sales would be stored as those of today, and the registers would "
                                   "then be cleared: what they sold would be lost.";
constexpr const char* asIfFormerCleared =
    "The collection would go on as if the registers were cleared. The sales that they still hold would be "
    "counted twice.";
constexpr const char* asIfCleared = "The collection would end as successful, though the registers may hold "
                                    "the sales still and send them again.";

QString reportFile(int report)
{
    return u"poll%1.dll"_s.arg(report);
}

QStringList reportNames()
{
    QStringList names;
    for (const int report : reports)
        names << reportFile(report);
    return names;
}

/// The texts by the names under which the import reads them.
QStringList textNames()
{
    QStringList names;
    for (const PollFile& file : pollFiles())
        names << QString::fromLatin1(file.name);
    return names;
}

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
    bool passesWaiting;      ///< whether sales waiting from an earlier run count as success
    bool leavesReports;      ///< whether it has to leave the five reports
    const char* consequence; ///< for the user: what comes of using what an earlier run left
};

// clang-format off
const CollectionRun::ToolStep CollectionRun::stepsAheadOfImport[] = {
    {"Get Memory",           link::salesOpeningLine, link::memorySuffix,            false, false, asIfAnswered},
    {nullptr,                link::salesOpeningLine, link::openingSuffix,           false, false, asIfAnswered},
    {"Consolidate Reports",  link::salesLine,
     " P0001010100010000000000000000000000000000000000000000000100 -Z"_L1,         true,  false, asIfConsolidated},
    {"Collect Report Files", link::salesLine,        " -P 190 191 192 194 218"_L1,  false, true,  olderSales},
};
const CollectionRun::ToolStep CollectionRun::clearingFormer =
    {"Clear Data at ECR",    link::salesLine,        " -C"_L1,                      false, false, asIfFormerCleared};
const CollectionRun::ToolStep CollectionRun::clearing =
    {"Clear Data at ECR",    link::salesLine,        " -C"_L1,                      false, false, asIfCleared};
// clang-format on

CollectionRun::CollectionRun(const ApplicationValues& values, CollectionOutside outside)
    : m_values(values), m_outside(std::move(outside))
{
}

bool CollectionRun::collect(ClearFirst clearFirst)
{
    // Called because it creates an empty poll194.dll if there is none.
    (void)ReadPoll194Stamp(m_values);
    m_link = link::readLinkSettings(m_values);
    m_isStored = m_isCleared = false;
    m_rowsStored = 0;
    m_origin = ReportOrigin::ThisRun;
    loggedCall([&] {
        if (mayBegin(clearFirst))
            call();
    });
    while (mayClearAgain())
        loggedCall([this] { call(); });
    return m_isCleared;
}

/// Asks about sales that an earlier collection stored and did not clear at all registers.
bool CollectionRun::mayBegin(ClearFirst clearFirst)
{
    m_tasks = {Task::Collect, Task::Clear};
    m_place = u"the question about sales that were not cleared"_s;
    const auto former = unclearedCollection(m_values);
    if (!former)
        return true;
    // The step of the run before would look like one of this run.
    m_outside.run.showStep({});
    Boxes& boxes = m_outside.run.boxes;
    if (mayBeCleared(former) &&
        (clearFirst == ClearFirst::Yes || askBeforeLoss(boxes, clearFirstQuestion(*former)))) {
        m_tasks.prepend(Task::ClearFormer);
        return true;
    }
    const bool begins = askBeforeLoss(boxes, countTwiceQuestion(*former));
    if (!begins)
        link::tellEndedByAnswer(m_outside.run);
    return begins;
}

/// One call with its line in the log, and then the box about a step that failed.
void CollectionRun::loggedCall(const std::function<void()>& makeCall)
{
    m_ended = false;
    m_failed.reset();
    logCall(makeCall);
    if (m_failed) {
        m_outside.run.explain(failedStep());
        m_outside.run.beforeLastBox();
        m_outside.run.boxes.message(link::resultText(*m_failed, m_dialResult), u"Communications Error"_s);
    }
}

link::FailedStep CollectionRun::failedStep() const
{
    const bool clears = !m_tasks.isEmpty() && m_tasks.front() != Task::Collect;
    const QString next = clears
                             ? u"The sales are stored; the registers are still to be cleared."_s
                             : u"Then collect again: nothing was stored, and the registers keep the sales."_s;
    return {m_dialResult == link::modemFailed ? m_dialResult : *m_failed, m_place, m_isInTurn, next};
}

void CollectionRun::logCall(const std::function<void()>& makeCall)
{
    customers::LoggedWork work(customers::ownerOfData(m_values).customerPath, u"collection"_s,
                               link::registersInWords(m_link) + customers::ofChosenCustomer(m_values),
                               m_outside.run.millisecondsOpen);
    work.during(makeCall, [this](const QString& failure) {
        // What was read before the failure may have been kept.
        return stoppedText(link::withLastWords(m_outside.run, failure), u"the registers were not cleared"_s);
    });
    m_stopped = m_isCleared ? QString() : stoppedText(whyStopped(), u"nothing stored"_s);
    work.setResult(m_isCleared ? QString(customers::completeResult) : m_stopped);
    if (m_isCleared) {
        m_result =
            u"%1 rows of sales stored, %2"_s.arg(QLocale().toString(m_rowsStored), work.secondsInWords());
    }
}

QString CollectionRun::whyStopped() const
{
    if (m_dialResult == link::modemFailed)
        return link::resultInWords(m_dialResult);
    if (!m_failed && hasLeft())
        return u"left by the user"_s;
    return link::withLastWords(m_outside.run, m_failed ? link::resultInWords(*m_failed) : u"answered No"_s);
}

/// "stopped at Consolidate Reports: result 8: Time Out (register 2 does not answer); nothing stored". @p
/// beforeStoring ends the text of a run that has not stored the reports.
QString CollectionRun::stoppedText(const QString& reason, const QString& beforeStoring) const
{
    const QString stored = u"the sales are stored; still to do: clear the registers"_s;
    return u"stopped at %1: %2; %3"_s.arg(m_place, reason, m_isStored ? stored : beforeStoring);
}

/// Asks after a clear that failed. A user who has left is asked at the next collection. While the question
/// waits other runs may start, and one of them may have collected what a clear would lose.
bool CollectionRun::mayClearAgain() const
{
    const bool clears = !m_tasks.isEmpty() && m_tasks.front() != Task::Collect;
    if (!clears || hasLeft() || !mayBeCleared(unclearedCollection(m_values)))
        return false;
    m_outside.run.beforeLastBox();
    if (!askBeforeLoss(m_outside.run.boxes, clearAgainQuestion()) || !m_outside.run.beginAgain())
        return false;
    const bool isStillSafe = mayBeCleared(unclearedCollection(m_values));
    if (!isStillSafe)
        m_outside.run.showNotice(u"Another run was at work since. Nothing was cleared."_s);
    return isStillSafe;
}

void CollectionRun::call()
{
    m_place = u"the call"_s;
    m_isInTurn = false;
    m_dialResult = m_outside.connectLink(m_link);
    // A user who left while the modem dialled has hung up already.
    if (hasLeft())
        return;
    m_failed = resultOfCall();
}

std::optional<int> CollectionRun::resultOfCall()
{
    // Also when a failure ends the run: an open call costs the shop money.
    const auto hangUp = qScopeGuard([this] { m_outside.disconnectLink(); });
    return failedResult();
}

/// All tasks that are left. @return the result that stopped them, nothing when they went through or the user
/// left.
std::optional<int> CollectionRun::failedResult()
{
    // No step has a result yet.
    if (m_dialResult == link::modemFailed)
        return 0;
    while (!m_tasks.isEmpty()) {
        if (const auto failed = carryOut(m_tasks.front()); failed || m_ended)
            return failed;
        m_tasks.removeFirst();
    }
    m_outside.run.showStep(u"Communications Successful...."_s);
    return std::nullopt;
}

std::optional<int> CollectionRun::carryOut(Task task)
{
    if (task != Task::Collect)
        return clearRegisters(task == Task::Clear ? clearing : clearingFormer);
    const auto failed = fetchReports();
    return failed || m_ended ? failed : storeSales();
}

std::optional<int> CollectionRun::storeSales()
{
    m_ended = hasLeft();
    if (m_ended)
        return std::nullopt;
    m_outside.run.showStep(u"Parse data...."_s);
    m_place = u"Parse data"_s;
    if (sendsDescriptions())
        return link::descriptionsPolled;
    m_ended = !convertReports();
    if (m_ended)
        return std::nullopt;
    m_isStored = importReports() != Stored::Refused;
    m_ended = !m_isStored;
    if (m_ended)
        link::tellEndedByAnswer(m_outside.run);
    return std::nullopt;
}

std::optional<int> CollectionRun::fetchReports()
{
    for (const ToolStep& step : stepsAheadOfImport) {
        if (const auto failed = runStep(step); failed || m_ended)
            return failed;
    }
    return std::nullopt;
}

/// After an import directly: until the registers are cleared, another import would add the same sales again.
std::optional<int> CollectionRun::clearRegisters(const ToolStep& step)
{
    const auto failed = runStep(step);
    if (!failed && m_stepIsComplete) {
        noteCleared(m_values);
    } else {
        noteClearFailed(m_values, failed);
    }
    m_isCleared = m_isStored && !failed && !m_ended;
    return failed;
}

std::optional<int> CollectionRun::runStep(const ToolStep& step)
{
    m_stepIsComplete = false;
    if (&step != &clearing && hasLeft()) {
        m_ended = true;
        return std::nullopt;
    }
    m_isInTurn = step.line == link::salesLine && m_link.registers() > 1;
    m_place = step.statusText != nullptr ? QString::fromLatin1(step.statusText) : u"the opening exchange"_s;
    if (step.passesWaiting)
        noteNewerSales(m_values);
    if (step.statusText != nullptr)
        m_outside.run.showStep(m_place);
    link::WatchedStep watched(m_outside.run, (step.leavesReports ? reportNames() : QStringList()) +
                                                 QStringList{link::statusFile});
    watched.run(step.line(m_link, step.suffix));
    m_stepIsComplete = watched.isComplete();
    const int result = link::resultNumber(m_outside.run.readStatus());
    if (result != 0 && !(step.passesWaiting && waits(result)))
        return result;
    m_ended = !mayUse(watched, step.leavesReports, QLatin1StringView(step.consequence));
    return std::nullopt;
}

/// @p hasReports is true for a step that writes the reports or their texts.
bool CollectionRun::mayUse(const link::WatchedStep& step, bool hasReports, const QString& consequence)
{
    if (hasReports && !step.isComplete())
        m_origin = ReportOrigin::InDoubt;
    return step.mayGoOn(consequence);
}

/// Whether the records of the PLU report have descriptions, according to its stamp. No layout has a column
/// for them.
bool CollectionRun::sendsDescriptions() const
{
    const QString stamp = ReadPoll194Stamp(m_values).trimmed();
    return stamp.endsWith(u'3') || stamp.endsWith(u'2');
}

/// Makes all five texts first, then asks once about those that failed. @return false if the user has left or
/// rejected older ones.
bool CollectionRun::convertReports()
{
    const QString model = GetModelCode(m_values);
    link::WatchedStep step(m_outside.run, textNames());
    for (const int report : reports) {
        if (hasLeft())
            return false;
        step.run(u"convert w%1 f%2 tPOLL%3.txt S%3"_s.arg(model, reportFile(report)).arg(report));
    }
    return !hasLeft() && mayUse(step, true, QLatin1StringView(olderSales));
}

Stored CollectionRun::importReports()
{
    // One day for all reports, also when the imports run across midnight.
    m_bookedDay = m_outside.dayToBook();
    const auto [outcome, rows] = storeReports(m_values, m_outside.run.boxes, m_bookedDay, m_origin);
    m_rowsStored = rows;
    return outcome;
}

} // namespace norvane::sales
