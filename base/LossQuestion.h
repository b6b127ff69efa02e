// Asks the user before a step that cannot be undone, when an earlier step failed without a message.
#pragma once

#include "platform/Boxes.h"

#include <QString>

namespace norvane
{

/// Boxes on a command line, where options answer the questions beforehand.
class AnswersByOption
{
public:
    AnswersByOption() = default;
    AnswersByOption(const AnswersByOption&) = delete;
    AnswersByOption& operator=(const AnswersByOption&) = delete;
    virtual ~AnswersByOption() = default;

    /// @return true, for Yes, when the command line has @p option. Otherwise a message says that this option
    /// would answer Yes.
    virtual bool answerByOption(const QString& text, const QString& title, QLatin1StringView option) = 0;
};

/// Asks @p text with Yes and No. No is preset: it is the answer that loses nothing. @p option is the option
/// of the command line that answers Yes ("accept-fewer"), empty for none. @return true for Yes.
[[nodiscard]] bool askBeforeLoss(Boxes& boxes, const QString& text, QLatin1StringView option = {});

} // namespace norvane
