// The lines of a register file, made from its table.
#pragma once

#include "records/RegisterFiles.h"
#include "records/RegisterTraits.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <functional>
#include <string>
#include <string_view>

namespace norvane::records
{

/// Takes a line in the register's character set, closed by CR LF. The recordset is on the record that it was
/// made from.
using TakeLine = std::function<void(std::string_view line, const store::Recordset& record)>;

/// Makes a line from each record of the table, in the order of the file's index.
/// @param alsoRead a field that is read with those that lines are made from; all others show null.
/// @return the first text with a comma, as RecordWriter::textWithComma().
/// @throws RuntimeFailure with Failure::NoCurrentRecord if the table is empty, and what RecordWriter throws.
std::string forEachLine(const RegisterFile& file, store::Database& database, const RegisterTraits& traits,
                        const TakeLine& take, const QString& alsoRead = {});

} // namespace norvane::records
