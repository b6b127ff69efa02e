// Case-insensitive file names on case-sensitive file systems; see FilePaths.h.
#include "platform/FilePaths.h"

#include "platform/RuntimeFailure.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace norvane
{
namespace
{

/// Either separator in, Qt's own out.
QString forwardSlashes(const QString& path)
{
    return QString(path).replace(u'\\', u'/');
}

/// The entry of @p folder named @p name in any case. @return empty text if there is none.
QString entryOf(const QString& folder, const QString& name)
{
    if (QFileInfo::exists(folder + name))
        return name;
    // Sorted, so that of two such files the same one is found each time.
    const auto entries = QDir(folder.isEmpty() ? QStringLiteral(".") : folder)
                             .entryList(QDir::AllEntries | QDir::Hidden | QDir::System, QDir::Name);
    for (const auto& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return {};
}

/// The part of @p path before the first name: "/", "C:/", or empty for a relative path.
QString rootOf(const QString& path)
{
    if (path.startsWith(u'/'))
        return QStringLiteral("/");
    const bool hasDrive = path.size() > 2 && path[1] == u':' && path[2] == u'/';
    return hasDrive && QFileInfo(path).isAbsolute() ? path.left(3) : QString();
}

/// The existing path with each name as it is on disk. @return empty text when a part of it is missing.
QString pathOnDisk(const QString& path)
{
    QString found = rootOf(path);
    const auto names = path.mid(found.size()).split(u'/', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < names.size(); ++i) {
        const auto entry = entryOf(found, names[i]);
        if (entry.isEmpty())
            return {};
        found += i + 1 < names.size() ? entry + u'/' : entry;
    }
    return found;
}

/// Where a file of this name is or would be made. Folders are found without regard to case, too.
QString pathForWriting(const QString& path)
{
    if (pathExists(path))
        return existingPath(path);
    const QString plain = forwardSlashes(path);
    const auto lastSlash = plain.lastIndexOf(u'/');
    return lastSlash <= 0 ? plain : joinPath(existingPath(plain.left(lastSlash)), plain.mid(lastSlash));
}

[[noreturn]] void failAccess(const QString& path, const QString& reason)
{
    throw RuntimeFailure(Failure::PathOrFileAccess,
                         QStringLiteral("Path/File access error: %1 (%2)").arg(path, reason));
}

} // namespace

QString joinPath(const QString& folder, const QString& name)
{
    QString tail = forwardSlashes(name);
    while (tail.startsWith(u'/'))
        tail.remove(0, 1);
    const bool closed = folder.endsWith(u'/') || folder.endsWith(QDir::separator());
    const QString joined = folder.isEmpty() || closed ? folder + tail : folder + u'/' + tail;
    return QDir::toNativeSeparators(joined);
}

QString existingPath(const QString& path)
{
    if (QFileInfo::exists(path))
        return QDir::toNativeSeparators(path);
    const QString plain = forwardSlashes(path);
    const QString found = pathOnDisk(plain);
    return QDir::toNativeSeparators(found.isEmpty() ? plain : found);
}

bool pathExists(const QString& path)
{
    return QFileInfo::exists(existingPath(path));
}

std::unique_ptr<QFile> openToRead(const QString& path)
{
    auto file = std::make_unique<QFile>(existingPath(path));
    if (!file->exists())
        throw RuntimeFailure(Failure::FileNotFound, QStringLiteral("File not found: %1").arg(path));
    if (!file->open(QIODevice::ReadOnly))
        failAccess(path, file->errorString());
    return file;
}

QByteArray readWholeFile(const QString& path)
{
    const auto file = openToRead(path);
    QByteArray content = file->readAll();
    if (file->error() != QFileDevice::NoError)
        failAccess(path, file->errorString());
    return content;
}

void writeWholeFile(const QString& path, const QByteArray& content)
{
    const auto error = replaceWholeFile(pathForWriting(path), content);
    if (!error)
        return;
    if (error->failure == Failure::DiskFull) {
        throw RuntimeFailure(Failure::DiskFull,
                             QStringLiteral("Disk full: %1 (%2)").arg(path, error->reason));
    }
    failAccess(path, error->reason);
}

} // namespace norvane
