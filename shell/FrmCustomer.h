// The customer dialog: take an existing customer or make a new one.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDialog>

class QLineEdit;
class QListWidget;
class QPushButton;

namespace norvane::shell
{

/// Run it with exec(): accepted means that a customer stands in the values, rejected that the user closed the
/// dialog and wants the whole program to end at once.
class FrmCustomer : public QDialog
{
    Q_OBJECT

public:
    FrmCustomer(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

public Q_SLOTS:
    /// The window's close button and Escape: asks, and stays open after No.
    void reject() override;

private:
    void layOut();
    void copyChosenRow();
    void takeCustomer();

    ApplicationValues& m_values;
    Boxes& m_boxes;
    QListWidget* List1;
    QLineEdit* text1;
    QPushButton* CSCmdBtn1;
};

} // namespace norvane::shell
