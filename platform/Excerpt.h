// What a message shows of data that came from outside.
#pragma once

#include <QString>

#include <algorithm>
#include <string_view>

namespace norvane
{

/// Characters of data that a message shows at most: a damaged file may hold megabytes where a few digits
/// belong, and no box could show them.
inline constexpr qsizetype excerptLength = 60;

/// @p text, or its beginning followed by "..." when it is longer than excerptLength.
[[nodiscard]] inline QString excerpt(QStringView text)
{
    return text.size() <= excerptLength ? text.toString()
                                        : text.left(excerptLength).toString() + QStringLiteral("...");
}

/// The same of UTF-8, of which no more is converted than is shown.
[[nodiscard]] inline QString excerptOfUtf8(std::string_view text)
{
    constexpr std::size_t widestCharacter = 4;
    constexpr std::size_t enough = widestCharacter * (excerptLength + 1);
    return excerpt(QString::fromUtf8(text.data(), static_cast<qsizetype>(std::min(text.size(), enough))));
}

} // namespace norvane
