// Upgrades older customer databases to the current layout.
#pragma once

#include <QString>

namespace norvane::store
{

/// Runs the upgrade steps in their order on the database at @p path; the first failure of any kind (a field
/// that exists already is one) ends the routine silently, with nothing undone.
void UpgradeDatabase(const QString& path);

/// Creates the structures for quick queries that an earlier build did not create, and widens fields that were
/// too narrow for a register's values to the current layout. Adds no table and no field, as the upgrade
/// requires. Every failure is ignored: the customer is used without it, and the next call tries again.
void completeDatabase(const QString& path);

/// Adds the field unitdescription to productmix; every failure is ignored.
void UpgradeUnitDescription(const QString& path);

} // namespace norvane::store
