// Brings older customer databases to the current layout.
#pragma once

#include <QString>

namespace norvane::store
{

/// Runs the upgrade steps in their order on the database at @p path; the first failure of any kind (a field
/// that exists already is one) ends the routine silently, with nothing undone.
void UpgradeDatabase(const QString& path);

/// Makes what the store keeps beside the tables for quick queries and an earlier build of the program did not
/// make yet, and gives fields that were too narrow for a register's answer the room of the current layout.
/// Adds no table and no field, so the upgrade's rule stands. Every failure is passed over: the customer is
/// used without it, and the next call tries again.
void completeDatabase(const QString& path);

/// Adds the field unitdescription to productmix; every failure is passed over.
void UpgradeUnitDescription(const QString& path);

} // namespace norvane::store
