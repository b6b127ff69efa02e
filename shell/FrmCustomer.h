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

/// Run it with exec(): Accepted means that the values name the customer, Rejected that the user wants to end
/// the program, Returned that the work with the previous customer continues and the values are as before.
class FrmCustomer : public QDialog
{
    Q_OBJECT

public:
    static constexpr int Returned = Accepted + 1;

    FrmCustomer(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

public Q_SLOTS:
    /// Escape: returns to the database that is open. At the start there is none, so it acts as the close
    /// button.
    void reject() override;

protected:
    /// The window's close button ends the program: asks first, and remains open after No.
    void closeEvent(QCloseEvent* event) override;

private:
    void endProgram();
    void layOut();
    [[nodiscard]] QGroupBox* makeFrame();
    [[nodiscard]] QLayout* makeButtons();
    void connectList();
    void copyChosenRow();
    void showCopies(QPoint place);
    void showCopiesOfChosen();
    void takeCustomer();
    void welcomeNewCustomer();
    void makeLikeAnother();

    ApplicationValues& m_values;
    const ApplicationValues m_before;
    Boxes& m_boxes;
    QListWidget* List1;
    QLineEdit* text1;
    QPushButton* CSCmdBtn1;
};

} // namespace norvane::shell
