// The registers' character set: one byte a character, Windows-1252. The database and the screens hold
// Unicode.
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>

namespace norvane
{

/// The five bytes without a character (81 8D 8F 90 9D) stand for the control characters of the same number,
/// so that every byte comes back as it was.
[[nodiscard]] QString fromWindows1252(QByteArrayView bytes);
/// Characters outside Windows-1252 become "?", one for each Unicode character.
[[nodiscard]] QByteArray toWindows1252(QStringView text);

/// The same between register bytes and UTF-8, appended to @p out; for bulk work, without a QString in
/// between.
void appendUtf8FromWindows1252(std::string& out, std::string_view bytes);
void appendWindows1252FromUtf8(std::string& out, std::string_view utf8);

/// True when every character of @p text exists on a register.
[[nodiscard]] bool fitsWindows1252(QStringView text);

} // namespace norvane
