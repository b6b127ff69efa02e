// Making, listing and restoring copies; see SafetyCopies.h.
#include "customers/SafetyCopies.h"

#include "base/LossQuestion.h"
#include "customers/CustomerFolders.h"
#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/DatabaseCheck.h"
#include "store/SalesTables.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

constexpr qsizetype copiesKept = 10;
constexpr int daysKept = 7;
const auto timeFormat = u"yyyy-MM-dd HH.mm.ss"_s;
const auto databaseName = u"velmar.mdb"_s;

/// What stands beside the database and goes with it: settings, notes of the runs, register files.
const QStringList& copiedFiles()
{
    static const QStringList patterns{u"*.ini"_s, u"*.dat"_s, u"*.dat.former"_s};
    return patterns;
}

QString copiesFolder(const QString& customerPath)
{
    return joinPath(customerPath, u"copies"_s);
}

void copyFiles(const QString& from, const QString& to)
{
    for (const QString& name : QDir(from).entryList(copiedFiles(), QDir::Files | QDir::Hidden))
        writeWholeFile(joinPath(to, name), readWholeFile(joinPath(from, name)));
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
    const QDateTime made = QDateTime::fromString(name.left(timeFormat.size()), timeFormat);
    return {name, joinPath(folder, name), made, name.mid(timeFormat.size() + 1)};
}

void removeOldCopies(const QString& customerPath, const QDateTime& now)
{
    const auto copies = safetyCopies(customerPath);
    for (const auto& copy : copies.mid(std::min(copiesKept, copies.size()))) {
        if (copy.made.daysTo(now) > daysKept)
            QDir(copy.path).removeRecursively();
    }
}

/// A folder that is removed again unless it is kept.
class UnfinishedFolder
{
public:
    explicit UnfinishedFolder(const QString& path) : m_folder(path)
    {
        m_folder.removeRecursively();
        if (!m_folder.mkpath(u"."_s))
            throw RuntimeFailure(Failure::PathOrFileAccess, u"The folder %1 cannot be made."_s.arg(path));
    }
    ~UnfinishedFolder()
    {
        if (!m_isKept)
            m_folder.removeRecursively();
    }
    UnfinishedFolder(const UnfinishedFolder&) = delete;
    UnfinishedFolder& operator=(const UnfinishedFolder&) = delete;

    void keepAs(const QString& path)
    {
        m_isKept = QDir().rename(m_folder.path(), path);
        if (!m_isKept)
            throw RuntimeFailure(Failure::PathOrFileAccess, u"The folder %1 cannot be made."_s.arg(path));
    }

private:
    QDir m_folder;
    bool m_isKept = false;
};

} // namespace

SafetyCopy makeSafetyCopy(const QString& customerPath, const QString& reason, store::CopyOf what,
                          const QDateTime& now)
{
    const QString folder = copiesFolder(customerPath);
    UnfinishedFolder unfinished(joinPath(folder, u"unfinished"_s));
    const QString path = joinPath(folder, u"unfinished"_s);
    if (pathExists(customerDatabase(customerPath)))
        store::copyDatabase(customerDatabase(customerPath), joinPath(path, databaseName), what);
    copyFiles(customerPath, path);
    SafetyCopy copy = copyOfFolder(folder, freeName(folder, now.toString(timeFormat) + u' ' + reason));
    unfinished.keepAs(copy.path);
    removeOldCopies(customerPath, now);
    return copy;
}

QList<SafetyCopy> safetyCopies(const QString& customerPath)
{
    const QString folder = copiesFolder(customerPath);
    QList<SafetyCopy> copies;
    for (const QString& name :
         QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed)) {
        SafetyCopy copy = copyOfFolder(folder, name);
        if (copy.made.isValid())
            copies.append(std::move(copy));
    }
    return copies;
}

bool holdsSales(const SafetyCopy& copy)
{
    return store::Database(joinPath(copy.path, databaseName))
        .hasTable(QLatin1String(store::salestable::plus));
}

void restoreSafetyCopy(const QString& customerPath, const SafetyCopy& copy)
{
    LoggedWork work(customerPath, u"restore"_s);
    const QString copied = joinPath(copy.path, databaseName);
    const QString damage = store::damageOf(copied);
    if (!damage.isEmpty())
        throw RuntimeFailure(Failure::NotOurDatabase, u"The copy %1 is damaged: %2"_s.arg(copied, damage));
    makeSafetyCopy(customerPath, u"before restore"_s,
                   holdsSales(copy) ? store::CopyOf::Everything : store::CopyOf::Programme);
    store::Database database(customerDatabase(customerPath));
    store::restoreTables(database, copied);
    copyFiles(copy.path, customerPath);
    work.setResult(u"restored %1"_s.arg(copy.name));
}

bool copyBeforeJob(const ApplicationValues& values, Boxes& boxes, const QString& reason, store::CopyOf what)
{
    const QString customer = values.customerPath;
    const QString ofDatabase = QFileInfo(values.databasePath).path();
    try {
        makeSafetyCopy(ofDatabase, reason, what);
        if (QFileInfo(customer).canonicalFilePath() != QFileInfo(ofDatabase).canonicalFilePath())
            makeSafetyCopy(customer, reason, what);
        return true;
    } catch (const RuntimeFailure& failure) {
        boxes.message(u"No safety copy could be made, so nothing was started.\r\r%1"_s.arg(failure.text()),
                      pleaseCheck, BoxIcon::Exclamation);
        return false;
    }
}

} // namespace norvane::customers
