// Making, listing and restoring copies; see SafetyCopies.h.
#include "customers/SafetyCopies.h"

#include "base/CustomerSettings.h"
#include "base/LossQuestion.h"
#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "customers/UnfinishedFolder.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/catalogue/SalesTables.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

constexpr qsizetype copiesKept = 10;
constexpr int daysKept = 7;
const auto nameFormat = u"yyyy-MM-dd HH.mm.ss"_s;

/// Files beside the database that are copied with it: settings and register files.
const QStringList& copiedFiles()
{
    static const QStringList patterns{u"*.ini"_s, u"*.dat"_s, u"*.dat.former"_s};
    return patterns;
}

QString copiesFolder(const QString& customerPath)
{
    return joinPath(customerPath, u"copies"_s);
}

/// The notes of the runs describe the registers: what they still hold and what waits to be moved. That does
/// not change when the customer is put back, and with old notes the next collection would store a day twice.
bool describesRegisters(const QString& name)
{
    return name.compare(runNotesName(), Qt::CaseInsensitive) == 0;
}

void copyFiles(const QString& from, const QString& to, QDir::Filters kinds = QDir::Files | QDir::Hidden)
{
    for (const QString& name : QDir(from).entryList(copiedFiles(), kinds)) {
        if (!describesRegisters(name))
            writeWholeFile(joinPath(to, name), readWholeFile(joinPath(from, name)));
    }
}

/// A second copy within one second gets a number.
QString freeName(const QString& folder, const QString& wanted)
{
    QString name = wanted;
    for (int number = 2; QFileInfo::exists(joinPath(folder, name)); ++number)
        name = u"%1 (%2)"_s.arg(wanted).arg(number);
    return name;
}

SafetyCopy copyOfFolder(const QString& folder, const QString& name)
{
    const QDateTime made = QDateTime::fromString(name.left(nameFormat.size()), nameFormat);
    return {name, joinPath(folder, name), made, name.mid(nameFormat.size() + 1)};
}

void removeOldCopies(const QString& customerPath, const QDateTime& now)
{
    const auto copies = safetyCopies(customerPath);
    for (const auto& copy : copies.mid(std::min(copiesKept, copies.size()))) {
        if (copy.made.daysTo(now) > daysKept)
            QDir(copy.path).removeRecursively();
    }
}

/// @param what nothing: the files alone.
SafetyCopy makeCopy(const QString& customerPath, const QString& reason, std::optional<store::CopyOf> what,
                    const QDateTime& now)
{
    const QString folder = copiesFolder(customerPath);
    UnfinishedFolder unfinished(joinPath(folder, u"unfinished"_s));
    const QString path = unfinished.path();
    if (what)
        store::copyDatabase(customerDatabase(customerPath), joinPath(path, databaseFileName), *what);
    copyFiles(customerPath, path);
    SafetyCopy copy = copyOfFolder(folder, freeName(folder, now.toString(nameFormat) + u' ' + reason));
    unfinished.keepAs(copy.path);
    removeOldCopies(customerPath, now);
    return copy;
}

QString databaseOf(const SafetyCopy& copy)
{
    return joinPath(copy.path, databaseFileName);
}

/// @throws RuntimeFailure with Failure::FileNotFound for a copy without a database, as one of the files alone
/// is, Failure::NotOurDatabase for a damaged one.
void checkCopy(const SafetyCopy& copy)
{
    const QString path = databaseOf(copy);
    const QString damage =
        QFileInfo(path).isSymLink() ? u"it is a link to another file."_s : store::damageOf(path);
    if (!damage.isEmpty())
        throw RuntimeFailure(Failure::NotOurDatabase, u"The copy %1 is damaged: %2"_s.arg(path, damage));
    const store::Database opened(path);
}

void move(const QString& from, const QString& to)
{
    if (!QFile::rename(from, to)) {
        throw RuntimeFailure(Failure::PathOrFileAccess,
                             u"Path/File access error: %1 cannot be renamed to %2"_s.arg(from, to));
    }
}

/// Renames a damaged database and its journal, and puts @p made in its place.
/// @return the name under which the damaged one is kept; empty if there was none.
QString exchangeDatabase(const QString& customerPath, const QString& made)
{
    const QString database = customerDatabase(customerPath);
    if (!pathExists(database)) {
        move(made, database);
        return {};
    }
    const QString wanted = u"velmar.damaged-"_s + QDateTime::currentDateTime().toString(nameFormat);
    QString aside = freeName(customerPath, wanted);
    move(database, joinPath(customerPath, aside));
    QFile::rename(database + u"-journal"_s, joinPath(customerPath, aside + u"-journal"_s));
    try {
        move(made, database);
    } catch (const RuntimeFailure&) {
        QFile::rename(joinPath(customerPath, aside), database);
        QFile::rename(joinPath(customerPath, aside + u"-journal"_s), database + u"-journal"_s);
        throw;
    }
    return aside;
}

/// Creates a new database from the copy in place of a damaged one. @return the message about it.
QString replaceDatabase(const QString& customerPath, const SafetyCopy& copy)
{
    const QString made = joinPath(customerPath, u"velmar.restored"_s);
    const QStringList lost = store::rebuildDatabase(databaseOf(copy), customerDatabase(customerPath), made);
    const QString aside = exchangeDatabase(customerPath, made);
    QStringList notices;
    if (!aside.isEmpty())
        notices << u"The damaged database is kept as %1."_s.arg(aside);
    if (!lost.isEmpty()) {
        notices << u"These tables begin empty, because the copy has none and they could not be read: %1."_s
                       .arg(lost.join(u", "_s));
    }
    return notices.join(u'\r');
}

} // namespace

SafetyCopy makeSafetyCopy(const QString& customerPath, const QString& reason, store::CopyOf what,
                          const QDateTime& now)
{
    const bool hasDatabase = pathExists(customerDatabase(customerPath));
    return makeCopy(customerPath, reason, hasDatabase ? std::optional(what) : std::nullopt, now);
}

QList<SafetyCopy> safetyCopies(const QString& customerPath)
{
    const QString folder = copiesFolder(customerPath);
    QList<SafetyCopy> copies;
    // The names have only the second; the times of the folders order two copies within one second.
    for (const QString& name :
         QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Time)) {
        SafetyCopy copy = copyOfFolder(folder, name);
        if (copy.made.isValid())
            copies.append(std::move(copy));
    }
    std::ranges::stable_sort(copies, std::ranges::greater(), &SafetyCopy::made);
    return copies;
}

bool holdsSales(const SafetyCopy& copy)
{
    return store::Database(databaseOf(copy)).hasTable(QLatin1String(store::salestable::plus));
}

bool needsNewDatabase(const QString& customerPath)
{
    const QString database = customerDatabase(customerPath);
    if (!pathExists(database) || !store::damageOf(database).isEmpty())
        return true;
    try {
        const store::Database opened(database);
        return false;
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::NotOurDatabase)
            return true;
        throw;
    }
}

namespace
{

/// As restoreSafetyCopy(), without a line in the log.
QString putBack(const QString& customerPath, const SafetyCopy& copy)
{
    checkCopy(copy);
    QString notice;
    if (needsNewDatabase(customerPath)) {
        makeCopy(customerPath, u"before restore, files alone"_s, {}, QDateTime::currentDateTime());
        notice = replaceDatabase(customerPath, copy);
    } else {
        makeSafetyCopy(customerPath, u"before restore"_s,
                       holdsSales(copy) ? store::CopyOf::Everything : store::CopyOf::Programme);
        store::Database database(customerDatabase(customerPath));
        store::restoreTables(database, databaseOf(copy));
    }
    copyFiles(copy.path, customerPath, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    return notice;
}

} // namespace

QString restoreSafetyCopy(const QString& customerPath, const SafetyCopy& copy)
{
    LoggedWork work(customerPath, u"restore"_s);
    QString notice = work.during([&] { return putBack(customerPath, copy); });
    work.setResult(u"restored %1"_s.arg(copy.name) + (notice.isEmpty() ? QString() : u". "_s + notice));
    return notice;
}

QString refusalOfCopy(const ApplicationValues& values, const QString& reason, store::CopyOf what)
{
    const QString customer = values.customerPath;
    const QString ofDatabase = QFileInfo(values.databasePath).path();
    try {
        makeSafetyCopy(ofDatabase, reason, what);
        if (QFileInfo(customer).canonicalFilePath() != QFileInfo(ofDatabase).canonicalFilePath())
            makeSafetyCopy(customer, reason, what);
        return {};
    } catch (const RuntimeFailure& failure) {
        return u"No safety copy could be made, so nothing was started.\r\r%1"_s.arg(failure.text());
    }
}

bool copyBeforeJob(const ApplicationValues& values, Boxes& boxes, const QString& reason, store::CopyOf what)
{
    const QString refusal = refusalOfCopy(values, reason, what);
    if (!refusal.isEmpty())
        boxes.message(refusal, pleaseCheck, BoxIcon::Exclamation);
    return refusal.isEmpty();
}

} // namespace norvane::customers
