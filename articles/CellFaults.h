// Why a register cannot take what is in a cell.
#pragma once

#include "articles/TableSheet.h"

#include <optional>
#include <string_view>

namespace norvane::articles
{

// Reasons for the user, empty if the register can take it. The cells have no blanks around them.
[[nodiscard]] QString faultOf(const SheetColumn& column, const QString& text);
[[nodiscard]] QString faultOf(const SheetColumn& column, const Decimal& number);
[[nodiscard]] QString faultOfDigits(const SheetColumn& column, std::string_view cell);
[[nodiscard]] QString faultOfHexadecimal(const SheetColumn& column, std::string_view cell);

/// Whether @p text has digits and nothing else.
[[nodiscard]] bool isDigits(std::string_view text);
/// Of "Yes", "true", "1" and so on in any case; nothing for any other text.
[[nodiscard]] std::optional<bool> yesNoOf(std::string_view cell);

} // namespace norvane::articles
