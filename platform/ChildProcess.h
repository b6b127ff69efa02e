// The external tools run as child processes, started from one command-line text.
#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace norvane
{

/// Splits a command line at blanks; doubled blanks do not make empty words, a quoted word may hold blanks.
[[nodiscard]] QStringList commandWords(const QString& commandLine);

/// Looks for the program @p name in @p programFolder, then in the working directory, then on the search path.
/// Case does not matter, and the platform's suffix is added.
/// @return empty text when there is none.
[[nodiscard]] QString findProgram(const QString& name, const QString& programFolder);

/// How a child came to its end. Crashed: a signal, a fault of its own or the user ended it, whatever it had
/// written.
enum class ChildResult { Ended, Crashed, NotFound, NotStarted };

/// Looks on while a child runs.
struct ChildWatch {
    /// Called every few hundredths of a second with the time since the start. @return false to end the child,
    /// which counts as a crash. Empty: nothing happens before the child ends by itself.
    std::function<bool(std::chrono::milliseconds running)> goOn;
};

/// Starts @p commandLine in the working directory with this process's environment and waits for its end
/// without a time limit. The exit code is not told: the tools report through their files. On Linux the child
/// is killed when this program dies.
ChildResult runAndWait(const QString& commandLine, const QString& programFolder,
                       const ChildWatch& watch = {});

} // namespace norvane
