// The numbers of PLUs: 18 digits in tables and register records, without leading zeros on the screen.
#pragma once

#include <QString>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane
{

/// The number of a PLU, ordered by its value. For numbers that come from outside and may not be one.
class PluNumber
{
public:
    static constexpr int digits = 18;

    /// Reads 1 to 18 digits; blanks around them are skipped. @return nothing for any other text.
    [[nodiscard]] static std::optional<PluNumber> parse(std::string_view text);

    /// As the tables hold it: 18 digits with leading zeros.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::uint64_t value() const { return m_value; }
    // The check takes the 0 that an order is compared with for a null pointer.
    auto operator<=>(const PluNumber&) const = default; // NOLINT(modernize-use-nullptr)

private:
    explicit PluNumber(std::uint64_t value) : m_value(value) {}

    std::uint64_t m_value;
};

// Registers and users may put anything in place of a number. The following functions take every text and
// change nothing but zeros and length.

/// @p text with zeros on its left, up to 18 characters. A longer text is returned as it is.
[[nodiscard]] QString filledPluNumber(const QString& text);
/// The same, but of a longer text the last 18 characters, as registers read it.
[[nodiscard]] QString fittedPluNumber(const QString& text);
/// @p text without its leading zeros. A zero at its very end remains.
[[nodiscard]] QString unfilledNumber(const QString& text);

/// Whether a field or index with this name holds PLU numbers.
[[nodiscard]] bool isPluNumberField(const QString& name);
/// The key of a record as users know it: a PLU number without leading zeros, any other as it is.
[[nodiscard]] QString shownKey(const QString& keyField, const QString& key);

} // namespace norvane
