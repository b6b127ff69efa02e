// What the registers of a customer hold, as far as exchanges have shown: one file in the customer's folder.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/LineDigests.h"

#include <QDateTime>
#include <QString>

#include <map>

namespace norvane::exchange
{

/// A register file at the registers.
struct LedgerEntry {
    Digests lines;       ///< that registers 1 to n are known to have
    QDateTime since;     ///< when they were sent or fetched
    int registers = 0;   ///< n; a fetch counts for all that the customer had then
    int model = 0;       ///< modelOf() then: another model has none of these lines
    int generation = -1; ///< of the firmware, on which some lines depend
    /// A send of other content did not succeed: some registers may have it.
    bool mayBeAtSome = false;
};

/// Which model the customer's registers are of: RegisterModel::place. Reads the settings.
[[nodiscard]] int modelOf(const ApplicationValues& values);

/// The entries of a customer by register file. A file without one counts as never sent.
class ExchangeLedger
{
public:
    /// Without entries if the file is missing, damaged, of a later version or was copied from another shop.
    [[nodiscard]] static ExchangeLedger read(const ApplicationValues& values);
    /// Replaces the file as a whole, so that other programs read the one or the other. One that cannot be
    /// written is removed: without it all is sent once more, with an old one changes would be forgotten.
    void save(const ApplicationValues& values) const;

    /// @param model that the customer's registers are of
    /// @return nullptr for a file of which nothing is known, or only of registers of another model.
    [[nodiscard]] const LedgerEntry* entry(int file, int model) const;
    void set(int file, LedgerEntry entry) { m_entries[file] = std::move(entry); }
    void forget(int file) { m_entries.erase(file); }

private:
    std::map<int, LedgerEntry> m_entries;
};

} // namespace norvane::exchange
