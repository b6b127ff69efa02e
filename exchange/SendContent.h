// What a send of a register file would write now.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/LineDigests.h"
#include "records/RegisterTraits.h"
#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <functional>
#include <optional>

namespace norvane::exchange
{

/// Generation of the firmware by the memory file in a folder; -1 if it is not known.
[[nodiscard]] int generationIn(const QString& folder);

/// What the lines of a send depend on besides their table.
/// @param values must outlive the traits; @p generation of the registers' firmware
[[nodiscard]] records::RegisterTraits sendTraits(const ApplicationValues& values, int generation);

/// Lines of a file with a table, for a walk over them.
struct SendLines {
    int file;
    int generation;     ///< of the registers' firmware
    QString keyField{}; ///< of the table; empty for none
};

/// Gives the digest of each line that a send would make, and the value of the key field; none for an empty
/// table. @throws RuntimeFailure as sendContent().
void forEachSendLine(const ApplicationValues& values, store::Database& database, const SendLines& lines,
                     const std::function<void(std::uint64_t line, const store::Value& key)>& take);

/// The lines that a send would make from the table, or the customer's kept copy of a file without a table.
/// Reads only. @param generation of the registers' firmware.
/// @return nothing if there is nothing to send: an empty table, an empty or missing copy.
/// @throws RuntimeFailure what the database throws and records::forEachLine() except for an empty table.
[[nodiscard]] std::optional<Digests> sendContent(const ApplicationValues& values, store::Database& database,
                                                 int file, int generation);

/// The number of lines, quickly; 1 for a file without a table, 0 if there is nothing to send.
[[nodiscard]] qint64 sendLines(const ApplicationValues& values, store::Database& database, int file);

/// Digest of the customer's kept copy of a file without a table; nothing if it is empty or missing.
[[nodiscard]] std::optional<Digests> keptContent(const ApplicationValues& values, int file);

} // namespace norvane::exchange
