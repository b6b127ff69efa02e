// What one run leaves for the next about a customer's registers: small notes in the customer's folder.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane::link
{

/// A note of the customer, in exchange.ini. @return empty text when there is none.
[[nodiscard]] QString readNote(const ApplicationValues& values, QLatin1StringView section,
                               QLatin1StringView key);
/// The same for a note of any length.
[[nodiscard]] QString readLongNote(const ApplicationValues& values, QLatin1StringView section,
                                   QLatin1StringView key);
/// Replaces a note. A folder that cannot be written to keeps the former one: the run matters more.
void writeNote(const ApplicationValues& values, QLatin1StringView section, QLatin1StringView key,
               const QString& value);

/// How many PLUs the registers hold, from the last exchange of the PLU file; 0 before the first.
[[nodiscard]] qint64 pluCountOfRegisters(const ApplicationValues& values);
void notePluCountOfRegisters(const ApplicationValues& values, qint64 count);

} // namespace norvane::link
