// The upload and download sequences over their plans.
#include "exchange/ExchangeRunner.h"

#include "base/CustomerSettings.h"
#include "exchange/MemoryFile.h"
#include "exchange/MoveDataFile.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "platform/ChildProcess.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

namespace norvane::exchange
{
namespace
{

QString dataFile(int file)
{
    return QStringLiteral("%1.dat").arg(file);
}

/// Length of a register file in the working directory.
qint64 lengthOf(const QString& name)
{
    if (!pathExists(name)) {
        throw RuntimeFailure(
            Failure::FileNotFound,
            QStringLiteral("The file %1 is missing. Upload it from the ECR first.").arg(name));
    }
    return QFileInfo(existingPath(name)).size();
}

} // namespace

ExchangeRunner::ExchangeRunner(const ApplicationValues& values, const link::LinkSettings& link,
                               TickBoxes& ticks, link::RunOutside outside)
    : m_values(values), m_link(link), m_ticks(ticks),
      m_outside(std::move(outside)), m_procedures{values, m_outside.boxes, [this](const QString& line) {
                                                      return runTool(line);
                                                  }}
{
}

void ExchangeRunner::UploadData()
{
    if (!transfer(QStringLiteral("Opening exchange"),
                  link::uploadLine(m_link, QLatin1String(link::openingSuffix))) ||
        !transfer(QStringLiteral("Memory allocation"),
                  link::uploadLine(m_link, QLatin1String(link::memorySuffix)))) {
        return;
    }
    keepForCustomer(QStringLiteral("MEM.dat"));
    FileMemory(m_values, m_outside.boxes, [this](const QString& line) { return runTool(line); });
    moveBoxes(uploadPlan(), &ExchangeRunner::uploadRow);
}

void ExchangeRunner::downloaddata()
{
    if (!transfer(QStringLiteral("Memory allocation"),
                  link::downloadOpeningLine(m_link, QLatin1String(link::memorySuffix))) ||
        !transfer(QStringLiteral("Opening exchange"),
                  link::downloadOpeningLine(m_link, QLatin1String(link::openingSuffix)))) {
        return;
    }
    moveBoxes(downloadPlan(), &ExchangeRunner::downloadRow);
}

template <typename Row>
void ExchangeRunner::moveBoxes(std::span<const Row> plan, bool (ExchangeRunner::*moveRow)(const Row&))
{
    for (int box = 0; box < boxCount; ++box) {
        if (box == firstSmartCardBox) {
            untickWithoutSmartCards();
        }
        if (!m_ticks.isTicked(box)) {
            continue;
        }
        for (const Row& row : rowsOfBox(plan, box)) {
            if (!m_outside.goOn() || !(this->*moveRow)(row)) {
                return;
            }
        }
        m_ticks.setTicked(box, false);
        if (box == pluBox) {
            // Reloading or sending the PLUs clears their points, so these have to follow.
            m_ticks.setTicked(pluPointsBox, true);
        }
    }
}

bool ExchangeRunner::uploadRow(const UploadRow& row)
{
    showStep("Upload", row.box, row.file);
    runTool(link::uploadLine(m_link, QLatin1String(row.literal)));
    if (!succeeded()) {
        return false;
    }
    if (records::hasImporter(row.file)) {
        records::importRegisterFile(row.file, m_procedures);
    }
    keepForCustomer(dataFile(row.file));
    return true;
}

bool ExchangeRunner::downloadRow(const DownloadRow& row)
{
    showStep("Download", row.box, row.file);
    const bool fromTable = records::hasExporter(row.file);
    if (fromTable ? !makeFile(row.file) : !takeKeptFile(row))
        return true;
    runTool(link::downloadLine(m_link, QLatin1String(row.literal)));
    if (fromTable)
        copyAfterSend(row);
    return succeeded();
}

/// @return whether there is a file to send.
bool ExchangeRunner::makeFile(int file)
{
    return records::exportRegisterFile(file, m_procedures) != records::Exported::Nothing;
}

/// Without a table the customer's kept copy is sent, never a file that happens to lie in the program's folder
/// and may be another customer's. @return whether there is a file to send.
bool ExchangeRunner::takeKeptFile(const DownloadRow& row)
{
    const QString name = dataFile(row.file);
    if (!pathExists(joinPath(m_values.customerPath, name))) {
        m_outside.showNotice(
            QStringLiteral("The customer's folder holds no %1. Upload it from the ECR first.").arg(name));
    }
    MoveDataFile(m_values.customerPath, m_values.appPath, name);
    return row.copy != Copy::FromCustomerUnlessEmpty || lengthOf(name) > 0;
}

void ExchangeRunner::copyAfterSend(const DownloadRow& row)
{
    if (row.copy == Copy::ToCustomerAfter)
        keepForCustomer(dataFile(row.file));
    else if (row.copy == Copy::FromCustomerAfter)
        MoveDataFile(m_values.customerPath, m_values.appPath, dataFile(row.file));
}

/// The copy in the customer's folder is the only store of a file without a table: it stays when a tool
/// reports success and has left nothing to put in its place.
void ExchangeRunner::keepForCustomer(const QString& name)
{
    if (pathExists(joinPath(m_values.appPath, name))) {
        MoveDataFile(m_values.appPath, m_values.customerPath, name);
    }
}

/// Model 0 has no smart card files.
void ExchangeRunner::untickWithoutSmartCards()
{
    if (readSetting(m_values, QStringLiteral("ECRModel"), QStringLiteral("0")) != QLatin1String("0")) {
        return;
    }
    for (int box = firstSmartCardBox; box < boxCount; ++box) {
        m_ticks.setTicked(box, false);
    }
}

/// A tool that does not start leaves the former result standing, and the sequence goes by that; the user is
/// told beside it.
bool ExchangeRunner::runTool(const QString& commandLine)
{
    const bool started = m_outside.runAndWait(commandLine);
    if (!started) {
        m_outside.showNotice(
            QStringLiteral("The program %1 was not found.").arg(commandWords(commandLine).value(0)));
    }
    return started;
}

bool ExchangeRunner::succeeded()
{
    const QString status = m_outside.readStatus();
    if (link::resultNumber(status) == 0) {
        return true;
    }
    m_outside.boxes.message(QStringLiteral("Communications Error ") + status,
                            QStringLiteral("Communication result"));
    return false;
}

bool ExchangeRunner::transfer(const QString& step, const QString& commandLine)
{
    m_outside.showStep(step);
    runTool(commandLine);
    return succeeded();
}

void ExchangeRunner::showStep(const char* verb, int box, int file)
{
    m_outside.showStep(QStringLiteral("%1 %2, file %3").arg(QLatin1String(verb), boxName(box)).arg(file));
}

} // namespace norvane::exchange
