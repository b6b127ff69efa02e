// The contents of a database, read and changed as by another program.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <string>
#include <utility>
#include <vector>

namespace norvane::test
{

/// All rows of a query: columns joined by "|", null as "null", @p between two rows.
inline std::string rowsOf(const QString& databasePath, const QString& sql, QStringView between = u" ")
{
    store::Database database(databasePath);
    QStringList rows;
    for (auto records = database.openQuery(sql); !records.atEnd(); records.moveNext()) {
        QStringList columns;
        for (int field = 0; field < records.fieldCount(); ++field)
            columns += records.value(field).isNull() ? QStringLiteral("null") : records.value(field).toText();
        rows += columns.join(u'|');
    }
    return rows.join(between).toStdString();
}

inline void execute(const QString& databasePath, const QString& sql)
{
    store::Database(databasePath).execute(sql);
}

inline store::Value text(const char* utf8)
{
    return store::Value::text(std::string(utf8));
}

inline store::Value whole(int number)
{
    return store::Value::whole(number);
}

using FieldValue = std::pair<const char*, store::Value>;

inline void addRecord(store::Database& database, const char* table, const std::vector<FieldValue>& fields)
{
    auto records = database.openTable(QLatin1String(table));
    records.addNew();
    for (const auto& [name, value] : fields)
        records.setValue(QLatin1String(name), value);
    records.update();
}

/// The field in the records of a table, in the order of its first index, separated by "|"; null as "null".
inline std::string columnOf(const QString& databasePath, const char* table, const char* field)
{
    store::Database database(databasePath);
    auto records = database.openTable(QLatin1String(table));
    std::string shown;
    for (qint64 left = records.recordCount(); left > 0; --left, records.moveNext()) {
        const auto& value = records.value(QLatin1String(field));
        shown += (shown.empty() ? "" : "|") + (value.isNull() ? "null" : value.toUtf8());
    }
    return shown;
}

} // namespace norvane::test
