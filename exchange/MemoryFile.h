// The memory allocation file of the register last spoken to, register file 52.
#pragma once

#include "records/FileProcedures.h"

namespace norvane::exchange
{

/// Reloads the table memoryallocation from mem.dat in the program's folder: converts it to 52.txt in the
/// working directory, empties the table and stores a row for each line. Conversion and failures are dealt
/// with as importRegisterFile() does.
/// @return false when the user does not want the text that a failed conversion left.
/// @throws RuntimeFailure 53 when mem.dat or 52.txt is missing, 13 when a column of flags is no number.
bool FileMemory(const records::ProcedureContext& context);

} // namespace norvane::exchange
