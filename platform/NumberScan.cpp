// Reads the text of a number digit by digit; see NumberScan.h.
#include "platform/NumberScan.h"

#include <algorithm>

namespace norvane
{
namespace
{

constexpr std::string_view passedOver = " \t\n";
constexpr std::string_view whiteSpace = " \t\r\n";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
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
        for (; isDigit(peek()); ++m_at)
            digits.push_back(peek());
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

} // namespace

std::optional<ScannedNumber> scanNumber(std::string_view text)
{
    return Scanner(text).number();
}

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
    if (text.find_first_of(passedOver) == std::string_view::npos)
        return scanNumber(text);
    std::string closed;
    std::copy_if(text.begin(), text.end(), std::back_inserter(closed),
                 [](char c) { return passedOver.find(c) == std::string_view::npos; });
    return scanNumber(closed);
}

} // namespace norvane
