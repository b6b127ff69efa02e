// Keeps the ledger up to date while an exchange moves files.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ExchangeLedger.h"
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
    /// The file was not made or fetched as it should have been, and the user goes on all the same.
    void doubt() { m_isDoubtful = true; }
    /// The tool is about to send the file.
    void sending();
    /// It succeeded.
    void sent();
    /// The file was fetched, and its table has it.
    /// @throws RuntimeFailure as sendContent().
    void fetched();

private:
    void expectSend(const QList<int>& boxes);
    [[nodiscard]] LedgerEntry knownEntry(int file) const;
    [[nodiscard]] LedgerEntry entryOf(Digests lines) const;
    [[nodiscard]] bool clearsPoints() const;

    const ApplicationValues& m_values;
    ExchangeLedger m_ledger;
    std::optional<store::Database> m_database; ///< opened once, which takes longer than most tables
    bool m_hasBegun = false;
    int m_registers = 0;
    int m_file = 0;
    std::optional<LineDigester> m_digester;
    Digests m_lines; ///< of the file, so far
    bool m_isDoubtful = false;
};

} // namespace norvane::exchange
