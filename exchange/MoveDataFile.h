// Copies of the binary register files between the program's folder and the customer's.
#pragma once

#include <QString>

namespace norvane::exchange
{

/// Deletes @p name in the folder @p target, then copies it there from the folder @p source, where it remains.
/// A missing source is not a failure. Names are matched without regard to case.
/// @throws RuntimeFailure with Failure::PathOrFileAccess when a file cannot be deleted or written,
/// Failure::DiskFull when the disk is full.
void MoveDataFile(const QString& source, const QString& target, const QString& name);

/// To be called before MoveDataFile() replaces the copy in the customer's folder @p target: keeps that copy
/// beside it as name.former. A copy that is empty, or the same as the new file, is not kept, and name.former
/// is unchanged. @return true if the new file is empty and the copy is not.
/// @throws as MoveDataFile
bool keepFormerCopy(const QString& source, const QString& target, const QString& name);

} // namespace norvane::exchange
