// See CopyMenu.h.
#include "shell/CopyMenu.h"

#include "base/LossQuestion.h"
#include "customers/RunLock.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "platform/ShownTime.h"
#include "ui/WaitPointer.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

const auto boxTitle = u"Safety Copies"_s;

QString wordsOf(const customers::SafetyCopy& copy)
{
    return u"%1, %2"_s.arg(shownTime(copy.made), copy.reason);
}

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
        customer, wordsOf(copy), salesComeBack ? u"sales included"_s : u"except sales"_s,
        keptInWords(customerPath, salesComeBack));
}

} // namespace

CopyMenu::CopyMenu(const QString& appPath, const QString& customer, Boxes& boxes, QWidget* parent)
    : QMenu(parent), m_boxes(boxes)
{
    setObjectName(u"CopyMenu"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    m_values.appPath = appPath;
    m_values.customerName = customer;
    m_values.customerPath = existingPath(joinPath(appPath, customer));
    const auto copies = customers::safetyCopies(m_values.customerPath);
    addSection(copies.isEmpty() ? u"%1 has no safety copies"_s.arg(customer)
                                : u"Put %1 back as it was on"_s.arg(customer));
    for (const auto& copy : copies)
        addCopy(copy);
}

void CopyMenu::addCopy(const customers::SafetyCopy& copy)
{
    QAction* const action = addAction(wordsOf(copy));
    action->setObjectName(copy.name);
    // The menu is destroyed before the question is answered.
    connect(action, &QAction::triggered, parent(),
            [values = m_values, &boxes = m_boxes, copy] { restore(values, boxes, copy); });
}

void CopyMenu::restore(const ApplicationValues& values, Boxes& boxes, const customers::SafetyCopy& copy)
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
        boxes.message(failure.text(), boxTitle, BoxIcon::Critical);
        return;
    }
    const QString done = u"%1 is as it was on %2."_s.arg(values.customerName, wordsOf(copy));
    boxes.message(message.isEmpty() ? done : done + u"\r\r"_s + message, boxTitle, BoxIcon::Information);
}

} // namespace norvane::shell
