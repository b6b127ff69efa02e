// See RegisterFetch.h.
#include "exchange/RegisterFetch.h"

#include "base/CustomerSettings.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/SendContent.h"
#include "link/CommandLines.h"
#include "link/ResultCodes.h"
#include "link/WatchedStep.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "records/MemoryFile.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

const QString memoryName = u"MEM.dat"_s;

} // namespace

RegisterFetch::RegisterFetch(const ApplicationValues& customer, const link::LinkSettings& link,
                             const ScratchShop& scratch, link::RunOutside outside)
    : m_customer(customer), m_link(link), m_scratch(scratch),
      m_outside(std::move(outside)), m_procedures{.values = scratch.values(),
                                                  .boxes = m_noBoxes,
                                                  .convert =
                                                      [this](const records::Conversion& conversion) {
                                                          return runTool(conversion.commandLine,
                                                                         conversion.target);
                                                      },
                                                  .folder = scratch.folder()}
{
}

FetchedFiles RegisterFetch::fetch(const QList<int>& boxes)
{
    try {
        (void)fetchAll(boxes);
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::UserInterrupt)
            throw;
        (void)stop(failure.text());
    }
    return m_fetched;
}

bool RegisterFetch::fetchAll(const QList<int>& boxes)
{
    for (const int box : boxes) {
        if (isHere(box))
            m_fetched.boxesLeft << box;
    }
    if (!open())
        return false;
    for (const UploadRow& row : uploadPlan()) {
        if (m_fetched.boxesLeft.contains(row.box) && !fetchFile(row))
            return false;
        const bool isLast = rowsOfBox(uploadPlan(), row.box).back().file == row.file;
        if (isLast)
            m_fetched.boxesLeft.removeAll(row.box);
    }
    return true;
}

bool RegisterFetch::open()
{
    m_place = u"the opening exchange"_s;
    m_outside.showStep(u"Opening exchange"_s);
    if (!transfer(link::uploadLine(m_link, link::openingSuffix), {}) ||
        !transfer(link::uploadLine(m_link, link::memorySuffix), memoryName))
        return false;
    lookAtFirmware();
    return records::FileMemory(m_procedures);
}

bool RegisterFetch::isHere(int box) const
{
    return box != pluPointsBox && (box < firstSmartCardBox || registerModelByText(m_customer).hasCards);
}

bool RegisterFetch::fetchFile(const UploadRow& row)
{
    const QString name = u"%1.dat"_s.arg(row.file);
    m_place = u"file %1"_s.arg(row.file);
    m_outside.showStep(u"Compare %1, file %2"_s.arg(boxName(row.box)).arg(row.file));
    if (!transfer(link::uploadLine(m_link, QLatin1String(row.literal)), name))
        return false;
    if (records::hasImporter(row.file) &&
        records::importRegisterFile(row.file, m_procedures) != records::Imported::File)
        return false;
    m_fetched.files << row.file;
    return true;
}

bool RegisterFetch::transfer(const QString& line, const QString& written)
{
    if (!m_outside.goOn()) {
        m_fetched.wasLeft = true;
        return stop(u"left by the user"_s);
    }
    // A tool that crashes must not leave the result of the step before it.
    QFile::remove(existingPath(joinPath(m_scratch.folder(), QString(link::statusFile))));
    if (!runTool(line, QString(link::statusFile)))
        return false;
    const int result = link::resultNumber(m_outside.readStatus());
    if (result != 0)
        return stop(link::withLastWords(m_outside, link::resultInWords(result)));
    return written.isEmpty() || pathExists(joinPath(m_scratch.folder(), written)) ||
           stop(u"the register sent no %1"_s.arg(written));
}

bool RegisterFetch::runTool(const QString& line, const QString& written)
{
    const ChildResult result = link::runTool(m_outside, line);
    const QString tool = commandWords(line).value(0);
    if (result != ChildResult::Ended)
        return stop(u"the program %1 %2"_s.arg(tool, link::endInWords(result)));
    if (pathExists(joinPath(m_scratch.folder(), written)))
        return true;
    const QString cause = written.endsWith(".txt"_L1)
                              ? u". Perhaps the register is of another model than Setup says"_s
                              : QString();
    return stop(u"the program %1 wrote no %2"_s.arg(tool, written) + cause);
}

/// Without the full stop that a failure's text has, since more may follow.
bool RegisterFetch::stop(const QString& reason)
{
    m_fetched.stopped = u"%1: %2"_s.arg(m_place, reason.endsWith(u'.') ? reason.chopped(1) : reason);
    return false;
}

/// Columns and texts of some files depend on it.
void RegisterFetch::lookAtFirmware()
{
    const int here = generationIn(m_customer.customerPath);
    const int there = generationIn(m_scratch.folder());
    if (here >= 0 && there >= 0 && here != there) {
        m_fetched.notice =
            u"The register has firmware of generation %1, the one of the last upload had %2."_s.arg(there)
                .arg(here);
    }
}

} // namespace norvane::exchange
