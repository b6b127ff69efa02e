// The memory allocation file of the register last spoken to, register file 52.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QString>

#include <functional>

namespace norvane::exchange
{

/// Reloads the table memoryallocation from mem.dat in the program's folder: converts it to 52.txt in the
/// working directory with @p runCommand, empties the table and stores a row for each line. A failed
/// conversion goes unnoticed; it reads an older 52.txt then.
/// @throws RuntimeFailure 53 when mem.dat or 52.txt is missing, 13 when a column of flags is no number; the
/// table is empty or holds the lines before then.
void FileMemory(const ApplicationValues& values, Boxes& boxes,
                const std::function<bool(const QString& commandLine)>& runCommand);

} // namespace norvane::exchange
