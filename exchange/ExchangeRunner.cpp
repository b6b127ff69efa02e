// The upload and download sequences over their plans.
#include "exchange/ExchangeRunner.h"

#include "base/CustomerSettings.h"
#include "exchange/MemoryFile.h"
#include "exchange/MoveDataFile.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

QString dataFile(int file)
{
    return u"%1.dat"_s.arg(file);
}

/// Length of a register file in the working directory.
qint64 lengthOf(const QString& name)
{
    if (!pathExists(name)) {
        throw RuntimeFailure(Failure::FileNotFound,
                             u"The file %1 is missing. Upload it from the ECR first."_s.arg(name));
    }
    return QFileInfo(existingPath(name)).size();
}

} // namespace

ExchangeRunner::ExchangeRunner(const ApplicationValues& values, const link::LinkSettings& link,
                               TickBoxes& ticks, link::RunOutside outside)
    : m_values(values), m_link(link), m_ticks(ticks),
      m_outside(std::move(outside)), m_procedures{values, m_outside.boxes, [this](const QString& line) {
                                                      return link::runTool(m_outside, line) ==
                                                             ChildResult::Ended;
                                                  }}
{
}

void ExchangeRunner::UploadData()
{
    if (!transfer(u"Opening exchange"_s, link::uploadLine(m_link, link::openingSuffix)) ||
        !transfer(u"Memory allocation"_s, link::uploadLine(m_link, link::memorySuffix))) {
        return;
    }
    keepForCustomer(u"MEM.dat"_s);
    FileMemory(m_values, m_outside.boxes,
               [this](const QString& line) { return link::runTool(m_outside, line) == ChildResult::Ended; });
    moveBoxes(uploadPlan(), &ExchangeRunner::uploadRow);
}

void ExchangeRunner::downloaddata()
{
    if (!transfer(u"Memory allocation"_s, link::downloadOpeningLine(m_link, link::memorySuffix)) ||
        !transfer(u"Opening exchange"_s, link::downloadOpeningLine(m_link, link::openingSuffix))) {
        return;
    }
    moveBoxes(downloadPlan(), &ExchangeRunner::downloadRow);
}

template <typename Row>
void ExchangeRunner::moveBoxes(std::span<const Row> plan, bool (ExchangeRunner::*moveRow)(const Row&))
{
    for (int box = 0; box < boxCount; ++box) {
        if (box == firstSmartCardBox)
            untickWithoutSmartCards();
        if (m_ticks.isTicked(box) && !moveBox(box, rowsOfBox(plan, box), moveRow))
            return;
    }
}

/// @return false when the run ends here, with the box still ticked.
template <typename Row>
bool ExchangeRunner::moveBox(int box, std::span<const Row> rows, bool (ExchangeRunner::*moveRow)(const Row&))
{
    for (const Row& row : rows) {
        if (!m_outside.goOn() || !(this->*moveRow)(row))
            return false;
    }
    m_ticks.setTicked(box, false);
    // Reloading or sending the PLUs clears their points, so these have to follow.
    if (box == pluBox)
        m_ticks.setTicked(pluPointsBox, true);
    return true;
}

bool ExchangeRunner::uploadRow(const UploadRow& row)
{
    showStep("Upload", row.box, row.file);
    link::runTool(m_outside, link::uploadLine(m_link, QLatin1String(row.literal)));
    if (!succeeded())
        return false;
    if (records::hasImporter(row.file))
        records::importRegisterFile(row.file, m_procedures);
    keepForCustomer(dataFile(row.file));
    return true;
}

bool ExchangeRunner::downloadRow(const DownloadRow& row)
{
    showStep("Download", row.box, row.file);
    const bool fromTable = records::hasExporter(row.file);
    if (fromTable ? !makeFile(row.file) : !takeKeptFile(row))
        return true;
    link::runTool(m_outside, link::downloadLine(m_link, QLatin1String(row.literal)));
    if (fromTable)
        copyAfterSend(row);
    return succeeded();
}

/// @return whether there is a file to send.
bool ExchangeRunner::makeFile(int file)
{
    return records::exportRegisterFile(file, m_procedures) != records::Exported::Nothing;
}

/// Without a table the customer's kept copy is sent, never a file found in the program's folder, which may be
/// another customer's. @return whether there is a file to send.
bool ExchangeRunner::takeKeptFile(const DownloadRow& row)
{
    const QString name = dataFile(row.file);
    if (!pathExists(joinPath(m_values.customerPath, name)))
        m_outside.showNotice(u"The customer's folder holds no %1. Upload it from the ECR first."_s.arg(name));
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

/// The customer's copy is the only store of a file without a table. It stays when a tool reports success but
/// has left no file.
void ExchangeRunner::keepForCustomer(const QString& name)
{
    if (pathExists(joinPath(m_values.appPath, name)))
        MoveDataFile(m_values.appPath, m_values.customerPath, name);
}

/// Model 0 has no smart card files.
void ExchangeRunner::untickWithoutSmartCards()
{
    if (readSetting(m_values, u"ECRModel"_s, u"0"_s) != "0"_L1)
        return;
    for (int box = firstSmartCardBox; box < boxCount; ++box)
        m_ticks.setTicked(box, false);
}

bool ExchangeRunner::succeeded()
{
    const QString status = m_outside.readStatus();
    if (link::resultNumber(status) == 0)
        return true;
    m_outside.boxes.message(u"Communications Error "_s + status, u"Communication result"_s);
    return false;
}

bool ExchangeRunner::transfer(const QString& step, const QString& commandLine)
{
    m_outside.showStep(step);
    link::runTool(m_outside, commandLine);
    return succeeded();
}

void ExchangeRunner::showStep(const char* verb, int box, int file)
{
    m_outside.showStep(u"%1 %2, file %3"_s.arg(QLatin1String(verb), boxName(box)).arg(file));
}

} // namespace norvane::exchange
