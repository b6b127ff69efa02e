// The customer's setup.ini: which register model, how it is reached, how many registers there are. Also the
// name of the customer whose data a database holds, and of the file for notes of the runs.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane
{

/// Path of the customer's settings file.
[[nodiscard]] QString settingsPath(const ApplicationValues& values);

/// Reads one key of section SetupOption from the file on each call; see ProfileFile for absent and empty
/// values.
[[nodiscard]] QString readSetting(const ApplicationValues& values, const QString& key,
                                  const QString& defaultText);

/// The register model index ECRModel, default "0", converted to a number.
/// @throws RuntimeFailure with Failure::TypeMismatch if the value is empty or not a number; the text names
/// file and key.
[[nodiscard]] double ecrModel(const ApplicationValues& values);

/// Characters of a message line: the printers of the models 0, 1 and 2 are wider than those of all others.
/// @throws RuntimeFailure with Failure::TypeMismatch as ecrModel() does.
[[nodiscard]] int messageWidth(const ApplicationValues& values);

/// The name of the customer whose data @p database holds. After a change of customer the database in use is
/// still the previous customer's. @return customerName, or else the name of the folder that @p database is
/// in.
[[nodiscard]] QString customerOf(const ApplicationValues& values, const QString& database);

/// The file in the customer's folder in which exchange and collection leave notes for their next run.
[[nodiscard]] QString runNotesName();

} // namespace norvane
