// A field of the former engine as text, with every digit that is stored.
#pragma once

#include "former/reader/Library.h"
#include "former/ReaderMarks.h"

#include <string>
#include <string_view>

namespace norvane::former
{

/// A field as its table defines it.
struct FieldShape {
    std::string name;
    int type = 0;  ///< MDB_TEXT and so on
    int scale = 0; ///< places of a numeric
};

/// The word for a type: "yesno", "whole", "number", "decimal", "date", "text", or "other" for pictures and
/// the like, whose contents are not read.
[[nodiscard]] std::string_view typeWord(int type);

/// Sets @p text to the value of @p field, which is in the file's page buffer: a yes/no as "1" or "0", whole
/// numbers and currency with all digits, binary numbers as the shortest text that reads back as the same
/// number, dates as "2026-11-24T18:30:00", texts in UTF-8. Tab, line ends and backslash become "\t", "\n",
/// "\r" and "\\".
void setFieldText(std::string& text, MdbHandle& file, const MdbField& field, const FieldShape& shape);

} // namespace norvane::former
