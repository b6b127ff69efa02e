// Replaces a file only when the new one is written to its end.
#pragma once

#include <QByteArray>
#include <QString>

namespace norvane::reports
{

/// Writes @p content to a file beside @p path and then renames it to @p path.
/// @throws ReportError when not all of it can be written; a former file stays then.
void replaceFile(const QString& path, const QByteArray& content);

/// @throws ReportError that names @p path and the reason.
[[noreturn]] void failWriting(const QString& path, const QString& reason);

} // namespace norvane::reports
