// Which of comma and point is the decimal sign in the numbers of a file.
#pragma once

#include "platform/Decimal.h"

#include <optional>
#include <string_view>

namespace norvane::articles
{

/// The number of a cell, with a decimal point or comma; thousands are not separated.
[[nodiscard]] std::optional<Decimal> numberOf(std::string_view cell);

/// "1,000" is one or a thousand. The other numbers of the file may decide it: in "2,50" the comma can only be
/// the decimal sign.
class DecimalSign
{
public:
    /// Learns from @p number, which has no blanks around it.
    void learnFrom(std::string_view number);
    /// Whether @p number has one sign, three digits after it, and the numbers learned from do not show that
    /// this sign, and not the other, is the decimal sign of the file.
    [[nodiscard]] bool leavesOpen(std::string_view number) const;

private:
    bool m_isPoint = false; ///< some number can only be read so
    bool m_isComma = false;
};

} // namespace norvane::articles
