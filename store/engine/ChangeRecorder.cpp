// See ChangeRecorder.h.
#include "store/engine/ChangeRecorder.h"

#include "store/engine/Connection.h"
#include "store/engine/RecordedRows.h"
#include "store/engine/RowImage.h"
#include "store/engine/RowsAfter.h"
#include "store/engine/Savepoint.h"

#include <sqlite3.h>

#include <algorithm>
#include <new>

namespace norvane::store
{
/// What the engine reports while statements are prepared and before it changes a row.
struct ChangeRecorder::Recording {
    /// A table as the engine names it.
    struct Table {
        std::string name;
        std::vector<std::string> fields;
        std::vector<bool> isChanged; ///< whether a statement names the field to change it
        RecordedRows rows;
    };

    RowChanges changes;
    std::vector<Table> tables; ///< the same as of changes
    bool isIncomplete = false; ///< memory ran out

    static int prepare(void* recording, int action, const char* table, const char* field, const char* file,
                       const char* trigger);
    static void take(void* recording, sqlite3* handle, int operation, const char* file, const char* table,
                     sqlite3_int64 rowId, sqlite3_int64 newRowId);
    void keep(sqlite3* handle, bool isInsert, std::size_t table, std::int64_t rowId);
    void keepValues(sqlite3* handle);
    [[nodiscard]] std::size_t placeOf(std::string_view table) const;
};

std::size_t ChangeRecorder::Recording::placeOf(std::string_view table) const
{
    return static_cast<std::size_t>(std::ranges::find(tables, table, &Table::name) - tables.begin());
}

/// Allows everything: it is asked which fields each statement would change.
int ChangeRecorder::Recording::prepare(void* recording, int action, const char* table, const char* field,
                                       const char* /*file*/, const char* /*trigger*/)
{
    auto& self = *static_cast<Recording*>(recording);
    if (action != SQLITE_UPDATE)
        return SQLITE_OK;
    if (const std::size_t place = self.placeOf(table); place < self.tables.size()) {
        auto& [name, fields, isChanged, rows] = self.tables[place];
        const auto found = std::ranges::find(fields, std::string_view(field));
        if (found != fields.end())
            isChanged[static_cast<std::size_t>(found - fields.begin())] = true;
    }
    return SQLITE_OK;
}

void ChangeRecorder::Recording::keepValues(sqlite3* handle)
{
    const int count = sqlite3_preupdate_count(handle);
    for (int column = 0; column < count; ++column) {
        sqlite3_value* value = nullptr;
        if (sqlite3_preupdate_old(handle, column, &value) == SQLITE_OK)
            appendValue(changes.m_images, value);
    }
}

void ChangeRecorder::Recording::keep(sqlite3* handle, bool isInsert, std::size_t table, std::int64_t rowId)
{
    if (!tables[table].rows.add(rowId)) {
        // A row that takes the id of another one, as REPLACE allows, may differ in every field.
        if (isInsert)
            tables[table].isChanged.assign(tables[table].fields.size(), true);
        return;
    }
    const std::size_t from = changes.m_images.size();
    if (!isInsert)
        keepValues(handle);
    changes.m_rows.push_back({table, rowId, from, changes.m_images.size() - from, 0});
}

/// The engine is plain C: no exception may pass through it.
void ChangeRecorder::Recording::take(void* recording, sqlite3* handle, int operation, const char* /*file*/,
                                     const char* table, sqlite3_int64 rowId, sqlite3_int64 newRowId)
{
    auto& self = *static_cast<Recording*>(recording);
    try {
        const bool isInsert = operation == SQLITE_INSERT;
        if (const std::size_t place = self.placeOf(table); place < self.tables.size())
            self.keep(handle, isInsert, place, isInsert ? newRowId : rowId);
    } catch (const std::bad_alloc&) {
        self.isIncomplete = true;
    }
}

ChangeRecorder::ChangeRecorder(Database& database, const QStringList& tables)
    : m_database(database), m_recording(std::make_unique<Recording>())
{
    Connection& connection = connectionOf(database);
    for (const QString& table : tables) {
        const QString name = connection.shape(table)->name();
        const QStringList fields = storedFields(connection.handle(), name);
        auto& known = m_recording->tables.emplace_back();
        known.name = name.toStdString();
        for (const QString& field : fields)
            known.fields.push_back(field.toStdString());
        known.isChanged.resize(known.fields.size());
        m_recording->changes.m_tables.push_back({name, fields});
    }
    // Statements that are prepared already are prepared again when they are run.
    sqlite3_set_authorizer(connection.handle(), Recording::prepare, m_recording.get());
    sqlite3_preupdate_hook(connection.handle(), Recording::take, m_recording.get());
}

void ChangeRecorder::stop()
{
    sqlite3* const handle = connectionOf(m_database).handle();
    sqlite3_set_authorizer(handle, nullptr, nullptr);
    sqlite3_preupdate_hook(handle, nullptr, nullptr);
}

ChangeRecorder::~ChangeRecorder()
{
    stop();
}

RowChanges ChangeRecorder::finish()
{
    stop();
    if (m_recording->isIncomplete)
        return {};
    sqlite3* const handle = connectionOf(m_database).handle();
    RowChanges changes = std::move(m_recording->changes);
    // Otherwise the engine would lock and unlock the file for each row.
    const Savepoint reading(handle);
    std::vector<RowsAfter> tables;
    for (std::size_t table = 0; table < changes.m_tables.size(); ++table) {
        const auto& [name, fields] = changes.m_tables[table];
        tables.emplace_back(handle, name, fields, m_recording->tables[table].isChanged);
    }
    std::erase_if(changes.m_rows, [&](RowChanges::Row& row) {
        const std::string& now = tables[row.table].read(row.rowId, changes.before(row));
        row.after = now.empty() ? 0 : digestOf(now);
        return now == changes.before(row);
    });
    changes.m_rows.shrink_to_fit();
    changes.m_images.shrink_to_fit();
    return changes;
}

} // namespace norvane::store
