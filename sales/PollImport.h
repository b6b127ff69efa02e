// From the text of a collected report to the rows of a sales table.
#pragma once

#include "base/ApplicationValues.h"

#include <QDate>

#include <span>

namespace norvane::store
{
class Database;
}

namespace norvane::sales
{

/// The source of a row's ID.
enum class Numbering {
    ByText,  ///< the record's first value is the item's code
    Running, ///< the place of the record in the file, from 1
    ByBlock, ///< the place of the record in the clerk's block; the number of the block is CLERKID
};

/// Which values a record has.
enum class RecordForm {
    Fixed,   ///< one for each field
    Stamped, ///< as many as the stamp of the PLU report says
};

/// One of the five readers.
struct PollFile {
    const char* name; ///< text file in the program's folder, as "poll190.txt"
    const char* table;
    std::span<const char* const> fields; ///< what the values of a record are stored in, in their order
    Numbering numbering;
    RecordForm form;
    bool keepsZeros; ///< whether a record of nothing but zeros becomes a row
    int shift;       ///< places by which the point of a value moves to the right
    bool mayBeEmpty; ///< whether a register can be set up without any of its items
};

/// What a report held.
struct ImportedReport {
    qint64 records = 0;
    bool hasSales = false; ///< a record with a value other than 0
    qint64 rows = 0;       ///< that were appended
};

/// The five readers in the order in which a collection runs them.
[[nodiscard]] std::span<const PollFile> pollFiles();

/// Appends a row to the reader's table for each record of its file, dated @p collected: the file does not say
/// when its sales were made. On a failure, the rows before it have been added; a transaction of the caller
/// decides whether to keep them. On success, earlier months of the year without totals get them, see
/// store/sales/SalesTotals.h.
/// @throws RuntimeFailure with Failure::FileNotFound if the file is missing; naming file and record, with
/// Failure::InputPastEnd if the last record is short, Failure::TypeMismatch for a value that is empty or not
/// a number, Failure::Overflow for one that is too large, Failure::TextTooLong for an item's code that is too
/// long, Failure::RequiredFieldIsNull at the first record if the PLU report's stamp fits no layout.
ImportedReport importPollFile(const PollFile& file, store::Database& database,
                              const ApplicationValues& values, QDate collected);

} // namespace norvane::sales
