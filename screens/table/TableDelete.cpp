// See TableDelete.h.
#include "screens/table/TableDelete.h"

#include "base/LossQuestion.h"
#include "customers/CustomerLog.h"
#include "customers/DataOwner.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "platform/RuntimeFailure.h"
#include "register/PluNumber.h"
#include "screens/KeyUses.h"
#include "screens/SaveNotices.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Recordset.h"
#include "store/engine/ShortWait.h"
#include "store/engine/WorkHistory.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Records in use that the question names at most.
constexpr qsizetype mostUsed = 10;

QString recordsInWords(const QStringList& keys)
{
    return keys.size() == 1 ? u"1 record"_s : u"%1 records"_s.arg(keys.size());
}

/// "PLU 1001 is used in 3 places", for each that is used.
QStringList usedLines(store::Database& database, const TableInUse& table, const QStringList& keys,
                      int keysPerLevel)
{
    const auto counts = countUses(database, table.source.table, keysPerLevel);
    QStringList lines;
    for (const QString& key : keys) {
        if (const int count = counts.value(key); count > 0) {
            lines += u"%1 %2 is used in %3"_s.arg(table.recordName, shownKey(table.source.keyField, key),
                                                  count == 1 ? u"1 place"_s : u"%1 places"_s.arg(count));
        }
    }
    return lines;
}

QString questionOf(const TableInUse& table, const QStringList& keys, const QStringList& used)
{
    QString text = u"Delete %1 from the table of %2?"_s.arg(recordsInWords(keys), table.caption);
    if (used.isEmpty())
        return text;
    text += u"\r\r"_s + used.first(std::min(mostUsed, used.size())).join(u'\r');
    if (used.size() > mostUsed)
        text += u"\rand %1 more"_s.arg(used.size() - mostUsed);
    return text + u"\r\rThey will be without it."_s;
}

void deleteAll(store::Database& database, const TableSource& source, const QStringList& keys)
{
    const auto indexes = database.table(source.table).indexes;
    const auto index = std::ranges::find(indexes, source.keyField, &store::IndexDefinition::field);
    store::allOrNothing(database, [&] {
        store::Recordset records = database.openTable(source.table);
        records.setIndex(index->names.first());
        for (const QString& key : keys) {
            if (records.seek(store::Seek::Equal, store::Value::text(key)))
                records.deleteRecord();
        }
    });
}

QString deleteAfterQuestion(store::Database& database, const TableInUse& table, const QStringList& keys,
                            int keysPerLevel, Boxes& boxes)
{
    if (!askBeforeLoss(boxes, questionOf(table, keys, usedLines(database, table, keys, keysPerLevel))))
        return u"Nothing was deleted"_s;
    const ApplicationValues owner = customers::ownerOfData(table.values);
    const auto lock = customers::RunLock::take(owner, boxes);
    if (lock == nullptr)
        return u"Nothing was deleted: another run is using the customer"_s;
    const QString amount = recordsInWords(keys);
    customers::LoggedWork work(owner.customerPath, u"Table %1, %2 deleted"_s.arg(table.caption, amount));
    work.setResult(u"no safety copy"_s);
    if (!customers::copyBeforeJob(owner, boxes, u"before table change"_s))
        return u"Nothing was deleted: a safety copy could not be made"_s;
    store::RecordedWork recorded(table.history, database, table.values.databasePath, {table.source.table});
    recorded.setName(u"%1: %2 deleted"_s.arg(table.caption, amount));
    work.during([&] { deleteAll(database, table.source, keys); });
    work.setResult(QString(customers::completeResult));
    return u"Deleted %1. Ctrl+Z undoes it"_s.arg(amount);
}

} // namespace

QString deleteRecords(store::Database& database, const TableInUse& table, const QStringList& keys,
                      int keysPerLevel, Boxes& boxes)
{
    const store::ShortWait wait(database);
    try {
        return deleteAfterQuestion(database, table, keys, keysPerLevel, boxes);
    } catch (const RuntimeFailure& failure) {
        return u"Nothing was deleted: "_s + failure.text();
    }
}

} // namespace norvane::screens
