// Running the external tools, and the result that the transfer tool leaves.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/ChildProcess.h"

#include <QString>

namespace norvane::link
{

/// Processes pending events once, then runs a tool and waits for it while @p watch observes it.
/// @param folder in which the tool works; empty for the working directory
/// @return how it ended.
ChildResult RunAndWait(const ApplicationValues& values, const QString& commandLine,
                       const ChildWatch& watch = {}, const QString& folder = {});

/// The last value of status.out in the working directory; empty text if it holds none.
/// @throws RuntimeFailure with Failure::FileNotFound if the file cannot be opened.
[[nodiscard]] QString ReadStatusOut();
/// The same in @p folder, where a tool has worked.
[[nodiscard]] QString readStatusOutIn(const QString& folder);

} // namespace norvane::link
