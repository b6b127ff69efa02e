// Exact decimal numbers for money and other scaled values. No binary fraction is used.
#pragma once

#include <QString>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane
{

/// coefficient / 10^scale, exact, up to 18 digits.
/// @throws RuntimeFailure with Failure::Overflow from operations that would need more digits.
class Decimal
{
public:
    static constexpr int mostDigits = 18;

    constexpr Decimal() = default;
    constexpr Decimal(std::int64_t coefficient, int scale) : m_coefficient(coefficient), m_scale(scale) {}

    /// The number in a text of digits with at most a leading minus and a point. Nearly all numbers are
    /// written so; bulk work reads them without a scan.
    /// @return nothing for any other form and for more than 18 digits.
    [[nodiscard]] static std::optional<Decimal> plain(std::string_view text);
    /// Reads a whole text such as "-12.340" (blanks around it allowed). @return nothing if it is not a
    /// number. @throws RuntimeFailure with Failure::Overflow for a number of more than 18 digits.
    [[nodiscard]] static std::optional<Decimal> parse(std::string_view text);
    /// The same for what a user may type: nothing also for a number of more than 18 digits.
    [[nodiscard]] static std::optional<Decimal> tryParse(std::string_view text);
    /// The number at the start of @p text, blanks skipped: "12abc" is 12, and "x", which has none, is 0.
    [[nodiscard]] static Decimal leading(std::string_view text);
    /// The shortest decimal that converts to the binary @p number.
    [[nodiscard]] static Decimal fromDouble(double number);

    /// The whole number that is left when the point is taken away; for keeping many numbers in little memory.
    [[nodiscard]] constexpr std::int64_t coefficient() const { return m_coefficient; }
    /// Places after the point; those of 1.50 are two.
    [[nodiscard]] constexpr int scale() const { return m_scale; }
    /// All digits, those after the point included, without leading zeros; 1 for 0.
    [[nodiscard]] int digits() const;

    /// Moves the point: multiplies by 10^@p places, divides when negative.
    [[nodiscard]] Decimal shifted(int places) const;
    /// Rounds to @p places after the point, halves away from zero.
    [[nodiscard]] Decimal rounded(int places) const;
    /// The quotient to @p digits significant digits (up to 17), halves away from zero. @p divisor is not 0.
    [[nodiscard]] Decimal dividedBy(const Decimal& divisor, int digits) const;
    [[nodiscard]] Decimal plus(const Decimal& summand) const;
    /// The product. One of more than 18 digits is rounded: places of the longer factor are dropped first.
    [[nodiscard]] Decimal times(const Decimal& factor) const;
    /// Rounded to the whole number, halves away from zero.
    [[nodiscard]] std::int64_t toWhole() const;
    /// Plain number text without trailing zeros, but with at least @p places after the point: 12.3 is "12.3",
    /// with two places "12.30". For exactly so many places, round first.
    [[nodiscard]] std::string text(int places = 0) const;
    [[nodiscard]] double toDouble() const;

    /// By value, exactly: 1.50 equals 1.5.
    [[nodiscard]] std::weak_ordering operator<=>(const Decimal& other) const;
    // The check takes the 0 that an order is compared with for a null pointer.
    [[nodiscard]] bool operator==(const Decimal& other) const
    {
        return (*this <=> other) == 0; // NOLINT(modernize-use-nullptr)
    }

private:
    std::int64_t m_coefficient = 0;
    int m_scale = 0;
};

} // namespace norvane
