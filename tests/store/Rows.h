// What stands in a database, as another program at the same file would read and change it.
#pragma once

#include "store/Database.h"
#include "store/Recordset.h"

#include <string>

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

} // namespace norvane::test
