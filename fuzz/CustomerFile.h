// A customer's database for the fuzz targets, made once for a process.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/SilentBoxes.h"
#include "store/engine/Database.h"

#include <functional>

namespace norvane::fuzz
{

/// The values of a customer in scratchFolder(), whose folder is the program's folder too. The database holds
/// all tables of the catalogue, empty.
[[nodiscard]] const ApplicationValues& customer();

/// The same with a database of one table: a procedure that opens it need not read the definitions of all
/// others.
[[nodiscard]] const ApplicationValues& customerWith(const QString& table);

/// The database of customer(), opened once.
[[nodiscard]] store::Database& customerDatabase();

/// Runs @p work and undoes its changes to customerDatabase(): an input must not see the changes of another.
/// The recordsets that @p work opens must be destroyed at its end.
void undone(const std::function<void()>& work);

/// The setting for the kind of register, 0 to 3.
void setModel(int model);

} // namespace norvane::fuzz
