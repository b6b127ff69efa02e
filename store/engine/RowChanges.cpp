// See RowChanges.h.
#include "store/engine/RowChanges.h"

#include "register/PluNumber.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Connection.h"
#include "store/engine/RowImage.h"
#include "store/engine/Savepoint.h"
#include "store/engine/TableBack.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// Whether a row that is now @p now is still as the work left it.
bool isAsLeft(std::string_view now, std::uint64_t after)
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

    void addTo(std::vector<FieldDifference>& all, std::string_view now, std::string_view then) const
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
        int unset = 0;
        for (qsizetype i = 0; i < m_fields.size(); ++i) {
            const auto place = static_cast<std::size_t>(i);
            const auto* const field = fieldNamed(m_table, m_fields[i]);
            if (field != nullptr && isUnset(*field, newValues[place], oldValues[place])) {
                ++unset;
            } else if (field != nullptr) {
                addTo(all, record, *field, newValues[place], oldValues[place]);
            }
        }
        if (unset > 0)
            all.push_back({m_table.name, record, {}, {}, {}, unset});
    }

    [[nodiscard]] RecordName nameOf(std::string_view image) const
    {
        return {m_table.name, recordOf(valuesOf(image))};
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
    return m_rows.capacity() * sizeof(Row) + m_images.capacity();
}

template <typename Take>
void RowChanges::walk(Database& database, Take take) const
{
    sqlite3* const handle = connectionOf(database).handle();
    const Savepoint reading(handle);
    std::vector<RowImages> tables;
    for (const Table& table : m_tables)
        tables.emplace_back(handle, table.name, table.fields);
    for (const Row& row : m_rows) {
        const std::string& now = tables[row.table].read(row.rowId);
        if (!take(row, now, isAsLeft(now, row.after)))
            return;
    }
}

std::size_t RowChanges::changedSince(Database& database) const
{
    std::size_t count = 0;
    walk(database, [&](const Row&, const std::string&, bool isAsItWasLeft) {
        count += isAsItWasLeft ? 0 : 1;
        return true;
    });
    return count;
}

std::vector<RecordName> RowChanges::rowsChangedSince(Database& database, std::size_t most) const
{
    std::vector<RecordName> names;
    walk(database, [&](const Row& row, const std::string& now, bool isAsItWasLeft) {
        const auto& [table, fields] = m_tables[row.table];
        if (!isAsItWasLeft) {
            names.push_back(
                RowComparison(database.table(table), fields).nameOf(row.length == 0 ? now : before(row)));
        }
        return names.size() < most;
    });
    return names;
}

std::vector<FieldDifference> RowChanges::differences(Database& database, std::size_t most) const
{
    std::vector<FieldDifference> all;
    walk(database, [&](const Row& row, const std::string& now, bool isAsItWasLeft) {
        const auto& [table, fields] = m_tables[row.table];
        if (isAsItWasLeft)
            RowComparison(database.table(table), fields).addTo(all, now, before(row));
        return all.size() < most;
    });
    all.resize(std::min(all.size(), most));
    return all;
}

/// Finds out first what each row needs: a walk in the order of the work is quick.
std::size_t RowChanges::takeBack(Database& database) const
{
    std::size_t restored = 0;
    allOrNothing(database, [&] {
        std::vector<TableBack> tables;
        tables.reserve(m_tables.size());
        for (const auto& [table, fields] : m_tables)
            tables.emplace_back(connectionOf(database), table, fields);
        std::vector<std::pair<const Row*, TableBack::Update*>> rows;
        rows.reserve(m_rows.size());
        walk(database, [&](const Row& row, const std::string& now, bool isAsItWasLeft) {
            const bool isChanged = row.length > 0 && row.after != 0;
            if (isAsItWasLeft)
                rows.emplace_back(&row, isChanged ? &tables[row.table].updateFor(now, before(row)) : nullptr);
            return true;
        });
        // The latest change first: keys were free in that order.
        std::ranges::reverse(rows);
        for (const auto& [row, update] : rows) {
            TableBack& table = tables[row->table];
            if (update != nullptr) {
                table.update(row->rowId, *update, before(*row));
            } else if (row->length > 0) {
                table.insert(row->rowId, before(*row));
            } else {
                table.remove(row->rowId);
            }
        }
        restored = rows.size();
    });
    return restored;
}

} // namespace norvane::store
