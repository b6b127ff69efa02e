// The external tools run as child processes, started from one command-line text.
#pragma once

#include <QString>
#include <QStringList>

namespace norvane
{

/// Splits a command line at blanks; doubled blanks do not make empty words, a quoted word may hold blanks.
[[nodiscard]] QStringList commandWords(const QString& commandLine);

/// The program that a bare name stands for: in @p programFolder first, then the working directory, then the
/// search path; without regard to case and, on a platform that wants one, with the platform's suffix.
/// @return empty text when there is none.
[[nodiscard]] QString findProgram(const QString& name, const QString& programFolder);

/// How a child came to its end. Crashed: a signal or a fault of its own ended it, whatever it had written.
enum class ChildResult { Ended, Crashed, NotFound, NotStarted };

/// Starts @p commandLine in the working directory with this process's environment and waits for its end
/// without a time limit. The exit code is not told: the tools report through their files.
ChildResult runAndWait(const QString& commandLine, const QString& programFolder);

} // namespace norvane
