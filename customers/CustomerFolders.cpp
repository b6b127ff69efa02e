// Listing, taking and making of customers; see CustomerFolders.h.
#include "customers/CustomerFolders.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/Trimming.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/catalogue/Upgrade.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

const QString databaseName(databaseFileName);
const auto settingsName = u"setup.ini"_s;

/// Changes only characters that still match when case is ignored. "Straße" must not become "STRASSE", which
/// is another folder.
void toUpperCase(QString& name)
{
    for (QChar& c : name) {
        if (c.toUpper().toCaseFolded() == c.toCaseFolded())
            c = c.toUpper();
    }
}

/// Whether @p part is ".", "..", or what some platforms read as one of them ("...", ".. ").
bool isDirection(const QString& part)
{
    return !part.isEmpty() && std::ranges::all_of(part, [](QChar c) { return c == u'.' || c == u' '; });
}

bool isUnfinished(const QString& part)
{
    return part.startsWith(unfinishedPrefix, Qt::CaseInsensitive);
}

/// Whether @p name can only lead to a customer's folder inside the program's. A colon ends a drive or begins
/// a hidden stream.
bool staysInside(const QString& name)
{
    const QString path = QString(name).replace(u'\\', u'/');
    if (path.startsWith(u'/') || path.contains(u':') || path.contains(QChar::Null))
        return false;
    return std::ranges::none_of(path.split(u'/'),
                                [](const QString& part) { return isDirection(part) || isUnfinished(part); });
}

/// Makes the folder with its name as typed; the folders above it are matched in any case.
bool makeFolder(const QString& path)
{
    const QFileInfo folder(path);
    const QDir above(existingPath(folder.path()));
    return !pathExists(path) && above.exists() && above.mkdir(folder.fileName());
}

bool copyTemplate(const ApplicationValues& values, const QString& name)
{
    const QString copy = joinPath(values.customerPath, name);
    if (!QFile::copy(existingPath(joinPath(values.appPath, name)), copy))
        return false;
    // The copy of a read-only template could not be changed otherwise.
    return QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
}

/// A copy that is cut off leaves a file of this name, never a part of the database.
const auto unfinishedCopy = u"qt_temp.*"_s;

bool hasTemplateCopy(const QString& path, const QString& name)
{
    return QFileInfo(existingPath(joinPath(path, name))).isFile();
}

/// Whether the folder @p path holds nothing but files that a customer has: the database with its journals,
/// the settings, kept register files and what a run notes there.
bool holdsOnlyCustomerFiles(const QString& path)
{
    static const QStringList customerFiles{
        databaseName,  databaseName + u"-*"_s, u"velmar.former*"_s, u"velmar.converting*"_s,
        settingsName,  unfinishedCopy,         u"*.dat"_s,          u"*.dat.*"_s,
        u"norvane*"_s, runNotesName()};
    const auto entries =
        QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    const auto files = QDir(path).entryList(customerFiles, QDir::Files | QDir::Hidden);
    return entries.size() == files.size();
}

void removeUnfinishedCopies(const QString& path)
{
    QDir folder(path);
    for (const QString& name : folder.entryList({unfinishedCopy}, QDir::Files))
        folder.remove(name);
}

/// Copies what the customer's folder lacks.
CustomerChoice fillFolder(const ApplicationValues& values)
{
    removeUnfinishedCopies(values.customerPath);
    for (const QString& name : {databaseName, settingsName}) {
        if (!hasTemplateCopy(values.customerPath, name) && !copyTemplate(values, name))
            return CustomerChoice::Failed;
    }
    return CustomerChoice::Created;
}

bool wasCutOff(const QString& path)
{
    const bool complete = hasTemplateCopy(path, databaseName) && hasTemplateCopy(path, settingsName);
    return !complete && holdsOnlyCustomerFiles(path);
}

/// A file that cannot be read is not a new database.
bool holdsRecords(const QString& path)
{
    try {
        store::Database database(path);
        return std::ranges::any_of(database.tableNames(), [&database](const QString& table) {
            return database.openTable(table).hasCurrent();
        });
    } catch (const RuntimeFailure&) {
        return true;
    }
}

CustomerChoice takeFolder(ApplicationValues& values, const QString& path)
{
    if (!QFileInfo(path).isDir())
        return CustomerChoice::Failed;
    values.customerPath = path;
    const bool isFilled = wasCutOff(path);
    if (isFilled && fillFolder(values) == CustomerChoice::Failed)
        return CustomerChoice::Failed;
    const QString database = customerDatabase(path);
    if (store::isFormerDatabase(database))
        return CustomerChoice::Former;
    // Each write to a damaged file makes it worse, and a later copy of it replaces the last good one.
    if (!store::damageOf(database).isEmpty())
        return CustomerChoice::Damaged;
    store::UpgradeDatabase(database);
    store::completeDatabase(database);
    if (!isFilled)
        return CustomerChoice::Taken;
    return holdsRecords(database) ? CustomerChoice::NewSettings : CustomerChoice::Created;
}

CustomerChoice makeCustomer(ApplicationValues& values, const QString& path)
{
    values.customerPath = existingPath(path);
    return fillFolder(values);
}

} // namespace

QStringList customerNames(const QString& appPath)
{
    // A customer's name may begin with a dot, which some platforms take for hidden.
    QStringList names = QDir(appPath).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                                                QDir::Name | QDir::IgnoreCase);
    names.removeIf(isUnfinished);
    return names;
}

QStringList customerFolders(const QString& appPath)
{
    QStringList names = customerNames(appPath);
    std::ranges::for_each(names, toUpperCase);
    return names;
}

QString folderFor(const QString& appPath, const QString& typed)
{
    if (trimBlanks(typed).isEmpty() || !staysInside(typed))
        return {};
    QString path = joinPath(appPath, typed);
    while (path.endsWith(QDir::separator()))
        path.chop(1);
    return path;
}

QStringList foldersNamed(const QString& appPath, const QString& name)
{
    if (trimBlanks(name).isEmpty() || !staysInside(name))
        return {};
    const QFileInfo wanted(joinPath(appPath, name));
    if (wanted.isDir())
        return {wanted.filePath()};
    QStringList found;
    const QDir above(existingPath(wanted.path()));
    for (const QString& entry :
         above.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name)) {
        if (entry.compare(wanted.fileName(), Qt::CaseInsensitive) == 0)
            found << above.filePath(entry);
    }
    return found;
}

QString damageReport(const QString& customerPath)
{
    const QString database = customerDatabase(customerPath);
    const bool hasCopies = pathExists(joinPath(customerPath, u"copies"_s));
    const QString way = hasCopies ? u"Put a safety copy (right mouse button on the customer's line, or "
                                    "norvane-shop restore) or a copy of the customer's folder"_s
                                  : u"Put a copy of the customer's folder"_s;
    return u"The database of this customer is damaged:\r%1\r\r%2\r\rNothing was changed in it. %3 in its "
           u"place, then choose the customer again."_s.arg(database, store::damageOf(database), way);
}

QString newSettingsReport()
{
    return u"The settings of this customer (setup.ini) were missing. The standard settings are used now.\r\r"
           "Check the port, the number of registers and the model under \"Setup\" before you fetch or send "
           "anything. The database was not changed."_s;
}

QString customerDatabase(const QString& customerPath)
{
    return existingPath(joinPath(customerPath, databaseName));
}

CustomerChoice chooseCustomer(ApplicationValues& values, const QString& typed)
{
    values.customerName = typed;
    if (trimBlanks(typed).isEmpty())
        return CustomerChoice::InvalidEntry;
    const QString path = folderFor(values.appPath, typed);
    if (path.isEmpty())
        return CustomerChoice::Failed;
    return makeFolder(path) ? makeCustomer(values, path) : takeFolder(values, existingPath(path));
}

} // namespace norvane::customers
