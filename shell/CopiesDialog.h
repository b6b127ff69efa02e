// The safety copies of a customer: what differs, restoring one, making one.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SafetyCopies.h"
#include "platform/Boxes.h"

#include <QDialog>

class QLayout;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

namespace norvane::shell
{

/// Lists the copies of one customer, the latest first, with reason and size. Failures are shown in a box, and
/// the dialog remains open.
class CopiesDialog : public QDialog
{
    Q_OBJECT

public:
    /// @p boxes must outlive it. @p appPath is the program's folder, @p customer a folder's name in it.
    CopiesDialog(const QString& appPath, const QString& customer, Boxes& boxes, QWidget* parent);

private:
    void layOut();
    [[nodiscard]] QLayout* makeButtons();
    [[nodiscard]] QPushButton* addButton(const QString& name, const QString& caption,
                                         void (CopiesDialog::*pressed)());
    void listCopies();
    [[nodiscard]] customers::SafetyCopy chosen() const;
    void showDifferences();
    void restore();
    void makeCopy();

    ApplicationValues m_values;
    Boxes& m_boxes;
    QList<customers::SafetyCopy> m_copies;
    QTreeWidget* m_list;
    QPlainTextEdit* m_differences;
    QList<QPushButton*> m_needCopy; ///< buttons that work on the chosen copy
};

} // namespace norvane::shell
