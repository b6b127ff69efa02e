// See DecimalSign.h.
#include "articles/DecimalSign.h"

#include <algorithm>
#include <string>

namespace norvane::articles
{
namespace
{

/// Digits between two thousands signs.
constexpr std::size_t digitsOfThousand = 3;

struct Fraction {
    char sign = 0; ///< 0 for a number without a sign or with several
    std::size_t digits = 0;
};

Fraction fractionOf(std::string_view number)
{
    const auto at = number.find_first_of(".,");
    if (at == std::string_view::npos || at != number.find_last_of(".,"))
        return {};
    return {number[at], number.size() - at - 1};
}

} // namespace

std::optional<Decimal> numberOf(std::string_view cell)
{
    if (const auto number = Decimal::plain(cell))
        return number;
    std::string pointed(cell);
    std::ranges::replace(pointed, ',', '.');
    return std::ranges::count(pointed, '.') == 1 ? Decimal::plain(pointed) : std::nullopt;
}

void DecimalSign::learnFrom(std::string_view number)
{
    const auto [sign, digits] = fractionOf(number);
    if (digits == 0 || digits == digitsOfThousand)
        return;
    m_isPoint = m_isPoint || sign == '.';
    m_isComma = m_isComma || sign == ',';
}

bool DecimalSign::leavesOpen(std::string_view number) const
{
    const auto [sign, digits] = fractionOf(number);
    if (sign == 0 || digits != digitsOfThousand)
        return false;
    return sign == '.' ? !m_isPoint || m_isComma : !m_isComma || m_isPoint;
}

} // namespace norvane::articles
