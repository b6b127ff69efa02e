// The customer's setup.ini: which register model, how it is reached, how many registers there are. And whose
// data a database holds.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane
{

/// Path of the customer's settings file.
[[nodiscard]] QString settingsPath(const ApplicationValues& values);

/// One key of section SetupOption, read afresh from the file; see ProfileFile for absent and empty values.
[[nodiscard]] QString readSetting(const ApplicationValues& values, const QString& key,
                                  const QString& defaultText);

/// The register model index ECRModel, default "0", converted to a number.
/// @throws RuntimeFailure 13 when the value is empty or no number.
[[nodiscard]] double ecrModel(const ApplicationValues& values);

/// Characters of a message line: the printers of the models 0, 1 and 2 are wider than those of all others.
/// @throws 13 as ecrModel() does.
[[nodiscard]] int messageWidth(const ApplicationValues& values);

/// The customer whose data stands in @p database: after a change of customer the database in use is still the
/// former customer's. @return customerName, or the name of the database's folder where that is another one.
[[nodiscard]] QString customerOf(const ApplicationValues& values, const QString& database);

} // namespace norvane
