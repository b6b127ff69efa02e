// The customers of the program's folder, for the commands that list all of them.
#pragma once

#include "base/ApplicationValues.h"
#include "command/Workplace.h"

#include <QStringList>

namespace norvane::command
{

/// The names of all customers as on disk, also of those whose database was lost.
[[nodiscard]] QStringList allCustomers(const Workplace& workplace);

/// The values of a customer of that list. Nothing of it is opened.
[[nodiscard]] ApplicationValues listedCustomer(const Workplace& workplace, const QString& name);

/// Why no command takes a customer of this name, or what it needs first; empty when commands do.
[[nodiscard]] QString noteOn(const Workplace& workplace, const QString& name);

} // namespace norvane::command
