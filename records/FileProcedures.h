// The procedures that move register files between their text form and the customer database: File... reads
// the text into the table, Write... makes it from the table.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "records/RecordText.h"

#include <QString>

#include <functional>

namespace norvane::records
{

/// The world around a procedure.
struct ProcedureContext {
    const ApplicationValues& values;
    Boxes& boxes;
    /// Runs the converter's command line and waits for its end. Nobody looks at its outcome: a conversion
    /// that failed shows only in the text that is there, or is not, afterwards.
    std::function<bool(const QString& commandLine)> runCommand;
};

/// Whether the register file with this number has a procedure for the direction.
[[nodiscard]] bool hasImporter(int file);
[[nodiscard]] bool hasExporter(int file);

/// The File... procedure of a register file: converts NN.dat to NN.txt in the working directory, empties the
/// table and stores a record for each line, from the first to the end of the file. File 71 empties nothing
/// and changes the PLUs that it names. All in one transaction, which stays when a failure ends it: what was
/// read before is kept. A process that is killed leaves the table as it was.
/// @throws RuntimeFailure 53 when NN.txt is missing, the table is empty then; for a bad line what
/// RecordReader::read and Recordset::update throw, its text naming file, line and column.
void importRegisterFile(int file, const ProcedureContext& context);

/// What a Write... procedure has made.
enum class Exported {
    Nothing,
    File,
};

/// The Write... procedure: makes NN.txt in the program's folder from all records of the table in the order of
/// the file's index, then converts it to NN.dat.
/// @return Nothing when the table is empty and the file is one that is passed over then; no file is touched.
/// @throws RuntimeFailure 3021 when the table is empty and the file is not passed over, with NN.txt emptied;
/// 75 when NN.txt cannot be opened, 61 when the disk is full; what GetModelCode() throws, and for the
/// function keys, file 2, what GetFirmwareGeneration() throws.
Exported exportRegisterFile(int file, const ProcedureContext& context);

} // namespace norvane::records
