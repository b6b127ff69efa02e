// The option --separator.
#pragma once

#include "command/Invocation.h"
#include "reports/files/CsvFile.h"

#include <optional>

namespace norvane::command
{

inline constexpr OptionDefinition separatorOption{
    QLatin1StringView("separator"), QLatin1StringView("SIGN"),
    QLatin1StringView("of CSV: comma or tab with decimal points, semicolon with decimal commas")};

/// What separates the values of a file to read; nothing without the option.
/// @throws CommandError Usage for a word that is not one of the option's.
[[nodiscard]] std::optional<char> separatorToRead(const Invocation& words);

/// How to write a file. Without the option as the user's spreadsheet expects it when standard output is a
/// terminal; otherwise with commas and decimal points, so that what a script gets does not depend on the
/// machine.
/// @throws CommandError as separatorToRead().
[[nodiscard]] reports::CsvSigns signsToWrite(const Invocation& words);

} // namespace norvane::command
