// The columns of a PLU that are exported to a spreadsheet and imported from one.
#pragma once

#include "platform/Decimal.h"
#include "store/engine/Value.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <span>

namespace norvane::articles
{

/// Kinds of values in the PLU spreadsheet.
enum class PluContent {
    Number, ///< of the PLU itself
    Text,
    Key, ///< the number of a record in another table
    Price
};

/// A column of the PLU spreadsheet.
struct PluColumn {
    QLatin1StringView heading; ///< in the file
    QLatin1StringView field;   ///< of PLUDATA
    PluContent content;
    bool isOnScreen = true;    ///< whether a new record of the PLU screen sets it
    QLatin1StringView table{}; ///< of a key: the table that must have it
    QLatin1StringView tableKey{};
};

/// In the order of an export. The first is the number.
[[nodiscard]] std::span<const PluColumn> pluColumns();

inline constexpr qsizetype longestDescription = 16; ///< characters of a register
inline constexpr Decimal highestPrice{99999999, 2}; ///< a register has eight digits for a price
inline constexpr int priceDecimals = 2;

/// What a new record of the PLU screen holds in a column; nothing in one that is not on it.
[[nodiscard]] store::Value newPluValue(const PluColumn& column);
/// What an export shows of a stored text; a register fills it with blanks.
[[nodiscard]] QString exportedText(const store::Value& stored);
/// Nothing for a price or key that was never set.
[[nodiscard]] std::optional<Decimal> exportedNumber(const store::Value& stored);

} // namespace norvane::articles
