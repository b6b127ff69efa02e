// Numbers as the user's locale writes them, with thousands and currency where a report wants them.
#pragma once

#include "platform/Decimal.h"

#include <QString>

namespace norvane::reports
{

/// What pages add to a plain number.
struct NumberDress {
    bool isGrouped = false; ///< thousands are separated
    QString currency;       ///< the shop's sign before the number; empty for none
};

/// A plain decimal such as "-1234.5" with at least @p leastDecimals places, in the format of the user's
/// locale.
[[nodiscard]] QString shownDigits(QString plain, int leastDecimals);

/// A number with between @p leastDecimals and @p mostDecimals places, rounded in decimal, halves away from
/// zero, with the sign of the user's locale and without thousands separators.
[[nodiscard]] QString shownNumber(const Decimal& number, int leastDecimals, int mostDecimals);
/// Adds sign and currency to a number formatted by shownNumber(): "-1234.50" becomes "-£1,234.50".
[[nodiscard]] QString dressed(QString number, const NumberDress& dress);

} // namespace norvane::reports
