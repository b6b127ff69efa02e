// Making, thinning and checking copies elsewhere; see CopiesElsewhere.h.
#include "customers/CopiesElsewhere.h"

#include "base/ApplicationValues.h"
#include "base/CustomerSettings.h"
#include "customers/CopyArchive.h"
#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "customers/UnfinishedFolder.h"
#include "platform/FilePaths.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/catalogue/DatabaseCopy.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

const auto copyNameFormat = u"yyyy-MM-dd HH.mm.ss"_s;
const auto copySuffix = u".zip"_s;

/// Of the customer's own folder: the database is copied as of one moment, and what is noted about the
/// registers is true of today only.
const QStringList& leftOutFiles()
{
    static const QStringList patterns{u"velmar.*"_s, u"norvane.lock"_s, u"norvane.sent"_s,
                                      QString(sumsFileName), runNotesName()};
    return patterns;
}
/// Of its folders: the safety copies.
constexpr auto leftOutFolder = "copies/"_L1;

bool isLeftOut(const QString& name)
{
    return name.startsWith(leftOutFolder, Qt::CaseInsensitive) ||
           (!name.contains(u'/') && QDir::match(leftOutFiles(), name));
}

/// What is copied beside the database, in the order of the names.
QList<ArchivedFile> filesBeside(const QString& customerPath)
{
    const QDir folder(customerPath);
    const QString shop = folder.dirName();
    QList<ArchivedFile> files;
    QDirIterator all(customerPath, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        const QString name = folder.relativeFilePath(path);
        if (!isLeftOut(name))
            files << ArchivedFile{path, shop + u'/' + name};
    }
    std::ranges::sort(files, {}, &ArchivedFile::name);
    return files;
}

QString freeCopyName(const QString& folder, const QString& wanted)
{
    QString name = wanted + copySuffix;
    for (int number = 2; QFileInfo::exists(joinPath(folder, name)); ++number)
        name = u"%1 (%2)"_s.arg(wanted).arg(number) + copySuffix;
    return joinPath(folder, name);
}

/// A power cut after the rename must not lose the name.
void syncFolder(const QString& folder)
{
#ifdef Q_OS_UNIX
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        ::fsync(handle);
        ::close(handle);
    }
#endif
}

/// Writes and checks the copy in a folder of its own, from which it moves under its name.
CopyElsewhere makeCopyIn(const QString& folder, const QString& customerPath, const QDateTime& now,
                         const GoOn& goOn)
{
    const UnfinishedFolder scratch(joinPath(folder, u"unfinished"_s));
    const QString database = joinPath(scratch.path(), databaseFileName);
    const QString made = joinPath(scratch.path(), u"copy"_s + copySuffix);
    store::copyDatabase(customerDatabase(customerPath), database, store::CopyOf::Everything);
    const QString shop = QDir(customerPath).dirName();
    writeArchive(made,
                 QList{ArchivedFile{database, shop + u'/' + databaseFileName}} + filesBeside(customerPath),
                 goOn);
    if (const QString fault = faultOfCopy(made, scratch.path(), goOn); !fault.isEmpty())
        throw RuntimeFailure(Failure::NotOurDatabase, u"Nothing was copied. %1"_s.arg(fault));
    const QString path = freeCopyName(folder, now.toString(copyNameFormat));
    if (!QFile::rename(made, path))
        throw RuntimeFailure(Failure::PathOrFileAccess, u"%1 cannot be written."_s.arg(path));
    syncFolder(folder);
    return {path, now};
}

/// A row of the rule: how many are kept, and what all copies of one span share.
struct KeptSpan {
    int CopyRule::*count;
    QString (*span)(QDate day);
};
constexpr auto keptSpans = std::to_array<KeptSpan>({
    {&CopyRule::days,
     [](QDate day) {
         return day.toString(Qt::ISODate);
     }},
    {&CopyRule::weeks,
     [](QDate day) {
         return day.addDays(1 - day.dayOfWeek()).toString(Qt::ISODate);
     }},
    {&CopyRule::months,
     [](QDate day) {
         return day.toString(u"yyyy-MM"_s);
     }},
});

/// The latest copy of each of the last spans.
void keepLatest(const KeptSpan& kept, int count, const QList<CopyElsewhere>& copies, QStringList& paths)
{
    QString last;
    for (const CopyElsewhere& copy : copies) {
        const QString span = kept.span(copy.made.date());
        if (span == last)
            continue;
        if (--count < 0)
            return;
        last = span;
        paths << copy.path;
    }
}

/// @throws RuntimeFailure with Failure::PathOrFileAccess
void checkTarget(const QString& customerPath, const QString& folder)
{
    // A disk that is not connected must not be replaced by a new folder on this one.
    if (!QFileInfo(folder).isDir()) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"There is no folder %1. Is its disk connected?"_s.arg(folder));
    }
    // Each copy would contain all earlier ones.
    const QString own = QFileInfo(customerPath).canonicalFilePath() + u'/';
    const QString target = QFileInfo(folder).canonicalFilePath() + u'/' + QDir(customerPath).dirName() + u'/';
    if (target.startsWith(own)) {
        throw RuntimeFailure(
            Failure::PathOrFileAccess,
            u"The copies would be in the customer's own folder %1. Choose another disk."_s.arg(customerPath));
    }
}

/// Never removes the copy that was just made: after a clock was set back, others have later names.
void removeSurplus(const QList<CopyElsewhere>& copies, const CopyRule& rule, const QString& made)
{
    for (const CopyElsewhere& surplus : surplusCopies(copies, rule)) {
        if (QFileInfo(surplus.path).fileName() != made)
            QFile::remove(surplus.path);
    }
}

QString databaseIn(const CopyArchive& archive)
{
    const auto found = std::ranges::find_if(archive.names(), [](const QString& name) {
        return name.count(u'/') == 1 && name.endsWith(u'/' + databaseFileName);
    });
    return found == archive.names().end() ? QString() : *found;
}

void readAll(const QString& path, const QString& databasePath, const GoOn& goOn)
{
    CopyArchive archive(path);
    const QString database = databaseIn(archive);
    if (database.isEmpty())
        throw RuntimeFailure(Failure::NotOurDatabase, u"The copy %1 has no database."_s.arg(path));
    archive.unpack([&](const QString& name) { return name == database ? databasePath : QString(); }, goOn);
}

} // namespace

QList<CopyElsewhere> copiesElsewhere(const QString& folder, const QString& customer)
{
    const QDir own(joinPath(folder, customer));
    QList<CopyElsewhere> copies;
    for (const QString& name : own.entryList({u'*' + copySuffix}, QDir::Files | QDir::NoSymLinks)) {
        const QDateTime made = QDateTime::fromString(name.left(copyNameFormat.size()), copyNameFormat);
        if (made.isValid())
            copies << CopyElsewhere{own.filePath(name), made};
    }
    std::ranges::sort(copies, [](const CopyElsewhere& left, const CopyElsewhere& right) {
        return std::pair(left.made, left.path.size()) > std::pair(right.made, right.path.size());
    });
    return copies;
}

QList<CopyElsewhere> surplusCopies(const QList<CopyElsewhere>& copies, const CopyRule& rule)
{
    QStringList kept;
    for (const KeptSpan& span : keptSpans)
        keepLatest(span, rule.*span.count, copies, kept);
    QList<CopyElsewhere> surplus = copies;
    surplus.removeIf([&kept](const CopyElsewhere& copy) { return kept.contains(copy.path); });
    return surplus;
}

QString faultOfCopy(const QString& path, const QString& scratch, const GoOn& goOn)
{
    const QString database = joinPath(scratch, u"checked.mdb"_s);
    QFile::remove(database);
    try {
        readAll(path, database, goOn);
        QString damage = store::damageOf(database);
        if (damage.isEmpty())
            const store::Database opened(database);
        QFile::remove(database);
        return damage.isEmpty() ? damage : u"The database in %1 is damaged: %2"_s.arg(path, damage);
    } catch (const RuntimeFailure& failure) {
        QFile::remove(database);
        if (failure.failure() != Failure::NotOurDatabase && failure.failure() != Failure::FileNotFound)
            throw;
        return failure.text();
    }
}

CopyElsewhere makeCopyElsewhere(const QString& customerPath, const QString& folder, const QDateTime& now,
                                const GoOn& goOn, const CopyRule& rule)
{
    checkTarget(customerPath, folder);
    LoggedWork work(customerPath, u"copy elsewhere"_s);
    const QString shop = QDir(customerPath).dirName();
    CopyElsewhere copy =
        work.during([&] { return makeCopyIn(joinPath(folder, shop), customerPath, now, goOn); });
    removeSurplus(copiesElsewhere(folder, shop), rule, QFileInfo(copy.path).fileName());
    work.setResult(copy.path);
    return copy;
}

} // namespace norvane::customers
