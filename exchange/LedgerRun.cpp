// See LedgerRun.h.
#include "exchange/LedgerRun.h"

#include "base/CustomerSettings.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"
#include "exchange/SendContent.h"
#include "platform/RuntimeFailure.h"
#include "platform/SilentBoxes.h"
#include "records/FileProcedures.h"
#include "register/Firmware.h"

#include <algorithm>

namespace norvane::exchange
{
namespace
{

/// Of the register that was last spoken to; -1 if it is not known.
int latestGeneration(const ApplicationValues& values)
{
    try {
        SilentBoxes boxes;
        return GetFirmwareGeneration(values.appPath, boxes);
    } catch (const RuntimeFailure&) {
        return -1;
    }
}

} // namespace

void LedgerRun::begin(Direction direction, const QList<int>& boxes, int registers)
{
    m_ledger = ExchangeLedger::read(m_values);
    m_registers = registers;
    m_hasBegun = true;
    if (direction == Direction::Download)
        expectSend(boxes);
}

/// In the file alone: what is known in memory is written at the end.
void LedgerRun::expectSend(const QList<int>& boxes)
{
    ExchangeLedger expected = m_ledger;
    for (const int box : boxes) {
        for (const DownloadRow& row : rowsOfBox(downloadPlan(), box)) {
            LedgerEntry entry = knownEntry(row.file);
            entry.mayBeAtSome = true;
            expected.set(row.file, std::move(entry));
        }
    }
    if (boxes.contains(pluBox) && clearsPoints())
        expected.forget(pluPointsFile);
    expected.save(m_values);
}

void LedgerRun::end()
{
    if (m_hasBegun)
        m_ledger.save(m_values);
    m_hasBegun = false;
    m_database.reset();
}

void LedgerRun::beginFile(int file)
{
    m_file = file;
    m_digester.emplace(file);
    m_lines.clear();
    m_isDoubtful = false;
}

void LedgerRun::addLine(std::string_view line)
{
    m_lines.push_back(m_digester->next(line));
}

void LedgerRun::sending()
{
    if (!records::hasExporter(m_file))
        m_lines = keptContent(m_values, m_file).value_or(Digests());
    std::ranges::sort(m_lines);
    LedgerEntry entry = knownEntry(m_file);
    entry.lines = m_isDoubtful ? Digests() : inBoth(entry.lines, m_lines);
    entry.mayBeAtSome = true;
    m_ledger.set(m_file, std::move(entry));
    if (m_file == pluFile && clearsPoints())
        m_ledger.forget(pluPointsFile);
}

void LedgerRun::sent()
{
    if (!m_isDoubtful)
        m_ledger.set(m_file, entryOf(std::move(m_lines)));
}

/// The fetch is from register 1: what a send has left open at the others stays open.
void LedgerRun::fetched()
{
    if (m_isDoubtful)
        return;
    if (!m_database)
        m_database.emplace(m_values.databasePath);
    auto lines = sendContent(m_values, *m_database, m_file, latestGeneration(m_values));
    const LedgerEntry known = knownEntry(m_file);
    LedgerEntry entry = entryOf(std::move(lines).value_or(Digests()));
    entry.registers = std::min(entry.registers, known.registers);
    if (known.mayBeAtSome && entry.registers > 1) {
        entry.lines = inBoth(entry.lines, known.lines);
        entry.mayBeAtSome = true;
    }
    m_ledger.set(m_file, std::move(entry));
}

/// What is known of the file, or that nothing is.
LedgerEntry LedgerRun::knownEntry(int file) const
{
    const LedgerEntry* const known = m_ledger.entry(file);
    return known != nullptr && isOfModel(*known, m_values) ? *known : entryOf({});
}

LedgerEntry LedgerRun::entryOf(Digests lines) const
{
    return {std::move(lines), QDateTime::currentDateTime(), m_registers, registerModelByText(m_values).place,
            latestGeneration(m_values)};
}

/// Registers with cards forget the points of their PLUs with the PLUs.
bool LedgerRun::clearsPoints() const
{
    return registerModelByText(m_values).hasCards;
}

} // namespace norvane::exchange
