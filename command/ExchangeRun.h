// An exchange with the registers, for the commands that have one.
#pragma once

#include "command/Invocation.h"
#include "command/Workplace.h"
#include "exchange/UnfinishedExchange.h"
#include "link/FailedStep.h"
#include "sales/CollectionRun.h"

#include <QDate>

#include <functional>
#include <optional>
#include <set>

namespace norvane::command
{

/// What came of an exchange.
struct ExchangeEnd {
    ExitCode code = ExitCode::Done;
    QString words;   ///< "1 file to registers 1 to 3, 12 s", or where and why it stopped
    QString message; ///< about a stop, for the user; empty if a message was already shown
    std::optional<link::FailedStep> failed; ///< the step that a result has ended
    QString toolWords;                      ///< of the last tool
    QDate day;                              ///< that collected sales were booked for; invalid for none
};

/// Moves @p boxes. The caller holds the lock of the run.
/// @throws RuntimeFailure as exchange::ExchangeRunner.
[[nodiscard]] ExchangeEnd moveBoxes(const Workplace& workplace, const ApplicationValues& values,
                                    std::set<int> boxes, exchange::Direction direction);

/// Collects the sales of all registers. The caller holds the lock of the run.
/// @param dayToBook is asked when the sales are stored.
/// @throws RuntimeFailure as sales::CollectionRun.
[[nodiscard]] ExchangeEnd collectSales(const Workplace& workplace, const ApplicationValues& values,
                                       sales::ClearFirst clearFirst, std::function<QDate()> dayToBook);

/// The day of the option --day, which sales are booked for; invalid without the option.
/// @throws CommandError Usage for a day after @p today or more than a week before it.
[[nodiscard]] QDate dayToBook(const Invocation& words, QDate today);

} // namespace norvane::command
