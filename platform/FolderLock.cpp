// The lock file and the words for whoever finds it taken; see FolderLock.h.
#include "platform/FolderLock.h"

#include "platform/FilePaths.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{

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
    boxes.message(lock->refusal(), u"Please Check"_s, BoxIcon::Exclamation);
    return nullptr;
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
    return u"%1, process %2 on the computer %3, since %4"_s.arg(
        program, QString::number(process), host, QLocale().toString(since, QLocale::ShortFormat));
}

} // namespace norvane
