// The entries of the Utilities menu: what each asks, does and reports.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "store/engine/WorkHistory.h"
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

/// One entry. It changes every PLU (`fields`), runs a statement or empties tables.
struct PriceUtility {
    QLatin1StringView handler; ///< "TransferEuro_Click"
    QLatin1StringView name;    ///< as in the menu
    BoxWords confirm;
    bool asksRate;
    QLatin1StringView target; ///< what it changes or empties: "the euro prices 1 to 5"
    std::span<const PricePair> fields;
    QLatin1StringView statement; ///< empty for none
    BoxWords done;
    std::span<const char* const> emptied = {}; ///< tables, in this order
    /// Emptied after the user has closed the last box, which does not mention them.
    std::span<const char* const> emptiedAfterwards = {};
};

[[nodiscard]] std::span<const PriceUtility> priceUtilities();

/// What the window does beside the boxes, and while every PLU is changed.
struct WalkFrame {
    std::function<void()> begins;   ///< called after the user's last answer, before the first record
    std::function<void()> everyRow; ///< called before each record, so it must be cheap
    /// Shows what is about to change while the user is asked, and afterwards the way back; empty for neither.
    std::function<void(const QString& text)> showNotice;
    /// Where the work is recorded so that it can be undone; nullptr for nowhere.
    store::WorkHistory* history = nullptr;
};

/// Asks (Enter means No), changes the database in use and reports success. Also asks before it uses a rate
/// that is only the beginning of what was typed. Changes nothing after No, for a rate of 0, or while another
/// run holds the program's folder. Holds the lock of a run between the last answer and the last box only.
/// @throws RuntimeFailure as the database reports; the changes before it remain.
void runPriceUtility(const PriceUtility& utility, const ApplicationValues& values, Boxes& boxes,
                     const WalkFrame& frame);

} // namespace norvane::utilities
