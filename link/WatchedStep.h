// A step of an exchange that looks at what its tool left, and asks before that is used when it is not what
// the step waited for.
#pragma once

#include "link/ExpectedFiles.h"
#include "link/RunOutside.h"

namespace norvane::link
{

inline constexpr QLatin1StringView statusFile{"status.out"};

/// One step: note what it waits for, run its tool, one or more times, and ask. In a good run nothing is
/// asked.
class WatchedStep
{
public:
    /// @p expected are the files of the working directory that the step has to write. @p outside must outlive
    /// it.
    WatchedStep(const RunOutside& outside, const QStringList& expected);

    /// Runs a tool as runTool() does.
    void run(const QString& commandLine);
    /// Whether every tool came to its own end and every file was written.
    [[nodiscard]] bool isComplete() const;
    /// True for a step that is complete. For any other asks, naming tool, files and their age;
    /// @p consequence is the sentence that tells what would happen. @return whether the run may use what is
    /// there.
    [[nodiscard]] bool mayGoOn(const QString& consequence) const;

private:
    [[nodiscard]] QString whatWentWrong() const;
    [[nodiscard]] QStringList doubtfulFiles() const;

    const RunOutside& m_outside;
    ExpectedFiles m_expected;
    QString m_tool;
    ChildResult m_result = ChildResult::Ended; ///< of the first tool that failed, if any
};

} // namespace norvane::link
