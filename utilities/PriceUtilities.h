// The entries of the Utilities menu: what each asks, does and tells, as a table, and the one engine for it.
#pragma once

#include "platform/Boxes.h"
#include "utilities/PriceWalk.h"

#include <QLatin1StringView>
#include <QString>

#include <functional>
#include <span>

namespace norvane::utilities
{

/// Title and text of a box.
struct BoxWords {
    QLatin1StringView title;
    QLatin1StringView text;
};

/// One entry. It is either a walk over the PLUs or a number of statements.
struct PriceUtility {
    QLatin1StringView handler; ///< "TransferEuro_Click"
    BoxWords confirm;
    bool asksRate;
    std::span<const PricePair> fields;
    std::span<const QLatin1StringView> statements;
    BoxWords done;
    /// Run after the user has closed the last box, and never told.
    std::span<const QLatin1StringView> afterwards = {};
};

[[nodiscard]] std::span<const PriceUtility> priceUtilities();

/// What the window around a walk does meanwhile.
struct WalkFrame {
    std::function<void()> begins;   ///< the user has answered everything, the records come now
    std::function<void()> everyRow; ///< lets the window's events run; called often, so it must be cheap
};

/// Asks, with No as the answer that Enter gives, does the work on the database at @p databasePath and tells
/// that it is done. No, and a rate of 0, end it with no word.
/// @throws RuntimeFailure what the database reports; what was done before stays done.
void runPriceUtility(const PriceUtility& utility, const QString& databasePath, Boxes& boxes,
                     const WalkFrame& frame);

} // namespace norvane::utilities
