// A length on paper or on the screen, in any unit. Screen files use twips, overlays and report pages
// millimetres, printers dots.
#pragma once

#include <cmath>
#include <compare>
#include <cstdint>

namespace norvane::paper
{

/// Logical pixels of a screen to the inch; the toolkit scales them to the real ones.
inline constexpr double screenDotsPerInch = 96;

/// Counts in 1/914,400 inch, of which a millimetre, a twip and a dot of the usual printers (300, 600 to the
/// inch) are whole multiples: lengths add up and compare exactly.
class Length
{
public:
    constexpr Length() = default;

    [[nodiscard]] constexpr double inMillimetres() const { return in(unitsPerInch / millimetresPerInch); }
    [[nodiscard]] constexpr double inDots(double dotsPerInch) const { return in(unitsPerInch / dotsPerInch); }

    // The check takes a 0 in the compiler's own code for a null pointer.
    constexpr auto operator<=>(const Length&) const = default; // NOLINT(modernize-use-nullptr)
    friend constexpr Length operator+(Length a, Length b) { return Length(a.m_units + b.m_units); }
    friend constexpr Length operator-(Length a, Length b) { return Length(a.m_units - b.m_units); }

    friend constexpr Length operator*(int times, Length length) { return Length(times * length.m_units); }
    /// How often @p b fits into @p a; @p b is not 0.
    friend constexpr double operator/(Length a, Length b)
    {
        return static_cast<double>(a.m_units) / static_cast<double>(b.m_units);
    }

    friend constexpr Length millimetres(double count);
    friend constexpr Length twips(double count);
    friend constexpr Length dots(double count, double dotsPerInch);

private:
    static constexpr double unitsPerInch = 914'400;
    static constexpr double millimetresPerInch = 25.4;
    static constexpr double twipsPerInch = 1'440;
    /// A kilometre. Files may have any number; lengths beyond all paper and screens need not differ.
    static constexpr double mostUnits = 1e6 / millimetresPerInch * unitsPerInch;

    explicit constexpr Length(std::int64_t units) : m_units(units) {}
    static constexpr Length made(double count, double countsPerInch)
    {
        const double units = count * unitsPerInch / countsPerInch;
        if (!(units > -mostUnits && units < mostUnits))
            return Length(static_cast<std::int64_t>(units < mostUnits ? -mostUnits : mostUnits));
        return Length(static_cast<std::int64_t>(units < 0 ? units - 0.5 : units + 0.5));
    }
    [[nodiscard]] constexpr double in(double unitsPerCount) const
    {
        return static_cast<double>(m_units) / unitsPerCount;
    }

    std::int64_t m_units = 0;
};

[[nodiscard]] constexpr Length millimetres(double count)
{
    return Length::made(count, Length::millimetresPerInch);
}
[[nodiscard]] constexpr Length twips(double count)
{
    return Length::made(count, Length::twipsPerInch);
}
/// Dots of a device that has @p dotsPerInch of them to the inch.
[[nodiscard]] constexpr Length dots(double count, double dotsPerInch)
{
    return Length::made(count, dotsPerInch);
}

/// Sizes of fonts; a point is 1/72 inch.
[[nodiscard]] constexpr Length points(double count)
{
    return dots(count, 72);
}

/// Logical pixels of a screen to the millimetre at true size.
inline constexpr double screenPixelsPerMillimetre = millimetres(1).inDots(screenDotsPerInch);

/// The nearest pixel of the screen, halves away from zero.
[[nodiscard]] inline int screenPixels(Length length)
{
    return static_cast<int>(std::lround(length.inDots(screenDotsPerInch)));
}

} // namespace norvane::paper
