// What the commands for planned changes share.
#pragma once

#include "command/Invocation.h"
#include "command/Workplace.h"

namespace norvane::command
{

/// The named customers; without a name all that have lists of planned changes.
[[nodiscard]] QStringList shopsWithLists(const Workplace& workplace, const Invocation& words);

} // namespace norvane::command
