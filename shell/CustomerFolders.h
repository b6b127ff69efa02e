// Customers are folders beside the program: which there are, how one is taken and how a new one is made.
#pragma once

#include "base/ApplicationValues.h"

#include <QStringList>

namespace norvane::shell
{

/// The folders under @p appPath in upper case, whether or not they hold a database. Their order is that of
/// the file systems the program comes from, which list by name.
[[nodiscard]] QStringList customerFolders(const QString& appPath);

enum class CustomerChoice {
    InvalidEntry, ///< blank name
    Created,      ///< new folder with copies of the template database and settings
    Taken,        ///< existing folder; its database was brought up to date
    Failed,       ///< refused name, or a step that failed; a folder already made stays
};

/// Takes the customer named @p typed, or makes it when there is no such folder. customerName holds the text
/// as typed whatever comes of it; customerPath changes with a customer made or taken, and holds the folder's
/// real name on disk. A backslash or slash leads into a folder that exists. A name never leads out of the
/// program's folder: "..", a drive or an absolute path is Failed.
[[nodiscard]] CustomerChoice chooseCustomer(ApplicationValues& values, const QString& typed);

/// The database of the customer whose folder is @p customerPath.
[[nodiscard]] QString customerDatabase(const QString& customerPath);

} // namespace norvane::shell
