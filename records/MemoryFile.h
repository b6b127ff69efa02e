// The memory allocation file of the register last spoken to, register file 52.
#pragma once

#include "records/FileProcedures.h"

namespace norvane::records
{

/// Reloads the table memoryallocation from mem.dat in the program's folder: converts it to 52.txt in the
/// working directory, empties the table and stores a row for each line. Conversion and failures are handled
/// as in importRegisterFile(), but a shorter text replaces a longer table without a question.
/// @return false if the user rejected the text left by a failed conversion.
/// @throws RuntimeFailure with Failure::FileNotFound when mem.dat or 52.txt is missing, Failure::TypeMismatch
/// if a column of flags is not a number.
bool FileMemory(const ProcedureContext& context);

} // namespace norvane::records
