// Exact decimal arithmetic on a 64-bit coefficient; see Decimal.h.
#include "platform/Decimal.h"

#include "platform/NumberScan.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace norvane
{
namespace
{

constexpr int mostDigits = Decimal::mostDigits;
/// Powers of ten up to this one are exact in a double.
constexpr int exactDoublePower = 22;
constexpr std::int64_t exactDoubleLimit = std::int64_t{1} << 53;

constexpr auto powersOfTen = [] {
    std::array<std::int64_t, mostDigits + 1> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

constexpr std::int64_t powerOfTen(int exponent)
{
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

[[noreturn]] void failOverflow()
{
    throw RuntimeFailure(Failure::Overflow, QStringLiteral("Overflow: a number of more than 18 digits"));
}

std::int64_t multiplied(std::int64_t coefficient, int exponent)
{
    if (coefficient == 0)
        return 0;
    if (exponent > mostDigits || std::abs(coefficient) >= powerOfTen(mostDigits - exponent))
        failOverflow();
    return coefficient * powerOfTen(exponent);
}

/// Leading zeros, and zeros that end a fraction, do not count as digits.
std::string_view significant(std::string_view digits, int& scale)
{
    const auto first = digits.find_first_not_of('0');
    if (first == std::string_view::npos) {
        scale = 0;
        return {};
    }
    digits.remove_prefix(first);
    while (scale > 0 && digits.size() > mostDigits && digits.back() == '0') {
        digits.remove_suffix(1);
        --scale;
    }
    return digits;
}

/// @return false at a character that is not a digit.
bool addDigits(std::int64_t& coefficient, std::string_view digits)
{
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return false;
        coefficient = coefficient * 10 + (digit - '0');
    }
    return true;
}

/// @p digits with a point before the last @p places of them.
std::string pointed(std::string digits, int places)
{
    const auto fraction = static_cast<std::size_t>(places);
    if (digits.size() <= fraction)
        digits.insert(0, fraction - digits.size() + 1, '0');
    if (places > 0)
        digits.insert(digits.size() - fraction, 1, '.');
    return digits;
}

/// @return nothing if it has too many digits, those of 1e20 included.
std::optional<Decimal> fittingNumber(const ScannedNumber& number)
{
    int scale = number.scale;
    const auto digits = significant(number.digits, scale);
    if (static_cast<int>(digits.size()) - std::min(scale, 0) > mostDigits)
        return std::nullopt;
    std::int64_t coefficient = 0;
    addDigits(coefficient, digits);
    if (number.negative)
        coefficient = -coefficient;
    return Decimal(coefficient, scale).shifted(0);
}

Decimal fromScanned(const ScannedNumber& number)
{
    const auto fitting = fittingNumber(number);
    if (!fitting)
        failOverflow();
    return *fitting;
}

} // namespace

std::optional<Decimal> Decimal::plain(std::string_view text)
{
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const auto whole = text.substr(0, text.find('.'));
    const auto fraction = text.substr(std::min(whole.size() + 1, text.size()));
    const auto digits = whole.size() + fraction.size();
    std::int64_t coefficient = 0;
    if (digits == 0 || digits > mostDigits || !addDigits(coefficient, whole) ||
        !addDigits(coefficient, fraction))
        return std::nullopt;
    return Decimal(negative ? -coefficient : coefficient,
                   coefficient == 0 ? 0 : static_cast<int>(fraction.size()));
}

std::optional<Decimal> Decimal::parse(std::string_view text)
{
    if (const auto spelledPlainly = plain(text))
        return spelledPlainly;
    const auto number = scanWholeNumber(text);
    return number ? std::optional(fromScanned(*number)) : std::nullopt;
}

std::optional<Decimal> Decimal::tryParse(std::string_view text)
{
    if (const auto spelledPlainly = plain(text))
        return spelledPlainly;
    const auto number = scanWholeNumber(text);
    return number ? fittingNumber(*number) : std::nullopt;
}

Decimal Decimal::leading(std::string_view text)
{
    if (const auto spelledPlainly = plain(text))
        return *spelledPlainly;
    const auto number = scanLeadingNumber(text);
    return number ? fromScanned(*number) : Decimal();
}

Decimal Decimal::fromDouble(double number)
{
    if (!std::isfinite(number))
        failOverflow();
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return leading(std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data())));
}

Decimal Decimal::shifted(int places) const
{
    const int scale = m_scale - places;
    return scale >= 0 ? Decimal(m_coefficient, scale) : Decimal(multiplied(m_coefficient, -scale), 0);
}

Decimal Decimal::rounded(int places) const
{
    const int surplus = m_scale - places;
    if (surplus <= 0)
        return *this;
    if (surplus > mostDigits)
        return {0, places};
    const std::int64_t divisor = powerOfTen(surplus);
    const std::int64_t rest = m_coefficient % divisor;
    std::int64_t quotient = m_coefficient / divisor;
    if (std::abs(rest) * 2 >= divisor)
        quotient += m_coefficient < 0 ? -1 : 1;
    return {quotient, places};
}

Decimal Decimal::dividedBy(const Decimal& divisor, int digits) const
{
    // The remainder is below 10^18, so ten times it fits 64 bits without sign.
    const auto by = static_cast<std::uint64_t>(std::abs(divisor.m_coefficient));
    const auto limit = static_cast<std::uint64_t>(powerOfTen(digits));
    auto quotient = static_cast<std::uint64_t>(std::abs(m_coefficient));
    auto rest = quotient % by;
    quotient /= by;
    int scale = m_scale - divisor.m_scale;
    // One digit more than asked for, to round by.
    for (; rest != 0 && quotient < limit; ++scale) {
        quotient = quotient * 10 + rest * 10 / by;
        rest = rest * 10 % by;
    }
    int surplus = 0;
    while (quotient / static_cast<std::uint64_t>(powerOfTen(surplus)) >= limit)
        ++surplus;
    const bool negative = (m_coefficient < 0) != (divisor.m_coefficient < 0);
    const auto exact = static_cast<std::int64_t>(quotient);
    const Decimal rounded = Decimal(negative ? -exact : exact, surplus).rounded(0);
    return Decimal(rounded.m_coefficient, scale - surplus).shifted(0);
}

/// Each coefficient is below 10^18, so their sum fits.
Decimal Decimal::plus(const Decimal& summand) const
{
    const int scale = std::max(m_scale, summand.m_scale);
    const std::int64_t sum = multiplied(m_coefficient, scale - m_scale) +
                             multiplied(summand.m_coefficient, scale - summand.m_scale);
    if (std::abs(sum) >= powerOfTen(mostDigits))
        failOverflow();
    return {sum, scale};
}

Decimal Decimal::times(const Decimal& factor) const
{
    Decimal a = *this;
    Decimal b = factor;
    const auto isTooLong = [&] {
        return a.digits() + b.digits() > mostDigits;
    };
    while (isTooLong() && a.m_scale + b.m_scale > 0) {
        // Dropping the last place of the longer number changes the product least.
        const bool isFirst = b.m_scale == 0 || (a.m_scale > 0 && a.digits() > b.digits());
        Decimal& longer = isFirst ? a : b;
        longer = longer.rounded(longer.m_scale - 1);
    }
    if (isTooLong() && a.m_coefficient != 0 && b.m_coefficient != 0)
        failOverflow();
    return {a.m_coefficient * b.m_coefficient, a.m_scale + b.m_scale};
}

std::int64_t Decimal::toWhole() const
{
    return rounded(0).shifted(0).m_coefficient;
}

int Decimal::digits() const
{
    const auto above = std::upper_bound(powersOfTen.begin(), powersOfTen.end(), std::abs(m_coefficient));
    return std::max(1, static_cast<int>(above - powersOfTen.begin()));
}

std::string Decimal::text(int places) const
{
    Decimal shown = shifted(0);
    while (shown.m_scale > places && shown.m_coefficient % 10 == 0)
        shown = Decimal(shown.m_coefficient / 10, shown.m_scale - 1);
    std::string digits = std::to_string(std::abs(shown.m_coefficient));
    if (shown.m_scale < places)
        digits.append(static_cast<std::size_t>(places - shown.m_scale), '0');
    digits = pointed(std::move(digits), std::max(places, shown.m_scale));
    return m_coefficient < 0 ? '-' + digits : digits;
}

double Decimal::toDouble() const
{
    // Both are exact as doubles, so the quotient is the nearest double.
    if (m_scale >= 0 && m_scale <= exactDoublePower && std::abs(m_coefficient) <= exactDoubleLimit) {
        static constexpr std::array<double, exactDoublePower + 1> powers{
            1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
            1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
        return static_cast<double>(m_coefficient) / powers[static_cast<std::size_t>(m_scale)];
    }
    const std::string plain = text();
    double value = 0;
    std::from_chars(plain.data(), plain.data() + plain.size(), value);
    return value;
}

/// The whole parts decide, and for equal ones what is left of the number with more places: no product that
/// could overflow.
std::weak_ordering Decimal::operator<=>(const Decimal& other) const
{
    if (m_scale < other.m_scale)
        return 0 <=> (other <=> *this); // NOLINT(modernize-use-nullptr): see Decimal.h
    const int surplus = m_scale - other.m_scale;
    const std::int64_t whole = surplus > mostDigits ? 0 : m_coefficient / powerOfTen(surplus);
    if (whole != other.m_coefficient)
        return whole <=> other.m_coefficient;
    const std::int64_t rest = surplus > mostDigits ? m_coefficient : m_coefficient % powerOfTen(surplus);
    return rest <=> 0;
}

} // namespace norvane
