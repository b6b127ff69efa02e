// The registers' character set is Windows-1252, one byte a character. Database and screens use Unicode.
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>

namespace norvane
{

/// Bytes without a character (81 8D 8F 90 9D) become the control character of their number, so that every
/// byte comes back as it was.
[[nodiscard]] QString fromWindows1252(QByteArrayView bytes);
/// A character that is not in Windows-1252 becomes one "?".
[[nodiscard]] QByteArray toWindows1252(QStringView text);

/// The same from register bytes to UTF-8 and back, appended to @p out: for bulk work.
void appendUtf8FromWindows1252(std::string& out, std::string_view bytes);
void appendWindows1252FromUtf8(std::string& out, std::string_view utf8);

/// True when every character of @p text exists on a register.
[[nodiscard]] bool fitsWindows1252(QStringView text);

} // namespace norvane
