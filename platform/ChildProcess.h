// The external tools run as child processes, started from one command-line text.
#pragma once

#include <QByteArray>
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

/// How a child ended. Crashed: ended by a signal, a fault or the user, even if it had written its files.
enum class ChildResult { Ended, Crashed, NotFound, NotStarted };

/// Observes a running child process.
struct ChildWatch {
    /// Called every few hundredths of a second with the time since the start. @return false to end the child,
    /// which counts as a crash. If empty, the child runs until it exits.
    std::function<bool(std::chrono::milliseconds running)> goOn = nullptr;
    /// Receives what the child writes to standard output and standard error, in pieces as they come. If
    /// empty, both are those of this process.
    std::function<void(const QByteArray& bytes)> output = nullptr;
};

/// Starts @p commandLine with this process's environment and waits for its end without a time limit. The exit
/// code is not returned: the tools report through their files. Standard input is empty: a tool that asked
/// there would wait for a user who sees no question. A process that the child leaves behind is not waited
/// for, even if it still holds the output. On Linux the child is killed when this program dies.
/// @param workingFolder of the child; empty for the working directory of this process
ChildResult runAndWait(const QString& commandLine, const QString& programFolder, const ChildWatch& watch = {},
                       const QString& workingFolder = {});

} // namespace norvane
