// Copies of the binary register files between the program's folder and the customer's.
#pragma once

#include <QString>

namespace norvane::exchange
{

/// Deletes @p name in the folder @p target, then copies it there from the folder @p source, where it stays. A
/// missing source is no failure. Names are found without regard to case.
/// @throws RuntimeFailure 75 when a file cannot be deleted or written, 61 when the disk is full.
void MoveDataFile(const QString& source, const QString& target, const QString& name);

/// Ahead of a MoveDataFile() into the customer's folder @p target: keeps the copy that is about to be
/// replaced as name.former beside it. A copy that is empty, or the same as what comes, leaves the former one
/// alone. @return true when what comes is empty and the copy is not.
/// @throws as MoveDataFile
bool keepFormerCopy(const QString& source, const QString& target, const QString& name);

} // namespace norvane::exchange
