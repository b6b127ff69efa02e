// The text of a register file, stored in its table.
#pragma once

#include "records/FileProcedures.h"
#include "records/RegisterFiles.h"
#include "records/RegisterTraits.h"
#include "store/engine/Database.h"

#include <QString>

namespace norvane::records
{

/// The name of the file's text, "67.txt".
[[nodiscard]] QString textName(const RegisterFile& file);

/// The register of the customer whose file is moved. @p context must outlive it.
[[nodiscard]] RegisterTraits traitsOf(const ProcedureContext& context);

/// Records of a table that is replaced.
struct ImportCounts {
    qint64 former = 0;
    qint64 read = 0;
};

/// Stores each line of the file's text in the folder of @p context, in the table that the file replaces or
/// updates. @p counts is right after a failure too.
/// @throws RuntimeFailure with Failure::FileNotFound when the text is missing: a table to be replaced is
/// empty then; for a bad line what RecordReader::read and Recordset::update throw, its text naming file, line
/// and column.
void importText(const RegisterFile& file, store::Database& database, const ProcedureContext& context,
                ImportCounts& counts);

/// The question after a failed import, for importOrPutBack().
[[nodiscard]] QString keepQuestion(const RegisterFile& file, const ImportCounts& counts);

} // namespace norvane::records
