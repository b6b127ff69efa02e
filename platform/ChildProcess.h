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

enum class ChildResult { Ended, NotFound, NotStarted };

/// Starts @p commandLine in the working directory with this process's environment and waits for its end
/// without a time limit. How it ended (exit code, crash) is not told: the tools report through their files.
ChildResult runAndWait(const QString& commandLine, const QString& programFolder);

} // namespace norvane
