// See WholeFile.h.
#include "platform/WholeFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace norvane
{
namespace
{

/// A full disk stores a part of the content and may report no error.
WriteError failureOf(const QFileDevice& file)
{
    const bool isFull = file.error() == QFileDevice::NoError || file.error() == QFileDevice::ResourceError ||
                        file.error() == QFileDevice::WriteError;
    return isFull ? WriteError{Failure::DiskFull, QStringLiteral("the disk is full.")}
                  : WriteError{Failure::PathOrFileAccess, file.errorString()};
}

std::optional<WriteError> writeInPlace(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return WriteError{Failure::PathOrFileAccess, file.errorString()};
    if (file.write(content) != content.size() || !file.flush())
        return failureOf(file);
    return std::nullopt;
}

} // namespace

bool isReplaceable(const QString& path)
{
    const QFileInfo file(path);
    return !file.exists() || file.isFile();
}

std::optional<WriteError> replaceWholeFile(const QString& path, const QByteArray& content)
{
    if (!isReplaceable(path))
        return writeInPlace(path, content);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return WriteError{Failure::PathOrFileAccess, file.errorString()};
    if (file.write(content) != content.size() || !file.flush())
        file.cancelWriting();
    if (!file.commit())
        return failureOf(file);
    return std::nullopt;
}

} // namespace norvane
