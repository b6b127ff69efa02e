// What a register's record looks like: the columns of its text form, from which the packed form follows.
#pragma once

#include "tools/bank/Model.h"

#include <QByteArray>
#include <QList>

#include <vector>

namespace bank
{

enum class Form : quint8 {
    Text,    ///< T: characters of the register's code page, padded with blanks
    Digits,  ///< N: decimal digits, two to a byte
    Options, ///< D: two option digits 0 to 7
    Code,    ///< C: "00", "20" or "40"
    Bare,    ///< B: one of a few unpadded numbers
    Zeros,   ///< K: spare, always zeros and not kept in the register
};

struct Column {
    Form form = Form::Text;
    int width = 0;              ///< characters in the text form; of Bare the longest
    QList<QByteArray> values{}; ///< of Bare and Code: the allowed values

    /// Bytes in the packed record.
    [[nodiscard]] int packedLength() const;
};

using Columns = std::vector<Column>;

/// Layout codes are file numbers; the memory file of the newer generation has the code of its conversion.
constexpr int memoryFile = 52;
constexpr int newerMemoryCode = 352;
constexpr int generationOf(int memoryCode)
{
    return memoryCode == newerMemoryCode ? 3 : 2;
}

/// All layout codes in ascending order.
[[nodiscard]] const std::vector<int>& layoutCodes();

/// @return the columns of the file with @p layoutCode; empty if it has no text form.
[[nodiscard]] Columns columnsOf(int layoutCode, Model model);

[[nodiscard]] int packedLength(const Columns& columns);

/// Files that are transferred as bytes and have no text form.
[[nodiscard]] const std::vector<int>& opaqueFiles();

/// How many records a register of @p model has room for in @p file. Where the memory file says it, @p memory
/// holds that file's columns (index 0 is the first). 0 means as many as come.
[[nodiscard]] int capacityOf(int file, Model model, const QList<QByteArray>& memory);

} // namespace bank
