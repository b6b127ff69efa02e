// Customers are folders in the program's folder: lists them, takes one, makes a new one.
#pragma once

#include "base/ApplicationValues.h"

#include <QStringList>

namespace norvane::customers
{

/// All folders in @p appPath, in upper case and sorted by name, with or without a database in them.
[[nodiscard]] QStringList customerFolders(const QString& appPath);

/// The folders in @p appPath that @p name may mean: the one that is spelled so, or all that differ in case
/// only. None for a blank name and for one that leads out of the program's folder. Opens nothing.
[[nodiscard]] QStringList foldersNamed(const QString& appPath, const QString& name);

enum class CustomerChoice {
    InvalidEntry, ///< blank name
    Created,      ///< folder with copies of the template database and settings, new or completed
    Taken,        ///< existing folder; its database was upgraded and completed
    NewSettings,  ///< the same, but its settings were missing and are those of the template now
    Damaged,      ///< existing folder; nothing was written to its database
    Failed,       ///< refused name or failed step; a folder that was made stays
};

/// Takes the customer named @p typed, or makes it when there is no such folder or its making was cut off: a
/// folder without database or settings that holds nothing but what a customer has gets what it lacks from the
/// templates. A folder that holds other things is none of ours and is taken as it is. Always sets
/// customerName to the text as typed; sets customerPath to the folder as it is spelled on disk, once there is
/// one. A backslash or slash leads into a folder that exists. "..", a drive or an absolute path is Failed: no
/// name leads out of the program's folder.
[[nodiscard]] CustomerChoice chooseCustomer(ApplicationValues& values, const QString& typed);

/// What to tell the user about a customer that is Damaged: which file, what is wrong and the way out.
[[nodiscard]] QString damageReport(const QString& customerPath);

/// What to tell the user about a customer that has NewSettings.
[[nodiscard]] QString newSettingsReport();

/// The database of the customer whose folder is @p customerPath.
[[nodiscard]] QString customerDatabase(const QString& customerPath);

} // namespace norvane::customers
