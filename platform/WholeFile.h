// Writes a whole file: the old one remains until the new one is complete.
#pragma once

#include "platform/RuntimeFailure.h"

#include <QByteArray>

#include <optional>

namespace norvane
{

/// Why a file could not be written.
struct WriteError {
    Failure failure; ///< PathOrFileAccess or DiskFull
    QString reason;  ///< in words for the user, without the file's name
};

/// False for a device, a pipe or a folder: what is written there cannot be prepared beside it.
[[nodiscard]] bool isReplaceable(const QString& path);

/// Writes @p content to a file beside @p path, then renames it to @p path, so that a full disk leaves the
/// former file intact. What is not a regular file (/dev/full, a pipe) is written in place: renaming would
/// replace the device.
/// @return nothing on success.
[[nodiscard]] std::optional<WriteError> replaceWholeFile(const QString& path, const QByteArray& content);

} // namespace norvane
