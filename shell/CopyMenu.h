// The context menu of a customer's line in the customer dialog.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SafetyCopies.h"
#include "platform/Boxes.h"

#include <QMenu>

namespace norvane::shell
{

/// Lists the safety copies of one customer. Choosing one restores the customer from it, after a question;
/// failures are shown in a box.
class CopyMenu : public QMenu
{
    Q_OBJECT

public:
    /// @p boxes must outlive it. @p appPath is the program's folder, @p customer a folder's name in it.
    CopyMenu(const QString& appPath, const QString& customer, Boxes& boxes, QWidget* parent);

private:
    void addCopy(const customers::SafetyCopy& copy);

    ApplicationValues m_values;
    Boxes& m_boxes;
};

} // namespace norvane::shell
