// What a spreadsheet of a table has in its columns, and what may be imported from one.
#pragma once

#include "platform/Decimal.h"
#include "register/PluNumber.h"
#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace norvane::articles
{

/// Kinds of values in a spreadsheet.
enum class CellContent {
    RecordNumber, ///< of the record itself
    Text,
    Digits, ///< a number that is kept digit for digit
    Hexadecimal,
    YesNo,
    Key, ///< the number of a record in another table
    Number,
    Day
};

/// A column of a spreadsheet.
struct SheetColumn {
    QString heading; ///< in the file
    QString field;   ///< of the table
    CellContent content = CellContent::Text;
    QString word = QStringLiteral("number"); ///< what messages call a value, of a key also the other record
    QString table{};                         ///< of a key: the table that must have it
    QString tableKey{};
    bool mayBeNone = false;     ///< of a key: 0 means that there is none; of digits: they may be empty
    qsizetype longest = 0;      ///< characters or digits of a register
    bool isFilled = false;      ///< digits, or the record's number, are stored with zeros on the left
    int decimals = 0;           ///< places after the point
    Decimal most{999999999, 0}; ///< a register takes numbers from 0 to this
    bool isOnScreen = true;     ///< whether a new record of the screen sets it
};

/// The spreadsheet of a table.
struct TableSheet {
    QString table;
    QString name;  ///< what messages and the log call a record
    QString index; ///< in the order of the record numbers; empty for a table that cannot be imported
    std::vector<SheetColumn> columns; ///< in the order of an export. The first is the record's number
    bool takesNew = false;            ///< whether an import adds records
};

/// Number, description, group, status and prices of the PLUs.
[[nodiscard]] TableSheet pluSheet();
/// All fields of @p table, a table of the catalogue; of PLUs the columns of pluSheet() first. A column has
/// the limits of the register's record. Sales and the memory allocation are not imported.
/// @param messageWidth characters of a message line on the customer's registers
[[nodiscard]] TableSheet tableSheet(const store::TableDefinition& table, int messageWidth);

/// The query of all records in the order of their numbers, whose fields are the columns. A PLU has fifty
/// fields; reading all of them for each would take as long as storing it.
[[nodiscard]] QString recordsOf(const TableSheet& sheet);

/// The number of a record as its table holds it.
[[nodiscard]] std::string storedNumber(const SheetColumn& column, PluNumber number);
/// What a new record of the screen holds in a column; nothing in one that is not on it.
[[nodiscard]] store::Value newCellValue(const SheetColumn& column);
/// What an export shows of a stored text; a register fills it with blanks.
[[nodiscard]] QString exportedText(const store::Value& stored);
/// Nothing for a number that was never set.
[[nodiscard]] std::optional<Decimal> exportedNumber(const store::Value& stored);

} // namespace norvane::articles
