// The catalogue of the customer database: every table with its indexes and its fields in the register's
// order.
#pragma once

#include "store/engine/Definitions.h"

namespace norvane::store
{

/// All tables of the current layout. Template database, upgrade steps and screen checks are made from it.
[[nodiscard]] const QVector<TableDefinition>& catalogue();

/// The catalogue's definition of a table, matched without regard to case; nullptr if there is none.
[[nodiscard]] const TableDefinition* catalogueTable(const QString& name);

} // namespace norvane::store
