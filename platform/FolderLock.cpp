// The lock file and the message shown when it is taken; see FolderLock.h.
#include "platform/FolderLock.h"

#include "platform/FilePaths.h"
#include "platform/ShownTime.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

constexpr qint64 secondsForOwner = 10;

} // namespace

FolderLock::FolderLock(const QString& path) : m_file(path)
{
    // A run over a modem can take hours: only the death of its owner frees the lock, never its age.
    m_file.setStaleLockTime(std::chrono::milliseconds::zero());
}

std::unique_ptr<FolderLock> FolderLock::take(const QString& folder, Boxes& boxes)
{
    std::unique_ptr<FolderLock> lock(new FolderLock(joinPath(folder, u"norvane.lock"_s)));
    if (lock->m_file.tryLock())
        return lock;
    if (lock->isWithoutOwner() && QFile::remove(lock->m_file.fileName()) && lock->m_file.tryLock()) {
        boxes.message(
            u"The file %1 did not say which program it belongs to, as after a power cut. It was replaced."_s
                .arg(lock->m_file.fileName()),
            pleaseCheck, BoxIcon::Exclamation);
        return lock;
    }
    boxes.message(lock->refusal(), pleaseCheck, BoxIcon::Exclamation);
    return nullptr;
}

/// A program writes its owner into the file immediately after creating it.
bool FolderLock::isWithoutOwner() const
{
    qint64 process = 0;
    QString host;
    QString program;
    const QDateTime written = QFileInfo(m_file.fileName()).lastModified();
    return m_file.error() == QLockFile::LockFailedError && !m_file.getLockInfo(&process, &host, &program) &&
           written.secsTo(QDateTime::currentDateTime()) > secondsForOwner;
}

QString FolderLock::refusal() const
{
    if (m_file.error() != QLockFile::LockFailedError) {
        return u"The file %1 cannot be written, so nothing was started."_s.arg(m_file.fileName());
    }
    return u"Nothing was started: another exchange, collection or price run is at work in this "
           u"folder.\r\r%1\r\r"
           "Try again when it has ended. If the program there was cut off on another computer, delete the "
           "file "
           "norvane.lock."_s.arg(holder());
}

QString FolderLock::holder() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_file.getLockInfo(&process, &host, &program))
        return u"It began just now."_s;
    const QDateTime since = QFileInfo(m_file.fileName()).lastModified();
    return u"%1, process %2 on the computer %3, since %4"_s.arg(program, QString::number(process), host,
                                                                shownTime(since));
}

} // namespace norvane
