// See ChangeRecorder.h.
#include "store/engine/ChangeRecorder.h"

#include "store/engine/Connection.h"
#include "store/engine/RowImage.h"
#include "store/engine/Savepoint.h"

#include <sqlite3.h>

#include <new>
#include <unordered_set>

namespace norvane::store
{

/// What the engine reports before it changes a row.
struct ChangeRecorder::Recording {
    RowChanges changes;
    std::vector<RowImages> rows;                         ///< of each table
    std::vector<std::unordered_set<std::int64_t>> known; ///< the same: ids of the rows that are recorded
    std::string image;                                   ///< of the row being recorded; its memory is kept
    bool isIncomplete = false;                           ///< memory ran out

    static void take(void* recording, sqlite3* handle, int operation, const char* file, const char* table,
                     sqlite3_int64 rowId, sqlite3_int64 newRowId);
    void keep(sqlite3* handle, bool isInsert, std::size_t table, std::int64_t rowId);
    [[nodiscard]] std::size_t placeOf(const char* table) const;
};

std::size_t ChangeRecorder::Recording::placeOf(const char* table) const
{
    std::size_t place = 0;
    while (place < changes.m_tables.size() &&
           changes.m_tables[place].name.compare(QLatin1StringView(table), Qt::CaseInsensitive) != 0)
        ++place;
    return place;
}

void ChangeRecorder::Recording::keep(sqlite3* handle, bool isInsert, std::size_t table, std::int64_t rowId)
{
    if (!known[table].insert(rowId).second)
        return;
    image.clear();
    for (int column = 0; !isInsert && column < sqlite3_preupdate_count(handle); ++column) {
        sqlite3_value* value = nullptr;
        if (sqlite3_preupdate_old(handle, column, &value) == SQLITE_OK)
            appendValue(image, value);
    }
    changes.m_rows.push_back({table, rowId, image, 0});
}

/// The engine is plain C: no exception may pass through it.
void ChangeRecorder::Recording::take(void* recording, sqlite3* handle, int operation, const char* /*file*/,
                                     const char* table, sqlite3_int64 rowId, sqlite3_int64 newRowId)
{
    auto& self = *static_cast<Recording*>(recording);
    try {
        const bool isInsert = operation == SQLITE_INSERT;
        if (const std::size_t place = self.placeOf(table); place < self.changes.m_tables.size())
            self.keep(handle, isInsert, place, isInsert ? newRowId : rowId);
    } catch (const std::bad_alloc&) {
        self.isIncomplete = true;
    }
}

ChangeRecorder::ChangeRecorder(Database& database, const QStringList& tables)
    : m_database(database), m_recording(std::make_unique<Recording>())
{
    sqlite3* const handle = connectionOf(database).handle();
    for (const QString& table : tables) {
        auto& rows = m_recording->rows.emplace_back(handle, table);
        m_recording->changes.m_tables.push_back({table, rows.fields()});
        m_recording->known.emplace_back();
    }
    sqlite3_preupdate_hook(handle, Recording::take, m_recording.get());
}

ChangeRecorder::~ChangeRecorder()
{
    sqlite3_preupdate_hook(connectionOf(m_database).handle(), nullptr, nullptr);
}

RowChanges ChangeRecorder::finish()
{
    sqlite3* const handle = connectionOf(m_database).handle();
    sqlite3_preupdate_hook(handle, nullptr, nullptr);
    if (m_recording->isIncomplete)
        return {};
    // Otherwise the engine would lock and unlock the file for each row.
    const Savepoint reading(handle);
    auto& rows = m_recording->changes.m_rows;
    std::erase_if(rows, [this](RowChanges::Row& row) {
        const std::string& now = m_recording->rows[row.table].read(row.rowId);
        row.after = now.empty() ? 0 : digestOf(now);
        return now == row.before;
    });
    rows.shrink_to_fit();
    return std::move(m_recording->changes);
}

} // namespace norvane::store
