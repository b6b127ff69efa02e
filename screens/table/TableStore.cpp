// See TableStore.h.
#include "screens/table/TableStore.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/QuotedName.h"
#include "store/engine/Recordset.h"

#include <algorithm>
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
    std::vector<int> columns;
    for (const PendingEdit& edit : edits)
        columns.push_back(edit.column);
    std::ranges::sort(columns);
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
    return columns;
}

/// The place of @p column among @p columns, which has it.
std::size_t placeIn(const std::vector<int>& columns, int column)
{
    return static_cast<std::size_t>(std::ranges::lower_bound(columns, column) - columns.begin());
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
        store::BoundQuery rows(m_database, select(), {}, m_source.table);
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
    [[nodiscard]] std::string select() const
    {
        std::string sql = "SELECT rowid, " + store::quotedName(m_source.keyField);
        for (const int column : m_columns)
            sql += ", " + store::quotedName(m_source.columns.at(column).field.name);
        return sql + " FROM " + store::quotedName(m_source.table) + " ORDER BY rowid";
    }

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
        fresh.before = rows.value(static_cast<int>(placeIn(m_columns, edit.column)) + 2);
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

/// The fields that some edit changes, of all records.
QString queryOf(const TableSource& source, const std::vector<int>& columns)
{
    QStringList fields;
    for (const int column : columns)
        fields += u"[%1]"_s.arg(source.columns.at(column).field.name);
    return u"select %1 from [%2] order by [rowid]"_s.arg(fields.join(u", "_s), source.table);
}

void storeRows(store::Database& database, const TableSource& source, const Edits& edits)
{
    const std::vector<int> columns = columnsOf(edits);
    store::Recordset records = database.openQuery(queryOf(source, columns));
    store::BoundQuery rows(database,
                           "SELECT rowid FROM " + store::quotedName(source.table) + " ORDER BY rowid", {},
                           source.table);
    auto edit = edits.begin();
    for (qint64 position = 0; edit != edits.end() && rows.next(); ++position) {
        const qint64 row = wholeOf(rows.value(0));
        if (edit->row != row)
            continue;
        records.moveTo(position);
        records.edit();
        for (; edit != edits.end() && edit->row == row; ++edit)
            records.setValue(static_cast<int>(placeIn(columns, edit->column)), store::Value(edit->after));
        records.update();
    }
}

} // namespace

FreshEdits freshEdits(store::Database& database, const TableSource& source, const Edits& edits)
{
    return Comparison(database, source, edits).run();
}

void storeEdits(store::Database& database, const TableSource& source, const Edits& edits)
{
    store::allOrNothing(database, [&] {
        if (!freshEdits(database, source, edits).conflicts.empty()) {
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
