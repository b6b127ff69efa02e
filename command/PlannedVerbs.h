// What the commands for planned changes share.
#pragma once

#include "command/CustomerRun.h"
#include "command/Invocation.h"
#include "command/Workplace.h"

namespace norvane::command
{

/// The named customers; without a name all that have lists of planned changes.
[[nodiscard]] QStringList shopsWithLists(const Workplace& workplace, const Invocation& words);

/// Whether a customer has lists that are due or were not sent. It is not opened.
[[nodiscard]] bool hasDueChanges(const ApplicationValues& values);

/// Stores the lists of one customer that are due and sends what they changed. The caller holds the lock of
/// the run. Failures are given to @p note.
/// @return "12 PLUs changed, sent to registers 1 to 3". @throws RuntimeFailure after a signal.
[[nodiscard]] QString applyDueChanges(const Workplace& workplace, const ApplicationValues& values,
                                      const FailureNote& note);

} // namespace norvane::command
