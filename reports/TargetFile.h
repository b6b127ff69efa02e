// Puts a file in place only when it is whole.
#pragma once

#include <QByteArray>
#include <QString>

namespace norvane::reports
{

/// Writes @p content beside @p path and puts it in place.
/// @throws ReportError when it cannot be made there or not all of it could be written; a former file stays.
void replaceFile(const QString& path, const QByteArray& content);

/// @throws ReportError that names @p path and the reason.
[[noreturn]] void failWriting(const QString& path, const QString& reason);

} // namespace norvane::reports
