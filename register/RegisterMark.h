// The register's own mark in texts, and the character that stands for it in the database.
#pragma once

#include <algorithm>

namespace norvane
{

/// The mark, as a byte and in Unicode, and the character shown for it.
inline constexpr int registerMark = 0xFD;
inline constexpr int shownMark = '^';

/// Each mark of the register becomes "^". Changes @p text, bytes or QString, and returns it.
template <typename Text>
Text& EscapeDelimiter(Text& text)
{
    using Char = typename Text::value_type;
    std::replace(text.begin(), text.end(), static_cast<Char>(registerMark), static_cast<Char>(shownMark));
    return text;
}

/// Each "^" becomes the register's mark.
template <typename Text>
Text& UnescapeDelimiter(Text& text)
{
    using Char = typename Text::value_type;
    std::replace(text.begin(), text.end(), static_cast<Char>(shownMark), static_cast<Char>(registerMark));
    return text;
}

} // namespace norvane
