// Replaces a file only when the new one is written to its end.
#pragma once

#include <QByteArray>
#include <QString>

namespace norvane::reports
{

/// Replaces the file @p path, or writes to the device that it names.
/// @throws TargetError if not all of @p content can be written; an existing file is then kept.
void replaceFile(const QString& path, const QByteArray& content);

/// @throws ReportError that names @p path and the reason.
[[noreturn]] void failWriting(const QString& path, const QString& reason);

} // namespace norvane::reports
