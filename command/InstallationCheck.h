// Checks the screens and layouts of a folder against the table catalogue.
#pragma once

#include <QString>
#include <QStringList>

namespace norvane::command
{

struct InstallationCheck {
    int files = 0; ///< screens and layouts that were read
    QStringList mistakes;
};

/// Reads every layout and every screen of @p folder and runs what they ask of the database on an empty one,
/// so that a misspelt name is found before a user opens the screen or the report. Changes nothing in the
/// folder.
[[nodiscard]] InstallationCheck checkInstallation(const QString& folder);

} // namespace norvane::command
