// See ComboRows.h.
#include "screens/ComboRows.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/Recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

QVector<QStringList> rowsOfQuery(store::Database& database, const QString& sql)
{
    QVector<QStringList> rows{{u"0"_s, u"Not used"_s}};
    store::Recordset records = database.openQuery(sql);
    if (records.fieldCount() < 2) {
        throw RuntimeFailure(Failure::UnknownName, u"A list needs a query of two columns: %1"_s.arg(sql));
    }
    for (; !records.atEnd(); records.moveNext())
        rows += {records.value(0).toText(), records.value(1).toText()};
    return rows;
}

QVector<QStringList> rowsOfList(const QString& list)
{
    QVector<QStringList> rows;
    for (const QString& row : list.split(u',', Qt::SkipEmptyParts))
        rows += row.split(u';');
    return rows;
}

} // namespace norvane::screens
