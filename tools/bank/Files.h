// Files by names that match without regard to letter case, as the registers' tools always found them.
#pragma once

#include <QByteArray>
#include <QString>

namespace bank
{

/// @return the path of the file in @p folder whose name equals @p name except for case; the path with the
/// given name if there is none. An exact match wins.
[[nodiscard]] QString pathOf(const QString& folder, const QString& name);

/// Reads the whole file. @throws ToolFailure FileOpenError
[[nodiscard]] QByteArray readFile(const QString& path);

/// Replaces the file completely or not at all. @throws ToolFailure FileWriteError
void writeFile(const QString& path, const QByteArray& bytes);

} // namespace bank
