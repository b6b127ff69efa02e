// The stamp of a collected PLU report, which defines the layout of its records.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane::sales
{

/// The digits of the stamp byte of poll194.dll in the program's folder; creates the file if it is missing.
/// @throws RuntimeFailure with Failure::PathOrFileAccess if the file cannot be opened.
QString ReadPoll194Stamp(const ApplicationValues& values);

/// For each byte its high and its low half as decimal numbers: 0x1F gives "115".
[[nodiscard]] QString NibbleDigits(const QByteArray& bytes);

} // namespace norvane::sales
