// See NewShop.h.
#include "programme/NewShop.h"

#include "base/CustomerSettings.h"
#include "customers/CustomerFolders.h"
#include "customers/SetupSettings.h"
#include "customers/UnfinishedFolder.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "platform/Trimming.h"
#include "programme/PartRules.h"
#include "programme/ProgrammeParts.h"
#include "records/RegisterFiles.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/catalogue/DatabaseCopy.h"

#include <QDateTime>
#include <QUuid>

using namespace Qt::Literals::StringLiterals;

namespace norvane::programme
{
namespace
{

const auto settingsName = u"setup.ini"_s;
constexpr auto modelKey = "ECRModel"_L1;
constexpr auto telephoneKey = "Telephone"_L1;

/// The points that a shop's registers have counted.
const QStringList pointFields{u"POINT1"_s, u"POINT2"_s, u"POINT3"_s, u"POINT4"_s, u"POINT5"_s};

/// The extensions under which the overlay designer saves.
const QStringList overlayDocuments{u"*.Dorvik"_s, u"*.Velmar"_s, u"*.ky4"_s};
/// What it remembers with them.
const QStringList overlayNotes{u"*.Dorvik.notes"_s, u"*.Velmar.notes"_s, u"*.ky4.notes"_s};

/// PLU stock: what is on the shelves of the other shop.
constexpr int stockFile = 81;

/// Longer than making a shop takes: an older unfinished folder is of a program that was killed.
constexpr qint64 secondsUnfinished = 3600;

ApplicationValues valuesOf(const QString& folder)
{
    ApplicationValues values;
    values.customerPath = folder;
    return values;
}

/// The folder whose setup.ini the new shop begins with.
QString settingsFolder(const NewShop& shop)
{
    const bool has = !shop.likePath.isEmpty() && pathExists(joinPath(shop.likePath, settingsName));
    return shop.takesSettings && has ? shop.likePath : shop.appPath;
}

const RegisterModel& modelOf(const NewShop& shop)
{
    for (const auto& setting : shop.settings) {
        if (setting.key == modelKey)
            return modelOfText(setting.text.trimmed());
    }
    return registerModelByText(valuesOf(settingsFolder(shop)));
}

const RegisterModel& modelOfOther(const NewShop& shop)
{
    return registerModelByText(valuesOf(shop.likePath));
}

bool isSameModel(const NewShop& shop)
{
    return modelOf(shop).place == modelOfOther(shop).place;
}

void copyFile(const QString& from, const QString& to)
{
    writeWholeFile(to, readWholeFile(from));
}

qsizetype copyFiles(const QStringList& names, const QString& from, const QString& to)
{
    for (const QString& name : names)
        copyFile(joinPath(from, name), joinPath(to, name));
    return names.size();
}

/// "43.dat" and the like.
bool isFileWithoutTable(const QString& name)
{
    bool isNumber = false;
    const int number = name.section(u'.', 0, 0).toInt(&isNumber);
    return isNumber && number != stockFile && records::registerFile(number) == nullptr;
}

QStringList filesWithoutTable(const QString& folder)
{
    QStringList names = QDir(folder).entryList({u"*.dat"_s}, QDir::Files, QDir::Name);
    names.removeIf([](const QString& name) { return !isFileWithoutTable(name); });
    return names;
}

/// Makes the settings of the new shop in @p folder.
void takeSettings(const NewShop& shop, const QString& folder, TakenOver& taken)
{
    const QString from = settingsFolder(shop);
    copyFile(joinPath(from, settingsName), joinPath(folder, settingsName));
    if (from != shop.appPath) {
        taken.settings = true;
        taken.lacksTelephone = !readSetting(valuesOf(from), telephoneKey, {}).isEmpty();
        const QString text = readSetting(valuesOf(shop.appPath), telephoneKey, {});
        customers::storeSettings(folder, {{telephoneKey, text, text}});
    }
    customers::storeSettings(folder, shop.settings);
}

/// Why the registers of the new shop cannot hold a table of the other one; empty if they can.
QString refusalOf(const NewShop& shop, const QString& table)
{
    return refusalOfTable(table, modelOfOther(shop), modelOf(shop));
}

QStringList tablesToTake(const NewShop& shop)
{
    QStringList tables = shop.tables;
    tables.removeIf([&](const QString& table) { return !refusalOf(shop, table).isEmpty(); });
    if (isSameModel(shop) && tables.contains("WLU"_L1))
        tables << u"memoryallocation"_s;
    return tables;
}

void takeFromOther(const NewShop& shop, const QString& folder, TakenOver& taken)
{
    store::Database database(customers::customerDatabase(folder));
    taken.records = store::takeTables(database, customers::customerDatabase(shop.likePath),
                                      tablesToTake(shop), pointFields);
    if (isSameModel(shop) && shop.tables.size() == allProgrammeTables().size())
        taken.registerFiles = copyFiles(filesWithoutTable(shop.likePath), shop.likePath, folder);
    if (shop.takesOverlays) {
        const QDir other(shop.likePath);
        taken.overlays =
            copyFiles(other.entryList(overlayDocuments, QDir::Files, QDir::Name), shop.likePath, folder);
        (void)copyFiles(other.entryList(overlayNotes, QDir::Files, QDir::Name), shop.likePath, folder);
    }
}

void checkName(const NewShop& shop, const QString& path)
{
    if (trimBlanks(shop.name).isEmpty())
        throw NewShopError(NewShopProblem::BadName, u"Type a name for the new customer."_s);
    const QFileInfo above(existingPath(QFileInfo(path).path()));
    if (path.isEmpty() || !above.isDir()) {
        throw NewShopError(NewShopProblem::BadName,
                           u"\"%1\" cannot be the name of a customer. It becomes the name of a folder in the "
                           "program's folder."_s.arg(shop.name));
    }
    if (pathExists(path)) {
        throw NewShopError(
            NewShopProblem::Exists,
            u"There is a customer or file \"%1\" already. Choose another name."_s.arg(shop.name));
    }
}

void checkOther(const QString& likePath)
{
    const QString database = customers::customerDatabase(likePath);
    const QString name = QDir(likePath).dirName();
    if (!pathExists(database))
        throw NewShopError(NewShopProblem::NoSource, u"%1 has no database."_s.arg(name));
    if (store::isFormerDatabase(database)) {
        throw NewShopError(
            NewShopProblem::Former,
            u"The database of %1 was made by the former program. Convert it first: choose %1, or run "
            "\"norvane-shop convert\"."_s.arg(name));
    }
    if (!store::damageOf(database).isEmpty())
        throw NewShopError(NewShopProblem::Damaged, customers::damageReport(likePath));
}

void removeLeftovers(const QString& appPath)
{
    const QDir folder(appPath);
    const auto now = QDateTime::currentDateTime();
    for (const QFileInfo& left : folder.entryInfoList({customers::unfinishedPrefix + u'*'},
                                                      QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
        if (left.lastModified().secsTo(now) > secondsUnfinished)
            QDir(left.filePath()).removeRecursively();
    }
}

} // namespace

QStringList allProgrammeTables()
{
    QStringList tables;
    for (const ProgrammePart& part : programmeParts())
        tables << tablesOf(part);
    return tables;
}

QString inWords(const TakenOver& taken)
{
    QStringList words;
    const auto add = [&words](qint64 count, const QString& one, const QString& several) {
        if (count > 0)
            words << u"%1 %2"_s.arg(count).arg(count == 1 ? one : several);
    };
    if (taken.settings)
        words << u"settings"_s;
    add(taken.records, u"record"_s, u"records"_s);
    add(taken.registerFiles, u"register file"_s, u"register files"_s);
    add(taken.overlays, u"overlay document"_s, u"overlay documents"_s);
    return words.isEmpty() ? u"nothing"_s : words.join(u", "_s);
}

QString telephoneNotice()
{
    return u"The telephone number of the registers was not taken: enter that of the new customer in the "
           "settings."_s;
}

TakenOver makeNewShop(const NewShop& shop, Boxes& boxes)
{
    const QString path = customers::folderFor(shop.appPath, shop.name);
    checkName(shop, path);
    std::unique_ptr<FolderLock> lock;
    if (!shop.likePath.isEmpty()) {
        checkOther(shop.likePath);
        lock = FolderLock::take(shop.likePath, boxes);
        if (lock == nullptr)
            throw NewShopError(NewShopProblem::Busy, {});
    }
    removeLeftovers(shop.appPath);
    customers::UnfinishedFolder folder(
        joinPath(shop.appPath, customers::unfinishedPrefix + QUuid::createUuid().toString(QUuid::Id128)));
    TakenOver taken;
    takeSettings(shop, folder.path(), taken);
    copyFile(joinPath(shop.appPath, databaseFileName), joinPath(folder.path(), databaseFileName));
    if (lock != nullptr)
        takeFromOther(shop, folder.path(), taken);
    folder.keepAs(joinPath(existingPath(QFileInfo(path).path()), QFileInfo(path).fileName()));
    return taken;
}

QString modelNotice(const NewShop& shop)
{
    if (shop.likePath.isEmpty() || shop.tables.isEmpty() || isSameModel(shop))
        return {};
    const RegisterModel& model = modelOf(shop);
    const RegisterModel& other = modelOfOther(shop);
    QStringList sentences{
        u"The model of %1 is %2, that of the new customer %3. Records are taken as they are; "
        "screens show what the new model has."_s.arg(
            QDir(shop.likePath).dirName(), customers::modelInWords(other), customers::modelInWords(model))};
    for (const ProgrammePart& part : programmeParts()) {
        const QString table = tablesOf(part).front();
        if (const QString reason = refusalOf(shop, table); !reason.isEmpty() && shop.tables.contains(table))
            sentences << u"%1 are not taken: %2"_s.arg(part.label, reason);
    }
    if (model.messageWidth < other.messageWidth) {
        sentences << u"Lines of messages are cut to %1 characters when they are sent."_s.arg(
            model.messageWidth);
    }
    sentences << u"Register files without a table, such as printer tables, are not taken."_s;
    return sentences.join(u' ');
}

} // namespace norvane::programme
