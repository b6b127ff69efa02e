// Where a command works and for whom.
#pragma once

#include "base/ApplicationValues.h"
#include "command/ExitCode.h"
#include "command/Listing.h"
#include "platform/Boxes.h"

#include <QString>

#include <functional>

namespace norvane::customers
{
class RunLock;
}

namespace norvane::command
{

/// What the user writes in place of a file's name for standard output.
inline constexpr QLatin1StringView standardOutput("-");

struct Workplace {
    QString appPath;   ///< the program's folder, which is the working directory
    QString startedIn; ///< where the user was: files named on the command line are looked for there
    bool asJson = false;
    Boxes& boxes;
    /// Receives what the tools say and what a failed step means; empty for standard error.
    std::function<void(const QString& text)> tell = {};

    /// The path of a file that the user named.
    [[nodiscard]] QString userFile(const QString& name) const;
    /// Has @p write write the file that the user named; "-" is standard output.
    /// @throws CommandError Unwritable, and what @p write throws.
    void writeUserFile(const QString& name, const std::function<void(const QString& path)>& write) const;
    /// Passes a text on to tell().
    void message(const QString& text) const;
    /// Writes a listing to standard output.
    void show(const Listing& listing) const;
    void show(const QStringList& headings, const Rows& rows) const;
};

/// The values of an existing customer, found without regard to case if the name is unique. Its database is
/// not opened and may be damaged or missing.
/// @throws CommandError NoCustomer; NoSuchName if the name matches several.
[[nodiscard]] ApplicationValues findCustomer(const Workplace& workplace, const QString& name);

/// The same; its database is upgraded to the current layout, as when chosen in the window.
/// @throws CommandError also Unsound if its database is damaged or is not a database.
[[nodiscard]] ApplicationValues takeCustomer(const Workplace& workplace, const QString& name);

/// Also begins to catch signals: the run must call stopIfSignalled().
/// @throws CommandError Busy when another run works with the customer, Unwritable when the lock cannot be
/// written.
[[nodiscard]] std::unique_ptr<customers::RunLock> lockFor(const Workplace& workplace,
                                                          const ApplicationValues& values);

/// Why the lock of one of @p folders was not taken: Busy, or Unwritable if a new file cannot be made in it.
[[nodiscard]] ExitCode codeOfRefusedLock(const QStringList& folders);

} // namespace norvane::command
