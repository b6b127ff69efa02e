// See TableStore.h.
#include "screens/table/TableStore.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/FieldWriter.h"
#include "store/engine/QuotedName.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

using Edits = std::vector<PendingEdit>;

/// The columns that some edit changes, in order.
std::vector<int> columnsOf(const Edits& edits)
{
    std::set<int> columns;
    for (const PendingEdit& edit : edits)
        columns.insert(edit.column);
    return {columns.begin(), columns.end()};
}

/// Row id, number and then these columns.
std::string selectOf(const TableSource& source, const std::vector<int>& columns)
{
    std::string sql = "SELECT rowid, " + store::quotedName(source.keyField);
    for (const int column : columns)
        sql += ", " + store::quotedName(source.columns.at(column).field.name);
    return sql + " FROM " + store::quotedName(source.table);
}

/// The place of @p column in such a row; @p columns have it.
int placeIn(const std::vector<int>& columns, int column)
{
    return static_cast<int>(std::ranges::lower_bound(columns, column) - columns.begin()) + 2;
}

qint64 wholeOf(const store::Value& value)
{
    return std::get<std::int64_t>(value.data());
}

QString counted(std::size_t count, const QString& word)
{
    return u"%1 %2%3"_s.arg(count).arg(word, count == 1 ? QString() : u"s"_s);
}

void sortByCell(Edits& edits)
{
    std::ranges::sort(edits, {}, [](const PendingEdit& edit) { return std::pair(edit.row, edit.column); });
}

/// Walks the edits of a table beside its rows.
class Comparison
{
public:
    Comparison(store::Database& database, const TableSource& source, const Edits& edits)
        : m_database(database), m_source(source), m_columns(columnsOf(edits)), m_edits(edits)
    {
        findMoved();
    }

    FreshEdits run()
    {
        sortByCell(m_edits);
        store::BoundQuery rows(m_database, selectOf(m_source, m_columns) + " ORDER BY rowid", {},
                               m_source.table);
        auto edit = m_edits.begin();
        while (edit != m_edits.end() && rows.next()) {
            const qint64 row = wholeOf(rows.value(0));
            for (; edit != m_edits.end() && edit->row < row; ++edit)
                drop(*edit);
            for (; edit != m_edits.end() && edit->row == row; ++edit)
                compare(*edit, rows);
        }
        for (; edit != m_edits.end(); ++edit)
            drop(*edit);
        return std::move(m_fresh);
    }

private:
    /// Records whose row is gone may have come back in another one.
    void findMoved()
    {
        std::unordered_map<std::string, qint64> rowOfKey;
        for (const PendingEdit& edit : m_edits)
            rowOfKey.emplace(edit.key, 0);
        std::vector<qint64> rows;
        store::BoundQuery query(m_database,
                                "SELECT rowid, " + store::quotedName(m_source.keyField) + " FROM " +
                                    store::quotedName(m_source.table) + " ORDER BY rowid",
                                {}, m_source.table);
        while (query.next()) {
            rows.push_back(wholeOf(query.value(0)));
            if (const auto sought = rowOfKey.find(query.value(1).toUtf8()); sought != rowOfKey.end())
                sought->second = rows.back();
        }
        for (PendingEdit& edit : m_edits) {
            if (const qint64 row = rowOfKey.at(edit.key);
                row != 0 && !std::ranges::binary_search(rows, edit.row))
                edit.row = row;
        }
    }

    void drop(const PendingEdit& edit)
    {
        m_fresh.conflicts.push_back({EditConflict::Kind::Deleted, edit, {}});
    }

    void compare(const PendingEdit& edit, store::BoundQuery& rows)
    {
        using enum EditConflict::Kind;
        PendingEdit fresh = edit;
        fresh.key = rows.value(1).toUtf8();
        fresh.before = rows.value(placeIn(m_columns, edit.column));
        if (fresh.key != edit.key)
            m_fresh.conflicts.push_back({Renumbered, edit, store::Value::text(fresh.key)});
        if (fresh.before != edit.before)
            m_fresh.conflicts.push_back({Changed, edit, fresh.before});
        m_fresh.edits.push_back(std::move(fresh));
    }

    store::Database& m_database;
    const TableSource& m_source;
    std::vector<int> m_columns;
    Edits m_edits;
    FreshEdits m_fresh;
};

/// Walks the records beside the edits, which are in the order of their rows.
class FreshCheck
{
public:
    FreshCheck(store::Database& database, const TableSource& source, const Edits& edits)
        : m_columns(columnsOf(edits)), m_edits(edits),
          m_rows(database, selectOf(source, m_columns) + " WHERE rowid BETWEEN ? AND ? ORDER BY rowid",
                 {store::Value::whole(edits.front().row), store::Value::whole(edits.back().row)},
                 source.table)
    {
    }

    /// Whether each record is there with its number and what the edit has before.
    bool run()
    {
        auto edit = m_edits.begin();
        while (edit != m_edits.end() && m_rows.next()) {
            const qint64 row = wholeOf(m_rows.value(0));
            for (; edit != m_edits.end() && edit->row == row; ++edit) {
                if (!isFresh(*edit))
                    return false;
            }
        }
        return edit == m_edits.end();
    }

private:
    bool isFresh(const PendingEdit& edit)
    {
        const store::Value& key = m_rows.value(1);
        return (key.isText() ? key.textView() == edit.key : key.toUtf8() == edit.key) &&
               m_rows.value(placeIn(m_columns, edit.column)) == edit.before;
    }

    std::vector<int> m_columns;
    const Edits& m_edits;
    store::BoundQuery m_rows;
};

void storeRows(store::Database& database, const TableSource& source, const Edits& edits)
{
    std::map<int, store::FieldWriter> writers;
    for (const int column : columnsOf(edits))
        writers.try_emplace(column, database, source.table, source.columns.at(column).field);
    for (const PendingEdit& edit : edits)
        writers.at(edit.column).store(edit.row, edit.before, edit.after);
}

} // namespace

bool areFresh(store::Database& database, const TableSource& source, const Edits& edits)
{
    return edits.empty() || FreshCheck(database, source, edits).run();
}

FreshEdits freshEdits(store::Database& database, const TableSource& source, const Edits& edits)
{
    return Comparison(database, source, edits).run();
}

void storeEdits(store::Database& database, const TableSource& source, const Edits& edits)
{
    store::allOrNothing(database, [&] {
        if (!areFresh(database, source, edits)) {
            throw RuntimeFailure(Failure::EngineFailure,
                                 u"records were changed meanwhile. Press Save Changes again to see them"_s);
        }
        storeRows(database, source, edits);
    });
}

QString amountOf(const Edits& edits)
{
    std::size_t records = 0;
    for (std::size_t place = 0; place < edits.size(); ++place)
        records += place == 0 || edits[place].row != edits[place - 1].row ? 1U : 0U;
    return u"%1 in %2"_s.arg(counted(edits.size(), u"change"_s), counted(records, u"record"_s));
}

} // namespace norvane::screens
