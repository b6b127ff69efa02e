// See ScratchShop.h.
#include "exchange/ScratchShop.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

const QString folderNames = u"norvane-compare-"_s;

[[noreturn]] void failNoFolder(const QString& reason)
{
    throw RuntimeFailure(Failure::PathOrFileAccess, u"No temporary folder can be made: %1"_s.arg(reason));
}

/// Never in the working directory, where every folder is a customer.
QString folderTemplate()
{
    if (QDir::tempPath().isEmpty())
        failNoFolder(u"TMPDIR does not name a folder"_s);
    return joinPath(QDir::tempPath(), folderNames + u"XXXXXX"_s);
}

QString lockIn(const QString& folder)
{
    return joinPath(folder, u"in-use.lock"_s);
}

bool canBeTaken(QLockFile& lock)
{
    lock.setStaleLockTime(std::chrono::milliseconds::zero());
    return lock.tryLock();
}

/// Without a lock, a program may just be making it.
bool isOfDeadProgram(const QString& folder)
{
    QLockFile lock(lockIn(folder));
    return QFileInfo::exists(lock.fileName()) && canBeTaken(lock);
}

/// Anybody may write to the folder for temporary files, so only those of the same user are looked into.
void removeFoldersOfDeadPrograms(const QFileInfo& own)
{
    const QDir around = own.dir();
    for (const QFileInfo& each :
         around.entryInfoList({folderNames + u'*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
        if (each.ownerId() == own.ownerId() && isOfDeadProgram(each.filePath()))
            QDir(each.filePath()).removeRecursively();
    }
}

} // namespace

ScratchShop::ScratchShop(const ApplicationValues& customer)
    : m_folder(folderTemplate()), m_inUse(lockIn(m_folder.path())), m_values(customer)
{
    if (!m_folder.isValid())
        failNoFolder(m_folder.errorString());
    if (!canBeTaken(m_inUse))
        failNoFolder(u"%1 cannot be written"_s.arg(m_inUse.fileName()));
    removeFoldersOfDeadPrograms(QFileInfo(m_folder.path()));
    m_values.appPath = m_folder.path();
    m_values.customerPath = m_folder.path();
    m_values.databasePath = joinPath(m_folder.path(), databaseFileName);
    const QString settings = settingsPath(customer);
    if (pathExists(settings))
        writeWholeFile(settingsPath(m_values), readWholeFile(settings));
    store::Database::create(m_values.databasePath, store::catalogue());
}

} // namespace norvane::exchange
