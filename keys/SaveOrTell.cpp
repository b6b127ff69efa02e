// See SaveOrTell.h.
#include "keys/SaveOrTell.h"

#include "base/LossQuestion.h"
#include "platform/RuntimeFailure.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Failures that no upload from a register would repair.
QString wayOut(const RuntimeFailure& failure)
{
    return failure.failure() == Failure::DatabaseLocked
               ? u"Wait until the other program has finished, or close it, and save again. "_s
               : QString();
}

} // namespace

bool saveOrTell(Boxes& boxes, const std::function<void()>& save)
{
    try {
        save();
        return true;
    } catch (const RuntimeFailure& failure) {
        boxes.message(failure.text() + u"\r\r"_s + wayOut(failure) + u"The changes are still here."_s,
                      QString(pleaseCheck), BoxIcon::Exclamation);
        return false;
    }
}

} // namespace norvane::keys
