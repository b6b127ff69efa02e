// See CopyMenu.h.
#include "shell/CopyMenu.h"

#include "platform/FilePaths.h"
#include "shell/RestoreCopy.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{

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
    QAction* const action = addAction(copyInWords(copy));
    action->setObjectName(copy.name);
    // The menu is destroyed before the question is answered.
    connect(action, &QAction::triggered, parent(),
            [values = m_values, &boxes = m_boxes, copy] { restoreAfterQuestion(values, copy, boxes); });
}

} // namespace norvane::shell
