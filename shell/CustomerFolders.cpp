// Listing, taking and making of customers; see CustomerFolders.h.
#include "shell/CustomerFolders.h"

#include "platform/FilePaths.h"
#include "platform/TextFields.h"
#include "store/Upgrade.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace norvane::shell
{
namespace
{

const auto databaseName = QStringLiteral("velmar.mdb");
const auto settingsName = QStringLiteral("setup.ini");

/// Character by character, and only where the result still meets the folder when it is looked up without
/// regard to case: "Straße" as "STRASSE" would not.
void toUpperCase(QString& name)
{
    for (QChar& c : name) {
        if (c.toUpper().toCaseFolded() == c.toCaseFolded())
            c = c.toUpper();
    }
}

/// A step of a path that is no name but a direction: ".", "..", and what some platforms read as such.
bool isDirection(const QString& part)
{
    return !part.isEmpty() && std::ranges::all_of(part, [](QChar c) { return c == u'.' || c == u' '; });
}

/// Whether @p name can only name a folder below the program's. A colon begins a drive or a hidden stream.
bool staysInside(const QString& name)
{
    const QString path = QString(name).replace(u'\\', u'/');
    if (path.startsWith(u'/') || path.contains(u':') || path.contains(QChar::Null))
        return false;
    return std::ranges::none_of(path.split(u'/'), isDirection);
}

/// Where a new folder is made: the folder above it may be spelled in any case, its own name is as typed.
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
    // A template installed read-only would otherwise make a customer that cannot be changed.
    return QFile::setPermissions(copy, QFile::permissions(copy) | QFile::WriteOwner);
}

} // namespace

QStringList customerFolders(const QString& appPath)
{
    // A customer whose name begins with a dot is one like any other, whatever the platform hides.
    QStringList names = QDir(appPath).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                                                QDir::Name | QDir::IgnoreCase);
    std::ranges::for_each(names, toUpperCase);
    return names;
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
    if (!staysInside(typed))
        return CustomerChoice::Failed;

    QString path = joinPath(values.appPath, typed);
    while (path.endsWith(QDir::separator()))
        path.chop(1);
    if (makeFolder(path)) {
        values.customerPath = existingPath(path);
        const bool complete = copyTemplate(values, databaseName) && copyTemplate(values, settingsName);
        return complete ? CustomerChoice::Created : CustomerChoice::Failed;
    }
    path = existingPath(path);
    if (!QFileInfo(path).isDir())
        return CustomerChoice::Failed;
    values.customerPath = path;
    store::UpgradeDatabase(customerDatabase(path));
    return CustomerChoice::Taken;
}

} // namespace norvane::shell
