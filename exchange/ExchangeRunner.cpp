// The upload and download sequences over their plans.
#include "exchange/ExchangeRunner.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "customers/DataOwner.h"
#include "customers/SafetyCopies.h"
#include "exchange/MovedFiles.h"
#include "exchange/PluPoints.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "link/RunNotes.h"
#include "records/MemoryFile.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

const QString memoryFile = u"MEM.dat"_s;

const QString oldResult = u"The exchange would go on as if a register had answered."_s;
const QString oldFileFetched =
    u"It would be taken as what the register sent, though it may be an old file or another customer's."_s;
const QString oldResultOfSend =
    u"An old result would count, and the file as sent, though the registers may not have it."_s;

} // namespace

ExchangeRunner::ExchangeRunner(const ApplicationValues& values, const link::LinkSettings& link,
                               TickBoxes& ticks, link::RunOutside outside)
    : m_values(values), m_link(link), m_ticks(ticks),
      m_outside(std::move(outside)), m_procedures{values, m_outside.boxes,
                                                  [this](const records::Conversion& conversion) {
                                                      return convert(conversion);
                                                  },
                                                  [this](int file, const std::function<void()>& commit) {
                                                      if (file == pluFile) {
                                                          storePlusWithoutPoints(m_values, commit);
                                                      } else {
                                                          commit();
                                                      }
                                                  }},
      m_keptFiles(values, m_outside), m_ledger(values), m_progress(values, m_outside.millisecondsOpen)
{
    m_procedures.recordRead = [this](const store::Recordset& record) {
        m_ledger.addRecord(record);
    };
    m_procedures.lineWritten = [this](std::string_view line) {
        m_ledger.addLine(line);
    };
}

bool ExchangeRunner::UploadData()
{
    const bool isComplete = loggedUpload();
    showLastBox();
    return isComplete;
}

bool ExchangeRunner::downloaddata()
{
    const bool isComplete = loggedDownload();
    showLastBox();
    return isComplete;
}

bool ExchangeRunner::loggedUpload()
{
    customers::LoggedWork work = logLine(Direction::Upload);
    const QString refusal = customers::refusalOfCopy(m_values, u"before upload"_s);
    if (!refusal.isEmpty()) {
        work.setResult(refusal);
        m_stopped = refusal;
        m_lacksCopy = true;
        m_lastBox = {refusal, pleaseCheck, BoxIcon::Exclamation};
        return false;
    }
    return logged(work, &ExchangeRunner::upload);
}

bool ExchangeRunner::loggedDownload()
{
    customers::LoggedWork work = logLine(Direction::Download);
    return logged(work, &ExchangeRunner::download);
}

/// An upload is logged with the customer whose tables it replaces. A download changes no table, but the
/// registers of the chosen customer.
customers::LoggedWork ExchangeRunner::logLine(Direction direction) const
{
    if (direction == Direction::Download) {
        return {m_values.customerPath, u"download"_s, link::registersInWords(m_link),
                m_outside.millisecondsOpen};
    }
    return {customers::ownerOfData(m_values).customerPath, u"upload"_s,
            u"register 1"_s + customers::ofChosenCustomer(m_values), m_outside.millisecondsOpen};
}

void ExchangeRunner::endWithoutCall(Direction direction)
{
    logFailedCall(direction, link::resultInWords(link::modemFailed));
    m_outside.explain(m_stop.failedStep(link::modemFailed, false));
}

void ExchangeRunner::logFailedCall(Direction direction, const QString& reason)
{
    m_stop.place = u"the call"_s;
    m_stopped = stoppedText(reason);
    logLine(direction).setResult(m_stopped);
}

/// After everything else: the box may stay open unattended.
void ExchangeRunner::showLastBox()
{
    if (m_lastBox.text.isEmpty())
        return;
    if (m_stop.result)
        m_outside.explain(m_stop.failedStep(*m_stop.result, isInTurn()));
    m_outside.beforeLastBox();
    m_outside.boxes.message(m_lastBox.text, m_lastBox.title, m_lastBox.icon);
}

/// Only the files of a send go to several registers.
bool ExchangeRunner::isInTurn() const
{
    return m_exchange.direction == Direction::Download && m_stop.box && m_link.registers() > 1;
}

bool ExchangeRunner::logged(customers::LoggedWork& work, bool (ExchangeRunner::*sequence)())
{
    const auto ended = qScopeGuard([this] {
        m_ledger.end();
        m_progress.end();
    });
    const bool isComplete = work.during(
        [&] { return (this->*sequence)(); },
        [this](const QString& failure) { return stoppedText(link::withLastWords(m_outside, failure)); });
    m_stopped = isComplete ? QString() : stoppedText(m_stop.reason(m_outside));
    work.setResult(isComplete ? QString(customers::completeResult) : m_stopped);
    const QString moved = movedFiles(m_filesMoved, m_exchange.direction, m_link);
    m_result = isComplete ? u"%1, %2"_s.arg(moved, work.secondsInWords()) : QString();
    return isComplete;
}

QString ExchangeRunner::stoppedText(const QString& reason) const
{
    return m_stop.inWords(reason, tickedBoxes(m_ticks));
}

bool ExchangeRunner::upload()
{
    begin(Direction::Upload);
    if (!open(u"Opening exchange"_s, link::uploadLine(m_link, link::openingSuffix)) ||
        !open(u"Memory allocation"_s, link::uploadLine(m_link, link::memorySuffix), {memoryFile})) {
        return false;
    }
    m_keptFiles.keep(memoryFile);
    return records::FileMemory(m_procedures) && moveBoxes(uploadPlan(), &ExchangeRunner::uploadRow);
}

bool ExchangeRunner::download()
{
    begin(Direction::Download);
    return open(u"Memory allocation"_s, link::downloadOpeningLine(m_link, link::memorySuffix),
                {memoryFile}) &&
           open(u"Opening exchange"_s, link::downloadOpeningLine(m_link, link::openingSuffix)) &&
           moveBoxes(downloadPlan(), &ExchangeRunner::downloadRow);
}

/// Stored from here on, so that an interrupted run is reported later. A run without boxes moves nothing, and
/// the boxes of the run before it are still to do.
void ExchangeRunner::begin(Direction direction)
{
    m_exchange = {direction, QDateTime::currentDateTime(), tickedBoxes(m_ticks)};
    if (!m_exchange.boxes.isEmpty())
        noteExchange(m_values, m_exchange);
    m_ledger.begin(direction, m_exchange.boxes, m_link.registers());
    m_progress.begin(direction, direction == Direction::Upload
                                    ? filesOfBoxes(uploadPlan(), m_exchange.boxes, hasSmartCards())
                                    : filesOfBoxes(downloadPlan(), m_exchange.boxes, hasSmartCards()));
}

void ExchangeRunner::noteBoxesLeft()
{
    const QList<int> left = tickedBoxes(m_ticks);
    if (left == m_exchange.boxes)
        return;
    m_exchange.boxes = left;
    noteExchange(m_values, m_exchange);
}

/// @return whether all ticked boxes moved.
template <typename Row>
bool ExchangeRunner::moveBoxes(std::span<const Row> plan, bool (ExchangeRunner::*moveRow)(const Row&))
{
    for (int box = 0; box < boxCount; ++box) {
        if (box == firstSmartCardBox)
            untickWithoutSmartCards();
        if (m_ticks.isTicked(box) && !moveBox(box, rowsOfBox(plan, box), moveRow))
            return false;
        noteBoxesLeft();
    }
    return true;
}

/// @return false when the run ends here, with the box still ticked.
template <typename Row>
bool ExchangeRunner::moveBox(int box, std::span<const Row> rows, bool (ExchangeRunner::*moveRow)(const Row&))
{
    m_stop.box = box;
    for (const Row& row : rows) {
        m_stop.place = u"file %1"_s.arg(row.file);
        if (!m_outside.goOn()) {
            m_stop.isLeft = true;
            return false;
        }
        m_outside.showProgress(m_progress.beginFile(row.file));
        if (!(this->*moveRow)(row))
            return false;
        m_progress.endFile();
    }
    m_stop.box.reset();
    m_ticks.setTicked(box, false);
    // Reloading or sending the PLUs clears their points, so these have to follow.
    if (box == pluBox)
        m_ticks.setTicked(pluPointsBox, true);
    return true;
}

bool ExchangeRunner::uploadRow(const UploadRow& row)
{
    showStep("Upload", row.box, row.file);
    m_ledger.beginFile(row.file);
    link::WatchedStep step(m_outside, {link::statusFile, dataFile(row.file)});
    step.run(link::uploadLine(m_link, QLatin1String(row.literal)));
    if (!succeeded() || !mayGoOn(step, oldFileFetched))
        return false;
    if (records::hasImporter(row.file) && !importFile(row.file))
        return false;
    m_keptFiles.keep(dataFile(row.file));
    m_ledger.fetched();
    ++m_filesMoved;
    return true;
}

bool ExchangeRunner::importFile(int file)
{
    const records::Imported imported = records::importRegisterFile(file, m_procedures);
    if (imported == records::Imported::TooFew)
        link::tellEndedByAnswer(m_outside);
    if (imported != records::Imported::File)
        return false;
    if (file == pluFile) {
        notePluCount();
    } else if (file == pluPointsFile) {
        notePluPoints(m_values, PluPoints::Fetched);
    }
    return true;
}

bool ExchangeRunner::downloadRow(const DownloadRow& row)
{
    showStep("Download", row.box, row.file);
    m_ledger.beginFile(row.file);
    if (!mayTouchPoints(row.file))
        return false;
    const bool fromTable = records::hasExporter(row.file);
    if (!fromTable)
        return !m_keptFiles.takeForSend(row) || sendFile(row, fromTable);
    switch (records::exportRegisterFile(row.file, m_procedures)) {
    case records::Exported::Nothing:
        return true;
    case records::Exported::File:
        return sendFile(row, fromTable);
    case records::Exported::Refused:
        link::tellEndedByAnswer(m_outside);
        break;
    }
    return false;
}

bool ExchangeRunner::sendFile(const DownloadRow& row, bool fromTable)
{
    m_ledger.sending();
    link::WatchedStep step(m_outside, {link::statusFile});
    step.run(link::downloadLine(m_link, QLatin1String(row.literal)));
    if (fromTable)
        m_keptFiles.copyAfterSend(row);
    if (!succeeded() || !mayGoOn(step, oldResultOfSend))
        return false;
    m_ledger.sent();
    ++m_filesMoved;
    if (row.file == pluFile)
        notePluCount();
    // Not before: registers that the files did not reach still hold their points.
    if (m_givesUpPoints)
        notePluPoints(m_values, PluPoints::Unknown);
    return true;
}

/// Sending the PLUs clears their points at the registers, and the points sent next are those of the table:
/// none, if they were not fetched after the PLUs.
bool ExchangeRunner::mayTouchPoints(int file)
{
    const bool clearsPoints = file == pluFile || file == pluPointsFile;
    if (!clearsPoints || m_givesUpPoints || !hasSmartCards() || !pluPointsWait(m_values))
        return true;
    if (!mayLosePoints(m_outside.boxes)) {
        link::tellEndedByAnswer(m_outside);
        return false;
    }
    m_givesUpPoints = true;
    return true;
}

void ExchangeRunner::notePluCount()
{
    store::Database database(m_values.databasePath);
    link::notePluCountOfRegisters(m_values, database.openTable(u"PLUDATA"_s).recordCount());
}

bool ExchangeRunner::convert(const records::Conversion& conversion)
{
    link::WatchedStep step(m_outside, {conversion.target});
    step.run(conversion.commandLine);
    return mayGoOn(step, conversion.consequence);
}

/// What moves after a step that failed is not known.
bool ExchangeRunner::mayGoOn(const link::WatchedStep& step, const QString& consequence)
{
    if (!step.isComplete())
        m_ledger.doubt();
    return step.mayGoOn(consequence);
}

bool ExchangeRunner::hasSmartCards() const
{
    return registerModelByText(m_values).hasCards;
}

/// A model without smart cards has no files of them.
void ExchangeRunner::untickWithoutSmartCards()
{
    if (hasSmartCards())
        return;
    for (int box = firstSmartCardBox; box < boxCount; ++box)
        m_ticks.setTicked(box, false);
}

bool ExchangeRunner::succeeded()
{
    const QString status = m_outside.readStatus();
    const int result = link::resultNumber(status);
    if (result == 0)
        return true;
    m_stop.result = result;
    m_lastBox = {u"Communications Error "_s + status, u"Communication result"_s};
    return false;
}

/// One of the two calls that open an exchange, before any box. @p expected are the files that it fetches.
bool ExchangeRunner::open(const QString& name, const QString& commandLine, const QStringList& expected)
{
    m_outside.showStep(name);
    m_stop.place = u"the "_s + name.toLower();
    link::WatchedStep step(m_outside, expected + QStringList{link::statusFile});
    step.run(commandLine);
    return succeeded() && step.mayGoOn(oldResult);
}

void ExchangeRunner::showStep(const char* verb, int box, int file)
{
    m_outside.showStep(u"%1 %2, file %3"_s.arg(QLatin1String(verb), boxName(box)).arg(file));
}

} // namespace norvane::exchange
