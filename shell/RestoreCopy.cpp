// See RestoreCopy.h.
#include "shell/RestoreCopy.h"

#include "base/LossQuestion.h"
#include "customers/RunLock.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"
#include "ui/WaitPointer.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{

QString copyInWords(const customers::SafetyCopy& copy)
{
    return u"%1, %2"_s.arg(shownTime(copy.made), copy.reason);
}

namespace
{

/// What happens to the current database.
QString keptInWords(const QString& customerPath, bool salesComeBack)
{
    if (!customers::needsNewDatabase(customerPath))
        return u"A copy of its present state is made first."_s;
    const QString kept = u"The database of today cannot be used. It is kept under another name"_s;
    return kept + (salesComeBack ? u"."_s : u", and what can be read of the sales in it is taken over."_s);
}

QString questionOf(const QString& customer, const QString& customerPath, const customers::SafetyCopy& copy)
{
    const bool salesComeBack = customers::holdsSales(copy);
    return u"Put %1 back as it was on %2?\r\rEverything changed since then is undone, %3. %4"_s.arg(
        customer, copyInWords(copy), salesComeBack ? u"sales included"_s : u"except sales"_s,
        keptInWords(customerPath, salesComeBack));
}

} // namespace

void restoreAfterQuestion(const ApplicationValues& values, const customers::SafetyCopy& copy, Boxes& boxes)
{
    QString message;
    try {
        if (!askBeforeLoss(boxes, questionOf(values.customerName, values.customerPath, copy)))
            return;
        const auto lock = customers::RunLock::take(values, boxes);
        if (lock == nullptr)
            return;
        const ui::WaitPointer pointer;
        message = customers::restoreSafetyCopy(values.customerPath, copy);
    } catch (const RuntimeFailure& failure) {
        boxes.message(failure.text(), copiesTitle, BoxIcon::Critical);
        return;
    }
    const QString done = u"%1 is as it was on %2."_s.arg(values.customerName, copyInWords(copy));
    boxes.message(message.isEmpty() ? done : done + u"\r\r"_s + message, copiesTitle, BoxIcon::Information);
}

} // namespace norvane::shell
