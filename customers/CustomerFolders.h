// Customers are folders in the program's folder: lists them, takes one, makes a new one.
#pragma once

#include "base/ApplicationValues.h"

#include <QStringList>

namespace norvane::customers
{

/// The beginning of a folder's name while a customer is being made in it. Such a folder is not a customer:
/// it gets the customer's name once it is complete.
inline constexpr QLatin1StringView unfinishedPrefix{"norvane-unfinished."};

/// All folders in @p appPath as spelled on disk and sorted by name, with or without a database in them.
[[nodiscard]] QStringList customerNames(const QString& appPath);

/// The same in upper case.
[[nodiscard]] QStringList customerFolders(const QString& appPath);

/// The folder that a customer named @p typed has or would have. Nothing is made.
/// @return empty text for a name that chooseCustomer() does not take.
[[nodiscard]] QString folderFor(const QString& appPath, const QString& typed);

/// The folders in @p appPath that @p name may mean: the exact match, or all that differ only in case. None
/// for a blank name and for one that leads out of the program's folder. Opens nothing.
[[nodiscard]] QStringList foldersNamed(const QString& appPath, const QString& name);

/// Result of choosing a customer.
enum class CustomerChoice {
    InvalidEntry, ///< blank name
    Created,      ///< folder with copies of the template database and settings, new or completed
    Taken,        ///< existing folder; its database was upgraded and completed
    NewSettings,  ///< the same, but its settings were missing and are those of the template now
    Damaged,      ///< existing folder; nothing was written to its database
    Former,       ///< the same: its database is one of the former program (FormerCustomer.h)
    Failed,       ///< refused name or failed step; a created folder is kept
};

/// Opens the customer named @p typed, or creates it if there is no such folder or its creation was
/// interrupted: a folder without database or settings that contains only a customer's files gets the missing
/// ones from the templates. A folder with other files is not ours and is used unchanged. Always sets
/// customerName to the text as typed; sets customerPath to the folder as spelled on disk, once it exists. A
/// backslash or slash leads into an existing folder. "..", a drive or an absolute path is Failed: no name
/// leads out of the program's folder.
[[nodiscard]] CustomerChoice chooseCustomer(ApplicationValues& values, const QString& typed);

/// The message about a customer that is Damaged: which file, what is wrong and what to do.
[[nodiscard]] QString damageReport(const QString& customerPath);

/// The message about a customer that has NewSettings.
[[nodiscard]] QString newSettingsReport();

/// The database of the customer whose folder is @p customerPath.
[[nodiscard]] QString customerDatabase(const QString& customerPath);

} // namespace norvane::customers
