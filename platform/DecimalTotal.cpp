// Totals place by place for numbers of any length; see DecimalTotal.h.
#include "platform/DecimalTotal.h"

#include "platform/NumberScan.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>

namespace norvane
{
namespace
{

constexpr int unitPlaces = 4;
constexpr std::int64_t wholeUnits = 10000;

[[noreturn]] void failTooLarge()
{
    throw RuntimeFailure(Failure::Overflow, QStringLiteral("Overflow: a number too large to be added up"));
}

/// Ten-thousandths of a text of digits, with at most a minus and a point: nearly every number is written so.
/// @return nothing for any other form.
std::optional<std::int64_t> plainUnits(std::string_view text)
{
    constexpr std::size_t mostPlainDigits = 14;
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const auto point = std::min(text.find('.'), text.size());
    const auto fraction = text.size() - std::min(point + 1, text.size());
    if (point == 0 || point > mostPlainDigits || fraction > unitPlaces)
        return std::nullopt;
    std::int64_t units = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (at == point)
            continue;
        if (text[at] < '0' || text[at] > '9')
            return std::nullopt;
        units = units * 10 + (text[at] - '0');
    }
    for (auto missing = fraction; missing < unitPlaces; ++missing)
        units *= 10;
    return negative ? -units : units;
}

/// A report asks for tens of thousands of these.
std::string textOfUnits(std::int64_t units)
{
    std::array<char, 32> buffer{};
    char* at = buffer.data();
    if (units < 0)
        *at++ = '-';
    at = std::to_chars(at, buffer.data() + buffer.size(), std::abs(units / wholeUnits)).ptr;
    std::int64_t fraction = std::abs(units % wholeUnits);
    if (fraction > 0)
        *at++ = '.';
    for (std::int64_t place = wholeUnits / 10; fraction > 0; place /= 10) {
        *at++ = static_cast<char>('0' + fraction / place);
        fraction %= place;
    }
    return {buffer.data(), at};
}

} // namespace

/// Every digit that a double can reach, nine to a limb. A limb has room for far more than nine, so the carry
/// waits until the total is read.
class DecimalTotal::Places
{
public:
    /// Adds digits / 10^@p scale.
    void add(bool negative, std::string_view digits, int scale)
    {
        int place = static_cast<int>(digits.size()) - 1 - scale;
        for (const char digit : digits)
            addDigit(negative ? '0' - digit : digit - '0', place--);
    }

    [[nodiscard]] std::string text() const
    {
        Places rest = *this;
        rest.handOn();
        const bool negative = rest.m_limbs.back() < 0;
        if (negative) {
            rest.negate();
            rest.handOn();
        }
        return negative ? '-' + rest.digits() : rest.digits();
    }

private:
    static constexpr int limbDigits = 9;
    static constexpr std::int64_t limbBase = 1'000'000'000;
    static constexpr int limbsBehindPoint = 40;
    static constexpr int limbCount = 80;

    void addDigit(std::int64_t digit, int place)
    {
        if (digit == 0)
            return;
        const int at = place + limbsBehindPoint * limbDigits;
        if (at < 0 || at >= (limbCount - 1) * limbDigits)
            failTooLarge();
        for (int i = at % limbDigits; i > 0; --i)
            digit *= 10;
        m_limbs.at(static_cast<std::size_t>(at / limbDigits)) += digit;
    }

    /// Leaves nine digits in each limb; the sign of the whole is that of the last.
    void handOn()
    {
        for (std::size_t i = 0; i + 1 < m_limbs.size(); ++i) {
            std::int64_t upper = m_limbs.at(i) / limbBase;
            if (m_limbs.at(i) % limbBase < 0)
                --upper;
            m_limbs.at(i) -= upper * limbBase;
            m_limbs.at(i + 1) += upper;
        }
    }

    void negate()
    {
        for (auto& limb : m_limbs)
            limb = -limb;
    }

    [[nodiscard]] std::string digits() const
    {
        std::string all;
        for (std::size_t place = m_limbs.size(); place-- > 0;) {
            const std::string nine = std::to_string(m_limbs[place]);
            all.append(limbDigits - nine.size(), '0').append(nine);
        }
        const auto behindPoint = std::size_t{limbsBehindPoint} * limbDigits;
        const auto first = std::min(all.find_first_not_of('0'), all.size() - behindPoint - 1);
        all.insert(all.size() - behindPoint, 1, '.');
        all.erase(all.find_last_not_of('0') + 1);
        if (all.back() == '.')
            all.pop_back();
        return all.substr(first);
    }

    std::array<std::int64_t, limbCount> m_limbs{};
};

DecimalTotal::DecimalTotal() noexcept = default;
DecimalTotal::~DecimalTotal() = default;

DecimalTotal::Places& DecimalTotal::places()
{
    if (!m_places)
        m_places = std::make_unique<Places>();
    return *m_places;
}

void DecimalTotal::add(std::int64_t number)
{
    constexpr auto mostWhole = static_cast<std::int64_t>(mostExactUnits) / wholeUnits;
    if (number > -mostWhole && number < mostWhole) {
        addUnits(number * wholeUnits);
    } else {
        add(std::string_view(std::to_string(number)));
    }
}

void DecimalTotal::add(std::string_view text)
{
    if (const auto units = plainUnits(text)) {
        addUnits(*units);
    } else if (const auto number = scanWholeNumber(text)) {
        places().add(number->negative, number->digits, number->scale);
    }
}

void DecimalTotal::addAsSpelled(double number)
{
    if (!std::isfinite(number))
        failTooLarge();
    std::array<char, 32> buffer{};
    const auto* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    add(std::string_view(buffer.data(), static_cast<std::size_t>(end - buffer.data())));
}

void DecimalTotal::settle()
{
    const std::string units = std::to_string(m_units);
    const bool negative = m_units < 0;
    places().add(negative, std::string_view(units).substr(negative ? 1 : 0), unitPlaces);
    m_units = 0;
}

std::string DecimalTotal::text() const
{
    if (!m_places)
        return textOfUnits(m_units);
    DecimalTotal whole;
    whole.m_units = m_units;
    whole.m_places = std::make_unique<Places>(*m_places);
    whole.settle();
    return whole.m_places->text();
}

std::optional<std::int64_t> DecimalTotal::whole() const
{
    return m_places || m_units % wholeUnits != 0 ? std::nullopt : std::optional(m_units / wholeUnits);
}

} // namespace norvane
