// See LossQuestion.h.
#include "base/LossQuestion.h"

namespace norvane
{

bool askBeforeLoss(Boxes& boxes, const QString& text, QLatin1StringView option)
{
    auto* const prepared = option.isEmpty() ? nullptr : dynamic_cast<AnswersByOption*>(&boxes);
    if (prepared != nullptr)
        return prepared->answerByOption(text, QString(pleaseCheck), option);
    return boxes.ask(text, pleaseCheck, BoxIcon::Question, BoxAnswer::No);
}

} // namespace norvane
