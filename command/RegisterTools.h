// The tools of an exchange or a collection without a window.
#pragma once

#include "base/ApplicationValues.h"
#include "command/Workplace.h"
#include "link/RunOutside.h"
#include "link/ToolWords.h"

#include <optional>
#include <utility>

namespace norvane::command
{

/// Runs the tools one after another. What they say goes to standard error, each tool's when it has ended, so
/// that standard output is left to what the command itself writes.
class RegisterTools
{
public:
    /// @param folder in which the tools work; empty for the working directory. The others must outlive it.
    RegisterTools(const Workplace& workplace, const ApplicationValues& values, QString folder = {})
        : m_workplace(workplace), m_values(values), m_folder(std::move(folder))
    {
    }
    RegisterTools(const RegisterTools&) = delete;
    RegisterTools& operator=(const RegisterTools&) = delete;

    /// The outside of a run that uses these tools; they must outlive it.
    [[nodiscard]] link::RunOutside outside();

    /// The step that a result has ended, if one has.
    [[nodiscard]] const std::optional<link::FailedStep>& failed() const { return m_failed; }
    /// What the last tool of the last step said.
    [[nodiscard]] QString words() const { return m_words.text(); }

private:
    [[nodiscard]] ChildResult run(const QString& line);

    const Workplace& m_workplace;
    const ApplicationValues& m_values;
    QString m_folder;
    link::ToolWords m_words; ///< of the last tool of the step
    std::optional<link::FailedStep> m_failed;
};

} // namespace norvane::command
