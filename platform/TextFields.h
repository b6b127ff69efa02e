// Trimming of text fields. A field's own blank is the space alone: a tab or a no-break space is a character
// that a register prints, and is kept.
#pragma once

#include <QString>

#include <string_view>

namespace norvane
{

/// @p text without the spaces at both ends; no other white space goes.
template <typename Char>
[[nodiscard]] constexpr std::basic_string_view<Char> trimBlanks(std::basic_string_view<Char> text)
{
    while (text.starts_with(Char{' '}))
        text.remove_prefix(1);
    while (text.ends_with(Char{' '}))
        text.remove_suffix(1);
    return text;
}

/// The same for bytes of any kind.
[[nodiscard]] constexpr std::string_view trimBlanks(std::string_view text)
{
    return trimBlanks<char>(text);
}

/// The same for a text of the screens and the database.
[[nodiscard]] inline QStringView trimBlanks(QStringView text)
{
    return trimBlanks(std::u16string_view(text.utf16(), static_cast<std::size_t>(text.size())));
}

} // namespace norvane
