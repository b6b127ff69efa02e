// Listing, taking and making of customers; see CustomerFolders.h.
#include "shell/CustomerFolders.h"

#include "platform/FilePaths.h"
#include "platform/TextFields.h"
#include "store/Upgrade.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

const auto databaseName = u"velmar.mdb"_s;
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

/// Whether @p name can only lead to a folder inside the program's. A colon ends a drive or starts a hidden
/// stream.
bool staysInside(const QString& name)
{
    const QString path = QString(name).replace(u'\\', u'/');
    if (path.startsWith(u'/') || path.contains(u':') || path.contains(QChar::Null))
        return false;
    return std::ranges::none_of(path.split(u'/'), isDirection);
}

/// Makes the folder with its name as typed; the folders above it may be spelled in any case.
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

/// Makes a customer of the new folder @p path.
CustomerChoice fillFolder(ApplicationValues& values, const QString& path)
{
    values.customerPath = existingPath(path);
    const bool complete = copyTemplate(values, databaseName) && copyTemplate(values, settingsName);
    return complete ? CustomerChoice::Created : CustomerChoice::Failed;
}

CustomerChoice takeFolder(ApplicationValues& values, const QString& path)
{
    if (!QFileInfo(path).isDir())
        return CustomerChoice::Failed;
    values.customerPath = path;
    const QString database = customerDatabase(path);
    store::UpgradeDatabase(database);
    store::completeDatabase(database);
    return CustomerChoice::Taken;
}

} // namespace

QStringList customerFolders(const QString& appPath)
{
    // A customer's name may begin with a dot, which some platforms take for hidden.
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
    return makeFolder(path) ? fillFolder(values, path) : takeFolder(values, existingPath(path));
}

} // namespace norvane::shell
