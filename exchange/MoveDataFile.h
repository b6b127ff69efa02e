// Copies of the binary register files between the program's folder and the customer's.
#pragma once

#include <QString>

namespace norvane::exchange
{

/// Deletes @p name in the folder @p target, then copies it there from the folder @p source, where it stays. A
/// missing source is no failure. Names are found without regard to case.
/// @throws RuntimeFailure 75 when a file cannot be deleted or written, 61 when the disk is full.
void MoveDataFile(const QString& source, const QString& target, const QString& name);

} // namespace norvane::exchange
