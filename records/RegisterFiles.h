// The catalogue of the register files that have a text form: the table of each file, the procedures that move
// it and how.
#pragma once

#include "records/RecordLayout.h"

#include <span>

namespace norvane::records
{

/// What an upload does with the table.
enum class Upload {
    ReplacesTable,  ///< all old records are deleted, each line becomes a record
    UpdatesRecords, ///< each line changes the record whose key is its first column; a line without one is
                    ///< dropped
};

/// What a download does when the table has no records.
enum class EmptyTable {
    Fails, ///< with Failure::NoCurrentRecord
    Skips, ///< no file is touched and nothing is converted
};

/// One register file.
struct RegisterFile {
    int number;
    const char* table;
    const char* exporter;        ///< name of the procedure that writes the text, nullptr for none
    const char* index;           ///< order in which records are written and keys are sought, nullptr for none
    const char* importOperation; ///< what the converter is asked for, binary to text
    const char* exportOperation; ///< text to binary
    EmptyTable emptyTable;
    Upload upload;
    const RecordLayout& (*layout)();
    /// Text to binary for the model Dorvik, nullptr where it is like the other models.
    const char* dorvikOperation = nullptr;
};

/// All files in the order of their numbers.
[[nodiscard]] std::span<const RegisterFile> registerFiles();

/// The file with this number; nullptr when it has no text form.
[[nodiscard]] const RegisterFile* registerFile(int number);

} // namespace norvane::records
