// The lines that a send would make of records while they are fetched.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/LineDigests.h"
#include "records/RecordWriter.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <optional>
#include <string>

namespace norvane::exchange
{

/// The digests of a fetched file's lines. Reading a hundred thousand records again takes longer than making
/// their lines.
class FetchedLines
{
public:
    /// @p values must outlive it.
    FetchedLines(const ApplicationValues& values, int file);
    /// A record as it was read from the fetched text and stored; all of one recordset.
    void add(const store::Recordset& record);
    /// The same as sendContent(), once all records are committed.
    /// @return nothing if the table has others than those that were added, or if that is not certain: after
    /// lines of PLUs that are not in the table, or of one PLU twice, and for files whose lines depend on the
    /// place of their records.
    [[nodiscard]] std::optional<Digests> takeAll(store::Database& database);

private:
    void addLine(const store::Recordset& record);

    const ApplicationValues& m_values;
    int m_file;
    LineDigester m_digester;
    bool m_isComplete; ///< so far
    std::optional<records::RecordWriter> m_writer;
    std::string m_line;
    std::string m_key; ///< its first column
    Digests m_lines;
};

} // namespace norvane::exchange
