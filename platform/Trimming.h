// Trimming of text fields. Only spaces are removed: a register prints tabs and no-break spaces as characters.
#pragma once

#include <QString>

#include <string_view>

namespace norvane
{

/// @p text without the spaces at both ends.
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

/// The same for texts of the screens and the database.
[[nodiscard]] inline QStringView trimBlanks(QStringView text)
{
    return trimBlanks(std::u16string_view(text.utf16(), static_cast<std::size_t>(text.size())));
}

} // namespace norvane
