// The customer dialog: choose an existing customer or make a new one.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDialog>

class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace norvane::shell
{

/// Run it with exec(): accepted means that the values hold the customer, rejected that the user wants to end
/// the whole program.
class FrmCustomer : public QDialog
{
    Q_OBJECT

public:
    FrmCustomer(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

public Q_SLOTS:
    /// The window's close button and Escape: asks first, and stays open after No.
    void reject() override;

private:
    void layOut();
    [[nodiscard]] QGroupBox* makeFrame();
    void connectList();
    void copyChosenRow();
    void showCopies(QPoint place);
    void takeCustomer();
    void welcomeNewCustomer();

    ApplicationValues& m_values;
    Boxes& m_boxes;
    QListWidget* List1;
    QLineEdit* text1;
    QPushButton* CSCmdBtn1;
};

} // namespace norvane::shell
