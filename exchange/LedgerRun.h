// Keeps the ledger up to date while an exchange moves files.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ExchangeLedger.h"
#include "exchange/FetchedLines.h"
#include "exchange/UnfinishedExchange.h"
#include "store/engine/Database.h"

#include <QList>

#include <optional>
#include <string_view>

namespace norvane::exchange
{

/// The ledger of one exchange. It is written when the exchange begins and when it ends. In between the files
/// of a send count as those that some registers may have, in case the program is killed.
class LedgerRun
{
public:
    /// @p values must outlive it.
    explicit LedgerRun(const ApplicationValues& values) : m_values(values) {}

    /// @param registers how many the exchange reaches, or for a fetch how many the customer has.
    void begin(Direction direction, const QList<int>& boxes, int registers);
    /// Writes what the exchange has changed; nothing without begin().
    void end();

    /// The files of the row that follows.
    void beginFile(int file);
    /// A line of the text that is about to be sent.
    void addLine(std::string_view line);
    /// A record as it was fetched and stored: fetched() need not read it again. Nothing before beginFile().
    void addRecord(const store::Recordset& record);
    /// The file was not made or fetched as it should have been, and the user goes on all the same.
    void doubt() { m_isDoubtful = true; }
    /// The tool is about to send the file.
    void sending();
    /// It succeeded.
    void sent();
    /// The file was fetched, and its table has it. A table that cannot be read counts as never sent.
    void fetched();

private:
    void expectSend(const QList<int>& boxes);
    /// @throws RuntimeFailure as sendContent().
    [[nodiscard]] Digests fetchedLines();
    [[nodiscard]] LedgerEntry knownEntry(int file);
    [[nodiscard]] LedgerEntry entryOf(Digests lines);
    [[nodiscard]] int generation();
    [[nodiscard]] bool clearsPoints() const;

    const ApplicationValues& m_values;
    ExchangeLedger m_ledger;
    std::optional<store::Database> m_database; ///< opened once, which takes longer than most tables
    bool m_hasBegun = false;
    int m_registers = 0;
    int m_model = 0;
    std::optional<int> m_generation; ///< of the firmware
    int m_file = 0;
    std::optional<LineDigester> m_digester;
    std::optional<FetchedLines> m_fetched;
    Digests m_lines; ///< of the file, so far
    bool m_isDoubtful = false;
};

} // namespace norvane::exchange
