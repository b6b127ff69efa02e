// New customers, alone or like another, and the settings of a customer.
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "customers/RunLock.h"
#include "customers/SettingWords.h"
#include "programme/NewShop.h"
#include "programme/ProgrammeParts.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto settingsPart = "settings"_L1;
constexpr auto overlaysPart = "overlays"_L1;

ExitCode exitCodeOf(programme::NewShopProblem problem)
{
    switch (problem) {
    case programme::NewShopProblem::BadName:
        return ExitCode::Usage;
    case programme::NewShopProblem::Exists:
        return ExitCode::CustomerExists;
    case programme::NewShopProblem::NoSource:
        return ExitCode::NoCustomer;
    case programme::NewShopProblem::Former:
    case programme::NewShopProblem::Damaged:
        return ExitCode::Unsound;
    case programme::NewShopProblem::Busy:
        break;
    }
    return ExitCode::Busy;
}

/// @throws CommandError Usage
customers::StoredSetting settingOf(const QString& key, const QString& words)
{
    try {
        return customers::settingInWords(key.trimmed(), words.trimmed());
    } catch (const customers::SettingError& error) {
        throw CommandError(ExitCode::Usage, error.text());
    }
}

[[noreturn]] void failUnknownPart(const QStringList& names)
{
    QStringList parts{settingsPart, overlaysPart};
    for (const auto& part : programme::programmeParts())
        parts << part.name;
    throw CommandError(ExitCode::Usage,
                       u"There is no part \"%1\". The parts are: %2, and each table by its name."_s.arg(
                           names.join(u"\", \""_s), parts.join(u", "_s)));
}

/// Leaves out what --without names. @throws CommandError Usage
void leaveOut(const QString& without, programme::NewShop& shop)
{
    QStringList names = without.split(u',', Qt::SkipEmptyParts);
    const auto takes = [&names](QLatin1StringView part) {
        return names.removeIf(
                   [part](const QString& name) { return name.compare(part, Qt::CaseInsensitive) == 0; }) == 0;
    };
    shop.takesSettings = takes(settingsPart);
    shop.takesOverlays = takes(overlaysPart);
    QStringList unknown;
    const QStringList tables = programme::tablesNamed(names, unknown);
    if (!unknown.isEmpty())
        failUnknownPart(unknown);
    shop.tables.removeIf([&tables](const QString& table) { return tables.contains(table); });
}

/// @throws CommandError Usage, NoCustomer, NoSuchName
programme::NewShop shopOf(const Workplace& workplace, const Invocation& words)
{
    programme::NewShop shop;
    shop.appPath = workplace.appPath;
    shop.name = words.operands.front();
    constexpr std::pair<QLatin1StringView, QLatin1StringView> options[] = {
        {"model"_L1, "ECRModel"_L1}, {"registers"_L1, "NoOfECRs"_L1}, {"port"_L1, "Port"_L1}};
    for (const auto& [option, key] : options) {
        if (words.has(option))
            shop.settings << settingOf(key, words.value(option));
    }
    if (words.has("like"_L1)) {
        shop.likePath = findCustomer(workplace, words.value("like"_L1)).customerPath;
        shop.tables = programme::allProgrammeTables();
        leaveOut(words.value("without"_L1), shop);
    } else if (words.has("without"_L1)) {
        throw CommandError(ExitCode::Usage,
                           u"--without leaves out parts of what --like takes: name a customer there, too."_s);
    }
    return shop;
}

QString wordsOf(const QList<customers::StoredSetting>& settings)
{
    QStringList words;
    for (const auto& setting : settings)
        words << u"%1=%2"_s.arg(setting.key, setting.words);
    return words.join(u", "_s);
}

QString madeInWords(const programme::NewShop& shop, const programme::TakenOver& taken)
{
    QString text = u"%1 is a new customer"_s.arg(shop.name);
    if (!shop.likePath.isEmpty())
        text += u" like %1: %2"_s.arg(QFileInfo(shop.likePath).fileName(), programme::inWords(taken));
    return shop.settings.isEmpty() ? text : u"%1; %2"_s.arg(text, wordsOf(shop.settings));
}

/// One sentence, or for programs a listing of one row.
void show(const Workplace& workplace, const QString& shop, const QString& result, const QString& sentence)
{
    if (!workplace.asJson) {
        print((sentence + u".\n"_s).toLocal8Bit());
        return;
    }
    Listing listing({u"Shop"_s, u"Result"_s});
    listing.add({shop, result});
    workplace.show(listing);
}

} // namespace

void newCustomer(const Workplace& workplace, const Invocation& words)
{
    const programme::NewShop shop = shopOf(workplace, words);
    // A killed run would leave an unfinished folder; it is made in seconds.
    catchStopSignals();
    try {
        const auto taken = programme::makeNewShop(shop, workplace.boxes);
        const QString made = madeInWords(shop, taken);
        show(workplace, shop.name, made, made);
        if (taken.lacksTelephone)
            printMessage(programme::telephoneNotice());
    } catch (const programme::NewShopError& error) {
        throw CommandError(exitCodeOf(error.problem()), error.text());
    }
    if (const QString notice = programme::modelNotice(shop); !notice.isEmpty())
        printMessage(notice);
}

void setSettings(const Workplace& workplace, const Invocation& words)
{
    const ApplicationValues values = findCustomer(workplace, words.operands.front());
    QList<customers::StoredSetting> changes;
    for (const QString& change : words.operands.sliced(1)) {
        const qsizetype equals = change.indexOf(u'=');
        if (equals < 0)
            throw CommandError(ExitCode::Usage, u"\"%1\" is not KEY=VALUE."_s.arg(change));
        changes << settingOf(change.first(equals), change.sliced(equals + 1));
    }
    const auto lock = lockFor(workplace, values);
    customers::LoggedWork work(values.customerPath, u"settings"_s);
    work.during([&] { customers::storeSettings(values.customerPath, changes); });
    work.setResult(wordsOf(changes));
    show(workplace, values.customerName, wordsOf(changes),
         u"%1: %2"_s.arg(values.customerName, wordsOf(changes)));
}

} // namespace norvane::command
