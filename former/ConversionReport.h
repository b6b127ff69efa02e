// A conversion in words: the question before it, and the list of what it left out.
#pragma once

#include "former/Conversion.h"

namespace norvane::former
{

/// What was found, in lines for the user: format, tables, records, days of sales.
[[nodiscard]] QStringList findingsInWords(const Examination& found);
/// What would be lost, in lines for the user; empty when nothing would.
[[nodiscard]] QStringList lossesInWords(const Examination& found);
/// The whole question before a conversion, with the losses if there are any.
[[nodiscard]] QString conversionQuestion(const Examination& found);
/// "1 record was left out ...", and where it is named; empty if all records were stored.
[[nodiscard]] QString leftOutInWords(const Converted& done);
/// About how long the conversion takes: "about 5 seconds".
[[nodiscard]] QString durationInWords(const Examination& found);

/// Writes norvane-conversion.txt to the folder @p customerPath: tables with their records, and everything
/// that was cut, left out or not known. @return the file's name, empty when it cannot be written.
QString writeConversionReport(const QString& customerPath, const Examination& found, const Converted& done);

} // namespace norvane::former
