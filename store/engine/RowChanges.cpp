// See RowChanges.h.
#include "store/engine/RowChanges.h"

#include "register/PluNumber.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Connection.h"
#include "store/engine/RowIds.h"
#include "store/engine/RowImage.h"

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

std::string listOf(const QStringList& fields, const char* after)
{
    std::string list;
    for (const QString& field : fields)
        list.append(list.empty() ? "" : ", ").append(quotedName(field)).append(after);
    return list;
}

std::string insertOf(const QString& table, const QStringList& fields)
{
    std::string marks;
    for (qsizetype i = 0; i < fields.size(); ++i)
        marks += "?, ";
    return "INSERT INTO " + quotedName(table) + " (" + listOf(fields, "") + ", _rowid_) VALUES (" + marks +
           "?)";
}

std::string updateOf(const QString& table, const QStringList& fields)
{
    return "UPDATE " + quotedName(table) + " SET " + listOf(fields, " = ?") + " WHERE _rowid_ = ?";
}

/// The rows of one table on their way back. A statement is prepared when the first row needs it.
class TableBack
{
public:
    TableBack(Connection& connection, const QString& table, const QStringList& fields)
        : m_connection(connection), m_table(table), m_fields(fields),
          m_rows(connection.handle(), table, fields)
    {
    }

    [[nodiscard]] const std::string& now(std::int64_t rowId) { return m_rows.read(rowId); }

    void restore(std::int64_t rowId, const std::string& before, bool isThere)
    {
        auto& statement = isThere ? m_update : m_insert;
        if (!statement)
            statement.emplace(prepare(isThere ? updateOf(m_table, m_fields) : insertOf(m_table, m_fields)));
        const auto values = valuesOf(before);
        int parameter = 0;
        for (const Value& value : values)
            statement->bind(++parameter, value);
        statement->bind(++parameter, rowId);
        statement->run();
    }

    void remove(std::int64_t rowId)
    {
        if (!m_delete) {
            retireAllRowIds(m_connection, *m_connection.shape(m_table));
            m_delete.emplace(prepare("DELETE FROM " + quotedName(m_table) + " WHERE _rowid_ = ?"));
        }
        m_delete->bind(1, rowId);
        m_delete->run();
    }

private:
    [[nodiscard]] PreparedStatement prepare(const std::string& sql) const
    {
        return {m_connection.handle(), sql, u"%1, table %2."_s.arg(m_connection.path(), m_table)};
    }

    Connection& m_connection;
    QString m_table;
    QStringList m_fields;
    RowImages m_rows;
    std::optional<PreparedStatement> m_insert;
    std::optional<PreparedStatement> m_update;
    std::optional<PreparedStatement> m_delete;
};

/// Whether a row that is now @p now is still as the work left it.
bool isAsLeft(const std::string& now, std::uint64_t after)
{
    return now.empty() ? after == 0 : after == digestOf(now);
}

QString shownValue(const FieldDefinition& field, const Value& value)
{
    if (field.type == FieldType::YesNo)
        return value.toNumber() != 0 ? u"yes"_s : u"no"_s;
    return shownKey(field.name, value.toText().trimmed());
}

/// Compares a row with what it was.
class RowComparison
{
public:
    RowComparison(const TableDefinition& table, const QStringList& fields) : m_table(table), m_fields(fields)
    {
    }

    void addTo(std::vector<FieldDifference>& all, const std::string& now, const std::string& then) const
    {
        const auto newValues = valuesOf(now);
        const auto oldValues = valuesOf(then);
        const QString record = recordOf(newValues.empty() ? oldValues : newValues);
        if (newValues.empty() || oldValues.empty()) {
            all.push_back({m_table.name,
                           record,
                           {},
                           newValues.empty() ? QString() : record,
                           oldValues.empty() ? QString() : record});
            return;
        }
        QStringList unset;
        for (qsizetype i = 0; i < m_fields.size(); ++i) {
            const auto place = static_cast<std::size_t>(i);
            const auto* const field = fieldNamed(m_table, m_fields[i]);
            if (field != nullptr && isUnset(*field, newValues[place], oldValues[place])) {
                unset += field->name;
            } else if (field != nullptr) {
                addTo(all, record, *field, newValues[place], oldValues[place]);
            }
        }
        if (!unset.isEmpty())
            all.push_back({m_table.name, record, unset.join(u", "_s), u"0"_s, {}, true});
    }

    /// "PLUDATA 1001".
    [[nodiscard]] QString nameOf(const std::string& image) const
    {
        return u"%1 %2"_s.arg(m_table.name, recordOf(valuesOf(image))).trimmed();
    }

private:
    static bool isUnset(const FieldDefinition& field, const Value& now, const Value& then)
    {
        return field.type != FieldType::YesNo && then.isNull() &&
               Decimal::parse(now.toText().toStdString()) == Decimal();
    }

    /// What looks alike is not shown: an empty text and blanks, or no and an option that was never set.
    void addTo(std::vector<FieldDifference>& all, const QString& record, const FieldDefinition& field,
               const Value& now, const Value& then) const
    {
        const QString shownNow = shownValue(field, now);
        const QString shownThen = shownValue(field, then);
        if (shownNow != shownThen)
            all.push_back({m_table.name, record, field.name, shownNow, shownThen});
    }

    [[nodiscard]] QString recordOf(const std::vector<Value>& values) const
    {
        if (m_table.indexes.isEmpty())
            return {};
        const QString& key = m_table.indexes.front().field;
        for (qsizetype i = 0; i < m_fields.size(); ++i) {
            if (m_fields[i].compare(key, Qt::CaseInsensitive) == 0)
                return shownKey(key, values[static_cast<std::size_t>(i)].toText());
        }
        return {};
    }

    const TableDefinition& m_table;
    const QStringList& m_fields;
};

} // namespace

std::size_t RowChanges::size() const
{
    return std::accumulate(m_rows.begin(), m_rows.end(), m_rows.capacity() * sizeof(Row),
                           [](std::size_t sum, const Row& row) { return sum + row.before.capacity(); });
}

std::size_t RowChanges::changedSince(Database& database) const
{
    std::vector<RowImages> tables;
    for (const Table& table : m_tables)
        tables.emplace_back(connectionOf(database).handle(), table.name, table.fields);
    return static_cast<std::size_t>(std::ranges::count_if(m_rows, [&tables](const Row& row) {
        return !isAsLeft(tables[row.table].read(row.rowId), row.after);
    }));
}

QStringList RowChanges::rowsChangedSince(Database& database, std::size_t most) const
{
    QStringList names;
    for (const Row& row : m_rows) {
        if (static_cast<std::size_t>(names.size()) >= most)
            break;
        const Table& table = m_tables[row.table];
        RowImages rows(connectionOf(database).handle(), table.name, table.fields);
        const std::string& now = rows.read(row.rowId);
        if (!isAsLeft(now, row.after))
            names += RowComparison(database.table(table.name), table.fields)
                         .nameOf(row.before.empty() ? now : row.before);
    }
    return names;
}

std::vector<FieldDifference> RowChanges::differences(Database& database, std::size_t most) const
{
    std::vector<FieldDifference> all;
    for (const Row& row : m_rows) {
        if (all.size() >= most)
            break;
        const Table& table = m_tables[row.table];
        RowImages rows(connectionOf(database).handle(), table.name, table.fields);
        const std::string& now = rows.read(row.rowId);
        if (isAsLeft(now, row.after))
            RowComparison(database.table(table.name), table.fields).addTo(all, now, row.before);
    }
    all.resize(std::min(all.size(), most));
    return all;
}

std::size_t RowChanges::takeBack(Database& database) const
{
    std::size_t restored = 0;
    allOrNothing(database, [&] {
        std::vector<TableBack> tables;
        for (const Table& table : m_tables)
            tables.emplace_back(connectionOf(database), table.name, table.fields);
        for (std::size_t i = m_rows.size(); i > 0; --i) {
            const Row& row = m_rows[i - 1];
            TableBack& table = tables[row.table];
            if (!isAsLeft(table.now(row.rowId), row.after))
                continue;
            ++restored;
            if (row.before.empty()) {
                table.remove(row.rowId);
            } else {
                table.restore(row.rowId, row.before, row.after != 0);
            }
        }
    });
    return restored;
}

} // namespace norvane::store
