// Texts in fields of a register's record, which have a fixed width. The functions on views work on bytes and
// on UTF-16, for bulk work.
#pragma once

#include "platform/Trimming.h"

#include <QString>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

namespace norvane
{

/// Appends the trimmed @p text in @p width characters: zeros on the left, the right end kept.
template <typename Char>
void appendZeroFilled(std::basic_string<Char>& out, std::type_identity_t<std::basic_string_view<Char>> text,
                      std::size_t width)
{
    text = trimBlanks(text);
    const auto kept = std::min(text.size(), width);
    out.append(width - kept, '0').append(text, text.size() - kept, kept);
}

/// Appends the trimmed @p text in @p width characters: blanks on the right, the left end kept.
template <typename Char>
void appendBlankFilled(std::basic_string<Char>& out, std::type_identity_t<std::basic_string_view<Char>> text,
                       std::size_t width)
{
    text = trimBlanks(text).substr(0, width);
    out.append(text).append(width - text.size(), ' ');
}

/// The trimmed @p text without its leading zeros; zeros alone give empty text. For
/// key links; other numbers use records::StripLeadingZero().
template <typename Char>
[[nodiscard]] std::basic_string_view<Char> withoutLeadingZeros(std::basic_string_view<Char> text)
{
    text = trimBlanks(text);
    text.remove_prefix(std::min(text.find_first_not_of(Char{'0'}), text.size()));
    return text;
}

/// Pads or cuts the trimmed @p value to @p width characters. Mode 0: zeros on the left, the right end kept.
/// Mode 1: blanks on the right, the left end kept. Any other: centred. A missing value counts as empty.
/// @return the new value. @throws RuntimeFailure with Failure::InvalidArgument if a centred value is longer
/// than the width.
QString JustifyField(std::optional<QString>& value, int width, int mode);

} // namespace norvane
