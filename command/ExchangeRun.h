// An exchange with the registers, for the commands that have one.
#pragma once

#include "command/Workplace.h"
#include "exchange/UnfinishedExchange.h"
#include "link/FailedStep.h"

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
};

/// Moves @p boxes. The caller holds the lock of the run.
/// @throws RuntimeFailure as exchange::ExchangeRunner.
[[nodiscard]] ExchangeEnd moveBoxes(const Workplace& workplace, const ApplicationValues& values,
                                    std::set<int> boxes, exchange::Direction direction);

} // namespace norvane::command
