// A step of an exchange: runs a tool, looks whether it wrote the files that the step needs, and asks before
// older files are used.
#pragma once

#include "link/ExpectedFiles.h"
#include "link/RunOutside.h"

namespace norvane::link
{

inline constexpr QLatin1StringView statusFile{"status.out"};

/// Create it before the tool runs, run the tool once or more often, then ask. A successful run asks nothing.
class WatchedStep
{
public:
    /// @p expected are the files of the working directory that the step has to write. @p outside must outlive
    /// this.
    WatchedStep(const RunOutside& outside, const QStringList& expected);

    /// Runs a tool as runTool() does. Of a file in several spellings only the latest remains.
    /// @throws RuntimeFailure as keepLatestSpelling().
    void run(const QString& commandLine);
    /// Whether no tool crashed and every file was written.
    [[nodiscard]] bool isComplete() const;
    /// Asks when the step is not complete; the question names the tool, the files and their age.
    /// @p consequence is the sentence that says what would happen. @return whether the run may use the files
    /// that are there: always for a complete step, else the user's answer.
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
