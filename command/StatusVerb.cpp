// The state of each shop: the last exchange, what was not sent, sales that were not cleared or collected.
#include "command/CustomerList.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "exchange/UnsentChanges.h"
#include "platform/RuntimeFailure.h"
#include "sales/RecentTakings.h"
#include "sales/UnclearedSales.h"
#include "store/engine/Database.h"

#include <QDate>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// What its notes and log say, which needs no database.
QVariantList exchangeOf(const ApplicationValues& values)
{
    const auto last = customers::lastLogged(values.customerPath, {u"upload"_s, u"download"_s});
    if (!last)
        return {{}, {}, {}};
    return {last->begun, u"%1, %2"_s.arg(last->work, last->registers), last->result};
}

/// Sales that came into the database in another way have a day but no note. A clock that was set back has no
/// days before today.
QVariant daysWithoutCollection(const ApplicationValues& values)
{
    const QDate today = QDate::currentDate();
    store::Database database(values.databasePath);
    const QDate last = std::max(sales::readLastCollection(values).stored.date(),
                                sales::recentTakings(database, today).lastCollected);
    return last.isValid() ? QVariant(std::max(qint64{0}, last.daysTo(today))) : QVariant();
}

QVariant unclearedSince(const ApplicationValues& values)
{
    const auto uncleared = sales::unclearedCollection(values);
    return uncleared ? QVariant(uncleared->stored) : QVariant();
}

/// @throws RuntimeFailure if the database or the settings cannot be read.
QVariantList databaseOf(const ApplicationValues& values)
{
    const exchange::UnsentTotal unsent = exchange::totalOf(exchange::unsentChanges(values));
    return {unsent.changes.records, unsent.changes.files, exchange::boxNames(unsent.boxes),
            unclearedSince(values), daysWithoutCollection(values)};
}

QVariantList statusRow(const Workplace& workplace, const ApplicationValues& values)
{
    QVariantList ofDatabase{{}, {}, {}, {}, {}};
    QString note = noteOn(workplace, values.customerName);
    try {
        if (note.isEmpty())
            ofDatabase = databaseOf(values);
    } catch (const RuntimeFailure& failure) {
        note = failure.text().simplified();
    }
    return QVariantList{values.customerName} + exchangeOf(values) + ofDatabase + QVariantList{note};
}

} // namespace

void showStatus(const Workplace& workplace, const Invocation& words)
{
    Listing listing({u"Name"_s, u"Last exchange"_s, u"Direction"_s, u"Result"_s, u"Records not sent"_s,
                     u"Files not sent"_s, u"Boxes not sent"_s, u"Sales not cleared"_s,
                     u"Days without collection"_s, u"Note"_s});
    if (words.operands.isEmpty()) {
        for (const QString& name : allCustomers(workplace))
            listing.add(statusRow(workplace, listedCustomer(workplace, name)));
    }
    for (const QString& name : words.operands)
        listing.add(statusRow(workplace, findCustomer(workplace, name)));
    workplace.show(listing);
}

} // namespace norvane::command
