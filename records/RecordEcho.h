// What a register would return of a record that it is sent.
#pragma once

#include "records/RecordReader.h"
#include "records/RecordWriter.h"
#include "records/RegisterFiles.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <optional>
#include <string>

namespace norvane::records
{

/// Writes records of a table as lines of their register file and reads the lines back. Nothing is stored: the
/// line is read into a new record that is never updated.
class RecordEcho
{
public:
    /// @param scratch has the same table; both databases must outlive this
    /// @throws RuntimeFailure as RecordWriter and RecordReader.
    RecordEcho(const RegisterFile& file, store::Database& database, store::Database& scratch,
               RegisterTraits traits);

    RecordEcho(const RecordEcho&) = delete;
    RecordEcho& operator=(const RecordEcho&) = delete;
    ~RecordEcho() = default;

    /// The value that @p field of the record with @p key would come back with; nullptr if the table has no
    /// such record, or one that cannot be sent. Valid until the next call. Quick if the keys are asked for in
    /// their order.
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown field.
    [[nodiscard]] const store::Value* value(const store::Value& key, const QString& field);

private:
    void restart();
    [[nodiscard]] bool goTo(const store::Value& key);
    [[nodiscard]] bool walkTo(const store::Value& key);
    [[nodiscard]] bool readBack();

    const RecordLayout& m_layout;
    RegisterTraits m_traits;
    store::Recordset m_records;
    store::Recordset m_echo;
    int m_key = 0; ///< ordinal
    bool m_isNumbered;
    std::optional<RecordWriter> m_writer;
    RecordReader m_reader;
    std::int64_t m_number = 0; ///< of the line written last
    std::string m_line;
    std::optional<store::Value> m_current; ///< key of the record that was read back
    bool m_isReadBack = false;
};

} // namespace norvane::records
