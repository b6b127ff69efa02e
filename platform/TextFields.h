// Trimming of text fields. A field's own blank is the space alone: a tab or a no-break space is a character
// that a register prints, and is kept.
#pragma once

#include <QString>

#include <string_view>

namespace norvane
{

/// @p text without the spaces at both ends; no other white space goes.
[[nodiscard]] constexpr std::string_view trimBlanks(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The same for a text of the screens and the database.
[[nodiscard]] inline QStringView trimBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

} // namespace norvane
