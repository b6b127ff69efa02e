// Customers: which there are, and whether one is sound.
#include "base/CustomerSettings.h"
#include "command/CustomerList.h"
#include "command/InstallationCheck.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "customers/SetupSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// The value of a key in the customer's setup.ini, as worded in the setup dialog; the text itself if it is
/// not an entry of the list.
QString settingInWords(const ApplicationValues& values, QLatin1StringView key)
{
    const auto all = customers::settings();
    const auto setting = std::ranges::find(all, key, &customers::Setting::key);
    const QString stored = readSetting(values, key, setting->defaultText).trimmed();
    bool isNumber = false;
    const int index = stored.toInt(&isNumber);
    const QStringList items = customers::itemsOf(*setting);
    return isNumber && index >= 0 && index < items.size() ? items[index] : stored;
}

/// The last day that any sales table holds. @throws RuntimeFailure for a database that cannot be read.
QVariant lastSales(const QString& database)
{
    using namespace store::salestable;
    std::string each;
    for (const char* const table : {times, clerks, plus, mixes, financials}) {
        each += each.empty() ? "" : " UNION ALL ";
        each += "SELECT MAX(\"" + std::string(day) + "\") AS day FROM \"" + table + '"';
    }
    store::Database opened(database);
    store::BoundQuery query(opened, "SELECT MAX(day) FROM (" + each + ")", {}, database);
    const QString last = query.next() ? query.value(0).toText() : QString();
    const QDate found = QDate::fromString(last, Qt::ISODate);
    return found.isValid() ? QVariant(found) : QVariant();
}

QVariant salesInWords(const QString& database)
{
    if (!pathExists(database))
        return u"no database"_s;
    try {
        return lastSales(database);
    } catch (const RuntimeFailure&) {
        return u"unreadable"_s;
    }
}

QVariantList customerRow(const Workplace& workplace, const QString& name)
{
    const ApplicationValues values = listedCustomer(workplace, name);
    const auto exchange =
        customers::lastLogged(values.customerPath, {u"upload"_s, u"download"_s}, customers::completeResult);
    return {name,
            settingInWords(values, "ECRModel"_L1),
            settingInWords(values, "NoOfECRs"_L1),
            exchange ? QVariant(exchange->begun) : QVariant(),
            salesInWords(values.databasePath),
            noteOn(workplace, name)};
}

/// What the catalogue has and the customer's database lacks.
QStringList missingIn(const QString& database)
{
    const store::Database opened(database);
    QStringList missing;
    for (const auto& table : store::catalogue()) {
        if (!opened.hasTable(table.name)) {
            missing << u"There is no table %1."_s.arg(table.name);
            continue;
        }
        const auto stored = opened.table(table.name);
        for (const auto& field : table.fields) {
            if (store::fieldNamed(stored, field.name) == nullptr)
                missing << u"The table %1 has no field %2."_s.arg(table.name, field.name);
        }
    }
    return missing;
}

QStringList faultySettings(const ApplicationValues& values)
{
    if (!QFileInfo(existingPath(settingsPath(values))).isFile())
        return {u"There is no file %1."_s.arg(settingsPath(values))};
    try {
        (void)customers::readSettings(values);
        return {};
    } catch (const RuntimeFailure& failure) {
        return {failure.text().simplified()};
    }
}

} // namespace

void listCustomers(const Workplace& workplace, const Invocation& /*words*/)
{
    Listing listing({u"Name"_s, u"Model"_s, u"Registers"_s, u"Last exchange"_s, u"Last sales"_s, u"Note"_s});
    for (const QString& name : allCustomers(workplace))
        listing.add(customerRow(workplace, name));
    workplace.show(listing);
}

void checkCustomer(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = takeCustomer(workplace, words.operands.front());
    Listing listing({u"Part"_s, u"Finding"_s});
    const auto add = [&listing](const QString& part, const QStringList& findings) {
        for (const QString& finding : findings)
            listing.add({part, finding});
    };
    add(u"database"_s, missingIn(values.databasePath));
    add(u"settings"_s, faultySettings(values));
    add(u"installation"_s, checkInstallation(workplace.appPath).mistakes);
    if (workplace.asJson || !listing.isEmpty())
        workplace.show(listing);
    if (!listing.isEmpty())
        throw CommandError(ExitCode::Unsound, {});
    printStep(u"Nothing is wrong."_s);
}

} // namespace norvane::command
