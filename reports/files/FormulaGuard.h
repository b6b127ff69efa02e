// Texts that a spreadsheet would take for formulas.
#pragma once

#include <QString>

#include <algorithm>

namespace norvane::reports
{

/// Whether @p text begins like a formula, leading blanks skipped.
[[nodiscard]] inline bool looksLikeFormula(QStringView text)
{
    static constexpr QStringView signs = u"=+-@";
    const auto* const first =
        std::find_if(text.cbegin(), text.cend(), [](QChar letter) { return letter != u' '; });
    return first != text.cend() && signs.contains(*first);
}

/// A spreadsheet would calculate a text that begins like a formula; a blank before it makes it a text.
[[nodiscard]] inline QString guarded(const QString& text)
{
    return looksLikeFormula(text) ? u' ' + text : text;
}

/// The text before guarded().
[[nodiscard]] inline QString unguarded(const QString& text)
{
    return text.startsWith(u' ') && looksLikeFormula(text) ? text.sliced(1) : text;
}

} // namespace norvane::reports
