// Reads the text of a number digit by digit; see NumberScan.h.
#include "platform/NumberScan.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace norvane
{
namespace
{

/// Larger exponents are cut to this: beyond every number type, and no sum of two overflows.
constexpr int exponentLimit = 9999;
constexpr std::string_view whiteSpace = " \t\r\n";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isPassedOver(char c)
{
    return c == ' ' || c == '\t' || c == '\n';
}

class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    std::optional<ScannedNumber> number()
    {
        ScannedNumber number;
        number.negative = peek() == '-';
        if (peek() == '-' || peek() == '+')
            ++m_at;
        takeDigits(number.digits);
        if (peek() == '.') {
            ++m_at;
            const auto whole = number.digits.size();
            takeDigits(number.digits);
            number.scale = static_cast<int>(number.digits.size() - whole);
        }
        if (number.digits.empty())
            return std::nullopt;
        number.scale -= exponent();
        number.length = m_at;
        return number;
    }

private:
    [[nodiscard]] char peek(std::size_t ahead = 0) const
    {
        return m_at + ahead < m_text.size() ? m_text[m_at + ahead] : '\0';
    }

    void takeDigits(std::string& digits)
    {
        const auto rest = m_text.substr(m_at);
        const auto end = std::find_if_not(rest.begin(), rest.end(), isDigit);
        digits.append(rest.begin(), end);
        m_at += static_cast<std::size_t>(end - rest.begin());
    }

    int exponent()
    {
        constexpr std::string_view letters = "EeDd";
        if (letters.find(peek()) == std::string_view::npos)
            return 0;
        const std::size_t sign = peek(1) == '-' || peek(1) == '+' ? 1 : 0;
        if (!isDigit(peek(1 + sign)))
            return 0;
        const bool negative = peek(1) == '-';
        int value = 0;
        for (m_at += 1 + sign; isDigit(peek()); ++m_at)
            value = std::min(value * 10 + (peek() - '0'), exponentLimit);
        return negative ? -value : value;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

/// The number at the start of @p text, leading blanks not allowed.
std::optional<ScannedNumber> scanNumber(std::string_view text)
{
    return Scanner(text).number();
}

} // namespace

std::optional<ScannedNumber> scanWholeNumber(std::string_view text)
{
    const auto first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos)
        return std::nullopt;
    text = text.substr(first, text.find_last_not_of(whiteSpace) - first + 1);
    auto number = scanNumber(text);
    return number && number->length == text.size() ? number : std::nullopt;
}

std::optional<ScannedNumber> scanLeadingNumber(std::string_view text)
{
    if (std::none_of(text.begin(), text.end(), isPassedOver))
        return scanNumber(text);
    std::string closed;
    std::remove_copy_if(text.begin(), text.end(), std::back_inserter(closed), isPassedOver);
    return scanNumber(closed);
}

std::optional<double> toDouble(const ScannedNumber& number)
{
    const std::string plain = number.digits + 'e' + std::to_string(-number.scale);
    double value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    // Both ends of the range give the same error.
    const bool hasWholePart = static_cast<int>(number.digits.size()) > number.scale;
    if (result.ec == std::errc::result_out_of_range && hasWholePart)
        return std::nullopt;
    return number.negative ? -value : value;
}

std::optional<std::int64_t> plainWhole(std::string_view text)
{
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

} // namespace norvane
