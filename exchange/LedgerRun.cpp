// See LedgerRun.h.
#include "exchange/LedgerRun.h"

#include "base/CustomerSettings.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/ExchangePlan.h"
#include "exchange/SendContent.h"
#include "platform/RuntimeFailure.h"
#include "records/FileProcedures.h"

#include <algorithm>

namespace norvane::exchange
{

void LedgerRun::begin(Direction direction, const QList<int>& boxes, int registers)
{
    m_ledger = ExchangeLedger::read(m_values);
    m_registers = registers;
    m_model = modelOf(m_values);
    m_hasBegun = true;
    if (direction == Direction::Download)
        expectSend(boxes);
    m_generation.reset();
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
    m_fetched.emplace(m_values, file);
    m_lines.clear();
    m_isDoubtful = false;
}

void LedgerRun::addLine(std::string_view line)
{
    m_lines.push_back(m_digester->next(line));
}

void LedgerRun::addRecord(const store::Recordset& record)
{
    if (m_fetched)
        m_fetched->add(record);
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
    Digests lines;
    try {
        lines = fetchedLines();
    } catch (const RuntimeFailure&) {
        // The upload is complete. Its file counts as never sent.
        m_ledger.forget(m_file);
        return;
    }
    const LedgerEntry known = knownEntry(m_file);
    LedgerEntry entry = entryOf(std::move(lines));
    entry.registers = std::min(entry.registers, known.registers);
    if (known.mayBeAtSome && entry.registers > 1) {
        entry.lines = inBoth(entry.lines, known.lines);
        entry.mayBeAtSome = true;
    }
    m_ledger.set(m_file, std::move(entry));
}

Digests LedgerRun::fetchedLines()
{
    if (!m_database)
        m_database.emplace(m_values.databasePath);
    if (auto lines = m_fetched->takeAll(*m_database))
        return *std::move(lines);
    return sendContent(m_values, *m_database, m_file, generation()).value_or(Digests());
}

/// What is known of the file, or that nothing is.
LedgerEntry LedgerRun::knownEntry(int file)
{
    const LedgerEntry* const known = m_ledger.entry(file, m_model);
    return known != nullptr ? *known : entryOf({});
}

LedgerEntry LedgerRun::entryOf(Digests lines)
{
    return {std::move(lines), QDateTime::currentDateTime(), m_registers, m_model, generation()};
}

/// The memory file is fetched before the first file. Looking for it at each file took half of the ledger's
/// time.
int LedgerRun::generation()
{
    if (!m_generation)
        m_generation = generationIn(m_values.appPath);
    return *m_generation;
}

/// Registers with cards forget the points of their PLUs with the PLUs.
bool LedgerRun::clearsPoints() const
{
    return registerModelByText(m_values).hasCards;
}

} // namespace norvane::exchange
