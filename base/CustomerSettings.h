// The customer's setup.ini: which register model, how it is reached, how many registers there are. Also the
// name of the customer whose data a database holds, and of the file for notes of the runs.
#pragma once

#include "base/ApplicationValues.h"
#include "register/RegisterModel.h"

#include <QString>

namespace norvane
{

/// Path of the customer's settings file.
[[nodiscard]] QString settingsPath(const ApplicationValues& values);

/// Reads one key of section SetupOption from the file on each call; see ProfileFile for absent and empty
/// values.
[[nodiscard]] QString readSetting(const ApplicationValues& values, const QString& key,
                                  const QString& defaultText);

/// The customer's register model, which the number ECRModel names; "0" if it is not set.
/// @throws RuntimeFailure with Failure::TypeMismatch if the value is not a number; the text names file and
/// key.
[[nodiscard]] const RegisterModel& registerModel(const ApplicationValues& values);

/// The same by the characters of ECRModel, for the exchange and the options of function keys. Any value is
/// accepted.
[[nodiscard]] const RegisterModel& registerModelByText(const ApplicationValues& values);

/// The model word that the converter takes: "Velmaro", "Velmarn" or "Dorvik". @throws RuntimeFailure with
/// Failure::TypeMismatch as registerModel() does.
[[nodiscard]] QString GetModelCode(const ApplicationValues& values);

/// The name of the customer whose data @p database holds. After a change of customer the database in use is
/// still the previous customer's. @return customerName, or else the name of the folder that @p database is
/// in.
[[nodiscard]] QString customerOf(const ApplicationValues& values, const QString& database);

/// The file in the customer's folder in which exchange and collection leave notes for their next run.
[[nodiscard]] QString runNotesName();

} // namespace norvane
