// See ExactNumbers.h.
#include "reports/formula/ExactNumbers.h"

#include "platform/DecimalTotal.h"

#include <algorithm>
#include <type_traits>

namespace norvane::reports
{
namespace
{

/// How many characters @p number has up to its 18th digit. Leading zeros do not count as digits.
std::size_t lengthOfFirstDigits(std::string_view number)
{
    std::size_t digits = 0;
    for (std::size_t at = 0; at < number.size(); ++at) {
        const char c = number[at];
        if (c < '0' || c > '9' || (c == '0' && digits == 0))
            continue;
        if (++digits > std::size_t{Decimal::mostDigits})
            return at;
    }
    return number.size();
}

bool hasDigitButZero(std::string_view text)
{
    return text.find_first_of("123456789") != std::string_view::npos;
}

/// The dropped digits are not all zero. A last digit of 0 or 5 is raised by one, so that a later rounding
/// does not treat it as an exact half or whole.
void markTail(std::string& kept)
{
    if (kept.back() == '0' || kept.back() == '5')
        ++kept.back();
}

} // namespace

std::string exactText(const store::Value& value)
{
    DecimalTotal total;
    const auto add = [&total](const auto& number) {
        using Kind = std::decay_t<decltype(number)>;
        if constexpr (std::is_same_v<Kind, std::string>) {
            total.add(std::string_view(number));
        } else if constexpr (std::is_same_v<Kind, bool>) {
            total.add(std::int64_t{number ? -1 : 0});
        } else if constexpr (std::is_same_v<Kind, Decimal>) {
            total.add(std::string_view(number.text()));
        } else if constexpr (std::is_arithmetic_v<Kind>) {
            total.add(number);
        }
    };
    std::visit(add, value.data());
    return total.text();
}

Decimal decimalOf(std::string_view exact)
{
    const auto length = lengthOfFirstDigits(exact);
    const auto point = std::min(exact.find('.'), exact.size());
    if (length == exact.size() || length < point)
        return Decimal::parse(exact).value_or(Decimal());
    std::string kept(exact.substr(0, length));
    if (hasDigitButZero(exact.substr(length)))
        markTail(kept);
    return Decimal::parse(kept).value_or(Decimal());
}

bool isLong(std::string_view exact)
{
    return lengthOfFirstDigits(exact) < exact.size();
}

/// The places after the point are rounded by themselves and added to the whole.
std::string roundedText(std::string_view exact, int places)
{
    const auto point = std::min(exact.find('.'), exact.size());
    std::string tail(exact.starts_with('-') ? "-0" : "0");
    tail += exact.substr(point);
    DecimalTotal total;
    total.add(exact.substr(0, point));
    total.add(std::string_view(decimalOf(tail).rounded(places).text()));
    return total.text();
}

} // namespace norvane::reports
