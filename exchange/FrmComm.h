// The exchange dialog: the user ticks what is to move between the customer's database and the registers, and
// presses OK.
#pragma once

#include "exchange/Clock.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/LinkSettings.h"
#include "exchange/Modem.h"
#include "platform/Boxes.h"
#include "platform/SerialLine.h"
#include "shell/ApplicationValues.h"
#include "ui/WaitPointer.h"

#include <QDialog>

#include <array>
#include <memory>
#include <optional>

class QCheckBox;
class QPushButton;
class QStatusBar;

namespace norvane::exchange
{

/// Serves both directions: values.exchangeMode "UPLOAD" fetches from one register, anything else sends to
/// all. The menu gives the dialog its caption. All boxes start unticked. A run blocks but for the modem's
/// waits and one look at the pending events before each tool.
class FrmComm : public QDialog, private TickBoxes
{
    Q_OBJECT

public:
    FrmComm(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);
    ~FrmComm() override;

    /// Puts another serial line or clock in the place of the machine's; before the first press of OK.
    void setSerialLine(std::unique_ptr<SerialLine> line);
    void setClock(std::unique_ptr<Clock> clock);

public Q_SLOTS:
    /// The "E&xit" button, Escape and the window's close button: hangs up a modem and leaves, also in the
    /// midst of the dialling. A file that is being moved is moved to its end first.
    void reject() override;

private:
    void buildBoxes();
    void buildButtons();
    [[nodiscard]] QPushButton* addButton(const char* name, const char* caption, void (FrmComm::*pressed)());
    void layOut();

    void communicate();
    void selectAll();
    void exchange();
    [[nodiscard]] bool dial();
    void runSequence();
    void moveTicked();
    void leave();
    void showStep(const QString& text);
    void showNotice(const QString& text);

    [[nodiscard]] bool isTicked(int box) const override;
    void setTicked(int box, bool ticked) override;

    ApplicationValues& m_values;
    Boxes& m_boxes;
    std::unique_ptr<SerialLine> m_line;
    std::unique_ptr<Clock> m_clock;
    std::unique_ptr<Modem> m_modem;
    LinkSettings m_link; ///< as read at the last press of OK
    /// What an OK is busy with.
    enum class Work { None, Dialling, Moving };
    Work m_work = Work::None;
    bool m_exitPressed = false; ///< while an OK was busy
    QString m_notice;
    std::optional<ui::WaitPointer> m_waitPointer;

    std::array<QCheckBox*, boxCount> check1{};
    QPushButton* Communicate = nullptr;
    QPushButton* CSCmdBtn1 = nullptr;
    QPushButton* CSCmdBtn2 = nullptr;
    QStatusBar* StatusBar1 = nullptr;
};

} // namespace norvane::exchange
