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

/// @p text with "\x1b" in place of an escape character and so on: a name or cell may hold what a terminal
/// takes for a command. Ends of lines and tabs are kept.
[[nodiscard]] inline QString visibleControls(const QString& text)
{
    constexpr int hexadecimal = 16;
    const auto isKept = [](QChar c) {
        return c == u'\r' || c == u'\n' || c == u'\t' || c.category() != QChar::Other_Control;
    };
    // Nearly every text of a long listing.
    if (std::all_of(text.cbegin(), text.cend(), isKept))
        return text;
    QString visible;
    for (const QChar c : text) {
        visible += isKept(c) ? QString(c)
                             : QStringLiteral("\\x%1").arg(c.unicode(), 2, hexadecimal, QLatin1Char('0'));
    }
    return visible;
}

/// @p text, or its beginning followed by "..." when it is longer than excerptLength.
[[nodiscard]] inline QString excerpt(QStringView text)
{
    return text.size() <= excerptLength ? text.toString()
                                        : text.left(excerptLength).toString() + QStringLiteral("...");
}

/// The same for UTF-8; only the part that is shown is converted.
[[nodiscard]] inline QString excerptOfUtf8(std::string_view text)
{
    constexpr std::size_t widestCharacter = 4;
    constexpr std::size_t enough = widestCharacter * (excerptLength + 1);
    return excerpt(QString::fromUtf8(text.data(), static_cast<qsizetype>(std::min(text.size(), enough))));
}

} // namespace norvane
