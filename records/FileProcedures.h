// The procedures that move register files between their text form and the customer database: File... reads
// the text into the table, Write... makes it from the table.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "records/RecordLines.h"
#include "store/engine/Recordset.h"

#include <QString>

#include <functional>
#include <string_view>

namespace norvane::records
{

/// One run of the converter.
struct Conversion {
    QString commandLine;
    QString target;      ///< file of the working directory that it has to write, "67.txt"
    QString consequence; ///< for the user: what a target that it did not write would do
};

/// What a procedure needs from outside.
struct ProcedureContext {
    const ApplicationValues& values;
    Boxes& boxes;
    /// Runs the converter and waits for its end. @return whether the target may be used. A conversion that
    /// failed leaves the target of an earlier one, so the user is asked then.
    std::function<bool(const Conversion&)> convert;
    /// Stores what was read from a register file, completely or partly, by calling @p commit. Notes about the
    /// table are written around that call: an import that is undone or killed never calls it.
    std::function<void(int file, const std::function<void()>& commit)> store = [](int, const auto& commit) {
        commit();
    };
    /// Where NN.txt is read; empty for the working directory. The converter has to work there too.
    QString folder{};
    /// Gets the recordset on each record that a File... procedure has read, as it is stored. A failure puts
    /// the table back afterwards or keeps it as it then is.
    std::function<void(const store::Recordset& record)> recordRead = [](const store::Recordset&) {
    };
    /// Gets each line that a Write... procedure puts into NN.txt, closed by CR LF.
    std::function<void(std::string_view line)> lineWritten = [](std::string_view) {
    };
};

/// Whether the register file with this number has a procedure for the direction.
[[nodiscard]] bool hasImporter(int file);
[[nodiscard]] bool hasExporter(int file);

/// What a File... procedure has done. Unless it stored the file, the table is untouched.
enum class Imported {
    File,
    Refused, ///< the user rejected the text left by a failed conversion
    TooFew,  ///< the user keeps the table, which has more records than the text
};

/// The File... procedure of a register file: converts NN.dat to NN.txt in the working directory, empties the
/// table and stores a record for each line, from the first to the end of the file. File 71 empties nothing
/// and changes the PLUs that it names. All of it is one transaction: after a failure the user is asked
/// whether to keep what was read, see importOrPutBack().
/// Asks before a table of 20 records or more is replaced by a text with none, with fewer than half of them,
/// or with a last line that is cut off.
/// @throws RuntimeFailure with Failure::FileNotFound when NN.txt is missing: nothing was read then; for a bad
/// line what RecordReader::read and Recordset::update throw, its text naming file, line and column.
Imported importRegisterFile(int file, const ProcedureContext& context);

/// What a Write... procedure has made.
enum class Exported {
    Nothing,
    File,
    Refused, ///< the user rejected a text with a comma, or the file left by a failed conversion
};

/// The Write... procedure: makes NN.txt in the program's folder from all records of the table in the order of
/// the file's index, then converts it to NN.dat. A comma in a text would shift the columns after it, so the
/// user is then asked.
/// @return Nothing if the table is empty and the file is skipped in that case; no file is touched.
/// @throws RuntimeFailure with Failure::NoCurrentRecord if the table is empty and the file is not skipped;
/// NN.txt is then empty; Failure::PathOrFileAccess if NN.txt cannot be opened, Failure::DiskFull if the disk
/// is full; and as GetModelCode() and, for the function keys (file 2), GetFirmwareGeneration() throw.
Exported exportRegisterFile(int file, const ProcedureContext& context);

} // namespace norvane::records
