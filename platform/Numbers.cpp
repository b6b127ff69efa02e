// Conversions between texts and numbers; see Numbers.h.
#include "platform/Numbers.h"

#include "platform/Excerpt.h"
#include "platform/NumberScan.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace norvane
{
namespace
{

/// A double has up to 309 digits before the point or some 340 characters after it.
constexpr std::size_t longestNumberText = 400;

[[noreturn]] void failTypeMismatch(QStringView text)
{
    throw RuntimeFailure(Failure::TypeMismatch,
                         QStringLiteral("Type mismatch: \"%1\" is not a number").arg(excerpt(text)));
}

[[noreturn]] void failOverflow(QStringView text)
{
    throw RuntimeFailure(Failure::Overflow, QStringLiteral("Overflow: %1").arg(excerpt(text)));
}

/// A number is ASCII; any other character ends it.
std::string bytesOf(QStringView text)
{
    return text.toLatin1().toStdString();
}

double toDouble(const ScannedNumber& number, QStringView text)
{
    const auto value = toDouble(number);
    if (!value)
        failOverflow(text);
    return *value;
}

/// The number's digits before and after the point, rounded half away from zero.
struct PlainDigits {
    std::string whole;
    std::string fraction;
};

void addOneToLastDigit(std::string& digits)
{
    auto at = digits.rbegin();
    for (; at != digits.rend() && *at == '9'; ++at)
        *at = '0';
    if (at == digits.rend()) {
        digits.insert(digits.begin(), '1');
    } else {
        ++*at;
    }
}

PlainDigits roundedDigits(const ScannedNumber& number, std::size_t places)
{
    std::string digits = number.digits;
    auto scale = static_cast<std::size_t>(std::max(number.scale, 0));
    if (number.scale < 0)
        digits.append(static_cast<std::size_t>(-number.scale), '0');
    if (digits.size() <= scale)
        digits.insert(0, scale - digits.size() + 1, '0');
    if (scale < places)
        digits.append(places - scale, '0');
    if (scale > places) {
        const bool up = digits[digits.size() - (scale - places)] >= '5';
        digits.resize(digits.size() - (scale - places));
        if (up)
            addOneToLastDigit(digits);
    }
    const auto point = digits.size() - places;
    return {digits.substr(0, point), digits.substr(point)};
}

void fitWholeDigits(std::string& whole, std::size_t width)
{
    whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
    if (whole.size() < width)
        whole.insert(0, width - whole.size(), '0');
}

} // namespace

double leadingNumber(QStringView text)
{
    const auto number = scanLeadingNumber(bytesOf(text));
    return number ? toDouble(*number, text) : 0;
}

QString numberText(double number)
{
    if (number == 0)
        return QStringLiteral("0");
    std::array<char, longestNumberText> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

QString signedNumberText(double number)
{
    return number < 0 ? numberText(number) : u' ' + numberText(number);
}

double toNumber(QStringView text)
{
    const auto number = scanWholeNumber(bytesOf(text));
    if (!number)
        failTypeMismatch(text);
    return toDouble(*number, text);
}

int toWholeNumber(QStringView text, int bits)
{
    const int whole = roundHalfEven(toNumber(text));
    const int largest =
        bits == 16 ? std::numeric_limits<std::int16_t>::max() : std::numeric_limits<std::int32_t>::max();
    if (whole > largest || whole < -largest - 1)
        failOverflow(text);
    return whole;
}

int roundHalfEven(double number)
{
    // The default rounding mode, which the program never changes.
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        failOverflow(numberText(number));
    return static_cast<int>(rounded);
}

bool toBoolean(QStringView text)
{
    const auto word = text.trimmed();
    if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    return toNumber(text) != 0;
}

QString formatNumber(QStringView text, QStringView pattern)
{
    if (text.isEmpty())
        return {};
    const auto number = scanWholeNumber(bytesOf(text));
    if (!number)
        failTypeMismatch(text);
    const auto point = pattern.indexOf(u'.');
    const auto places = point < 0 ? 0 : pattern.size() - point - 1;
    auto digits = roundedDigits(*number, static_cast<std::size_t>(places));
    fitWholeDigits(digits.whole, static_cast<std::size_t>(point < 0 ? pattern.size() : point));

    std::string result = digits.whole;
    if (point >= 0)
        result += '.' + digits.fraction;
    const bool isZero = result.find_first_not_of("0.") == std::string::npos;
    if (number->negative && !isZero)
        result.insert(result.begin(), '-');
    return QString::fromStdString(result);
}

} // namespace norvane
