// A running total of money and quantities that never rounds.
#pragma once

#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace norvane
{

/// Adds numbers in decimal. A double counts as its shortest decimal, so 0.1 added ten times is 1 and not
/// 0.9999999999999999. The number of digits is unlimited: subtracting what was added gives the exact total
/// back. Numbers of up to four places and fifteen digits (all takings) are added as fast as doubles.
class DecimalTotal
{
public:
    DecimalTotal() noexcept;
    ~DecimalTotal();
    DecimalTotal(const DecimalTotal&) = delete;
    DecimalTotal& operator=(const DecimalTotal&) = delete;

    /// @throws RuntimeFailure with Failure::Overflow for infinity and NaN.
    void add(double number)
    {
        const double scaled = number * unitsOfOne;
        if (std::abs(scaled) < mostExactUnits) {
            const auto units = static_cast<std::int64_t>(scaled + std::copysign(0.5, scaled));
            if (static_cast<double>(units) / unitsOfOne == number) {
                addUnits(units);
                return;
            }
        }
        addAsSpelled(number);
    }
    void add(std::int64_t number);
    /// Adds the decimal number in @p text; a text that is not a number counts as 0.
    /// @throws RuntimeFailure with Failure::Overflow for a number of more than some 350 places before or
    /// after the point.
    void add(std::string_view text);

    /// The total as a plain decimal without trailing zeros: "5639.55", "-3", "0".
    [[nodiscard]] std::string text() const;
    /// The total as a whole number. @return nothing if it has decimal places or more than about fifteen
    /// digits.
    [[nodiscard]] std::optional<std::int64_t> whole() const;

private:
    class Places;

    static constexpr double unitsOfOne = 10000;
    /// Two decimals of up to fifteen digits never share a double, so a decimal of four places that converts
    /// to a double is its shortest.
    static constexpr double mostExactUnits = 1e15;
    static constexpr std::int64_t mostUnits = 8'000'000'000'000'000'000;

    void addUnits(std::int64_t units)
    {
        m_units += units;
        if (m_units > mostUnits || m_units < -mostUnits)
            settle();
    }
    void addAsSpelled(double number);
    void settle();
    Places& places();

    std::int64_t m_units = 0;         ///< ten-thousandths
    std::unique_ptr<Places> m_places; ///< what does not fit there
};

} // namespace norvane
