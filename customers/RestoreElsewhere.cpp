// The way back from a copy elsewhere; see CopiesElsewhere.h.
#include "base/ApplicationValues.h"
#include "customers/CopiesElsewhere.h"
#include "customers/CopyArchive.h"
#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "customers/UnfinishedFolder.h"
#include "platform/FilePaths.h"
#include "store/catalogue/DatabaseCheck.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QUuid>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

const auto chainIdentity = u"norvane-chain.ini"_s;

/// Of an existing customer these are not put back: a list that was stored since would be stored again, and
/// the log also has what came after the copy. Settings and register files are restored with the tables.
const QStringList& keptAsTheyAre()
{
    static const QStringList patterns{u"velmar.mdb"_s, u"planned/*"_s, u"norvane.log"_s,
                                      u"*.ini"_s,      u"*.dat"_s,     u"*.dat.former"_s};
    return patterns;
}

/// Unpacks everything into @p folder. @return the name of the customer in the copy.
QString unpackInto(const QString& folder, const QString& path, const GoOn& goOn)
{
    CopyArchive archive(path);
    const auto targetOf = [&folder](const QString& name) {
        QString target = joinPath(folder, name.section(u'/', 1));
        if (!QDir().mkpath(QFileInfo(target).path()))
            throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be written."_s.arg(target));
        return target;
    };
    archive.unpack(targetOf, goOn);
    return archive.names().value(0).section(u'/', 0, 0);
}

void checkUnpacked(const QString& folder, const QString& path)
{
    const QString database = joinPath(folder, databaseFileName);
    const QString damage = pathExists(database) ? store::damageOf(database) : u"it has no database."_s;
    if (!damage.isEmpty())
        throw RuntimeFailure(Failure::NotOurDatabase, u"The copy %1 is damaged: %2"_s.arg(path, damage));
    const store::Database opened(database);
}

/// Puts a document back; one that differs is kept in the folder @p aside.
void putBackDocument(const QString& from, const QString& to, const QString& aside)
{
    const QByteArray content = readWholeFile(from);
    if (pathExists(to)) {
        const QByteArray now = readWholeFile(to);
        if (now == content)
            return;
        writeWholeFile(joinPath(aside, QFileInfo(to).fileName()), now);
    }
    if (!QDir().mkpath(QFileInfo(to).path()))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be written."_s.arg(to));
    writeWholeFile(to, content);
}

void putBackDocuments(const QString& unpacked, const QString& customerPath)
{
    const auto copies = safetyCopies(customerPath);
    const QString aside = copies.isEmpty() ? customerPath : copies.front().path;
    const QDir folder(unpacked);
    QDirIterator all(unpacked, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        const QString name = folder.relativeFilePath(path);
        if (!QDir::match(keptAsTheyAre(), name))
            putBackDocument(path, joinPath(customerPath, name), aside);
    }
}

} // namespace

QString restoreCopyElsewhere(const QString& path, const QString& customerPath, const GoOn& goOn)
{
    const QFileInfo customer(customerPath);
    UnfinishedFolder unpacked(
        joinPath(customer.path(), unfinishedPrefix + QUuid::createUuid().toString(QUuid::Id128)));
    const QString shop = unpackInto(unpacked.path(), path, goOn);
    checkUnpacked(unpacked.path(), path);
    // Another customer must not be taken for the same shop of a chain.
    const bool isSame = shop.compare(customer.fileName(), Qt::CaseInsensitive) == 0;
    if (!isSame || pathExists(joinPath(customerPath, chainIdentity)))
        QFile::remove(joinPath(unpacked.path(), chainIdentity));
    const SafetyCopy copy{QFileInfo(path).fileName(), unpacked.path(), {}, {}};
    if (!customer.exists()) {
        unpacked.keepAs(customerPath);
        LoggedWork(customerPath, u"restore"_s).setResult(u"restored %1"_s.arg(copy.name));
        return {};
    }
    QString notice = restoreSafetyCopy(customerPath, copy);
    putBackDocuments(unpacked.path(), customerPath);
    return notice;
}

} // namespace norvane::customers
