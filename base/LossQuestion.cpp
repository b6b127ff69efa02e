// See LossQuestion.h.
#include "base/LossQuestion.h"

namespace norvane
{

bool askBeforeLoss(Boxes& boxes, const QString& text)
{
    return boxes.ask(text, pleaseCheck, BoxIcon::Question, BoxAnswer::No);
}

} // namespace norvane
