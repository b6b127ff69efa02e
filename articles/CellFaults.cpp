// See CellFaults.h.
#include "articles/CellFaults.h"

#include "platform/Excerpt.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{

QString faultOf(const SheetColumn& column, const QString& text)
{
    if (text.size() > column.longest)
        return u"\"%1\" is longer than %2 characters"_s.arg(excerpt(text)).arg(column.longest);
    if (std::ranges::any_of(text, [](QChar letter) { return letter.category() == QChar::Other_Control; }))
        return u"\"%1\" has a line end or another control character"_s.arg(text.simplified());
    if (text.contains(u','))
        return u"\"%1\" has a comma, which would split it in the file for the registers"_s.arg(text);
    if (!fitsWindows1252(text))
        return u"\"%1\" has characters that a register does not know"_s.arg(text);
    return {};
}

QString faultOf(const SheetColumn& column, const Decimal& number)
{
    static constexpr auto places =
        std::to_array({"no"_L1, "at most one"_L1, "at most two"_L1, "at most three"_L1});
    if (number.rounded(column.decimals) != number) {
        const QLatin1StringView allowed = places.at(static_cast<std::size_t>(column.decimals));
        return u"a %1 has %2 decimal places"_s.arg(column.word, allowed);
    }
    if (number < Decimal() || number > column.most) {
        return u"a %1 is from 0 to %2"_s.arg(column.word,
                                             QString::fromStdString(column.most.text(column.decimals)));
    }
    return {};
}

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

QString faultOfDigits(const SheetColumn& column, std::string_view cell)
{
    if (cell.empty())
        return {};
    if (!isDigits(cell) || cell.size() > static_cast<std::size_t>(column.longest)) {
        return u"\"%1\" is not a number of up to %2 digits"_s.arg(excerptOfUtf8(cell)).arg(column.longest);
    }
    const auto number = Decimal::plain(cell);
    return number ? faultOf(column, *number) : QString();
}

QString faultOfHexadecimal(const SheetColumn& column, std::string_view cell)
{
    const bool isKey = cell.size() == static_cast<std::size_t>(column.longest) &&
                       cell.find_first_not_of("0123456789ABCDEFabcdef") == std::string_view::npos;
    if (isKey || cell.empty())
        return {};
    return u"\"%1\" does not have %2 hexadecimal digits"_s.arg(excerptOfUtf8(cell)).arg(column.longest);
}

std::optional<bool> yesNoOf(std::string_view cell)
{
    static constexpr auto yes = std::to_array({"yes"_L1, "true"_L1, "1"_L1, "-1"_L1});
    static constexpr auto no = std::to_array({"no"_L1, "false"_L1, "0"_L1});
    const auto isIt = [word = excerptOfUtf8(cell)](QLatin1StringView known) {
        return word.compare(known, Qt::CaseInsensitive) == 0;
    };
    if (std::ranges::any_of(yes, isIt))
        return true;
    return std::ranges::any_of(no, isIt) ? std::optional(false) : std::nullopt;
}

} // namespace norvane::articles
