// File names without regard to case: the registers' tools write Nmem.DAT, MEM.dat and mem.dat.
#pragma once

#include <QString>

#include <memory>

class QFile;

namespace norvane
{

/// Joins with the platform's separator. @p name may begin with "/", with "\" or with neither.
[[nodiscard]] QString joinPath(const QString& folder, const QString& name);

/// The file or folder that @p path names, each part matched case-insensitively; an exact match wins.
/// @return @p path in the platform's form if there is none.
[[nodiscard]] QString existingPath(const QString& path);

/// True when @p path names an existing file or folder without regard to case.
[[nodiscard]] bool pathExists(const QString& path);

/// Opens a file, found without regard to case, for reading piece by piece.
/// @throws RuntimeFailure with Failure::FileNotFound if there is none, Failure::PathOrFileAccess if it cannot
/// be read.
[[nodiscard]] std::unique_ptr<QFile> openToRead(const QString& path);

/// The bytes of a file, found without regard to case.
/// @throws RuntimeFailure with Failure::FileNotFound if there is none, Failure::PathOrFileAccess if it cannot
/// be read.
[[nodiscard]] QByteArray readWholeFile(const QString& path);

/// Replaces the content of a file, found without regard to case, or makes it.
/// @throws RuntimeFailure with Failure::PathOrFileAccess when it cannot be opened for writing,
/// Failure::DiskFull when the disk is full.
void writeWholeFile(const QString& path, const QByteArray& content);

} // namespace norvane
