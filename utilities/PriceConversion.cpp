// The steps of the rounding; see PriceConversion.h.
#include "utilities/PriceConversion.h"

#include "platform/Numbers.h"
#include "platform/NumberScan.h"

#include <cstdint>
#include <cstdlib>

namespace norvane::utilities
{
namespace
{

/// Digits of a quotient before it is rounded.
constexpr int significantDigits = 15;

} // namespace

std::optional<Decimal> exchangeRate(const QString& answer)
{
    const double rate = leadingNumber(answer);
    return rate == 0 ? std::nullopt : std::optional(Decimal::fromDouble(rate));
}

bool isWhollyNumber(const QString& answer)
{
    return scanWholeNumber(answer.toStdString()).has_value();
}

std::string convertedPrice(std::string_view price, const Decimal& rate)
{
    const Decimal quotient = Decimal::leading(price).dividedBy(rate, significantDigits);
    const std::int64_t cut = quotient.shifted(4).toWhole() / 10;
    const std::int64_t lastDigit = std::abs(cut) % 10;
    // `cut` counts thousandths. Its last digit is subtracted from the signed number, so a negative price
    // moves away from zero: -1.234 becomes -1.238 and then -1.24.
    const Decimal result = Decimal(lastDigit >= 5 ? cut : cut - lastDigit, 3).rounded(2);
    return result < Decimal() ? result.text() : ' ' + result.text();
}

} // namespace norvane::utilities
