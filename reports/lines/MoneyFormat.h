// How a shop shows money.
#pragma once

#include "store/engine/Database.h"

#include <QString>

namespace norvane::reports
{

/// How money is shown at a shop.
struct MoneyFormat {
    int decimals = 2;
    QString currency; ///< sign before the number; empty for none
};

/// That of the registers' settings in @p database: two decimal places and no currency sign if there are none.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] MoneyFormat moneyFormatOf(store::Database& database);

} // namespace norvane::reports
