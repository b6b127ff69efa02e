// The catalogue of the customer database: every table, its fields in the order of the register's record, and
// the indexes that the system asks for.
#pragma once

#include "store/Definitions.h"

namespace norvane::store
{

/// All tables of the current layout. The template database, the upgrade steps and the screen checks are made
/// from it.
[[nodiscard]] const QVector<TableDefinition>& catalogue();

/// The catalogue's definition of a table, matched without regard to case; nullptr when there is none.
[[nodiscard]] const TableDefinition* catalogueTable(const QString& name);

} // namespace norvane::store
