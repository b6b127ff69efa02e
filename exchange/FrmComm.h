// The exchange dialog: the user ticks what is to move between database and registers and presses OK.
#pragma once

#include "exchange/ChangeDot.h"
#include "exchange/ChangesLook.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/UnfinishedExchange.h"
#include "link/LinkForm.h"

#include <array>
#include <memory>

class QCheckBox;
class QLabel;

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::exchange
{

class ExchangeRunner;
class RegisterComparison;

/// Serves both directions; the menu gives the dialog its caption. All boxes start unticked. Closing takes
/// effect after the current file.
class FrmComm : public link::LinkForm, private TickBoxes
{
    Q_OBJECT

public:
    /// @param exchangeMode "UPLOAD" fetches from one register, anything else sends to all.
    FrmComm(QString exchangeMode, const ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

    /// What a comparison takes over from a register is added to @p history, which must outlive the form.
    void setHistory(store::WorkHistory* history) { m_history = history; }

protected:
    [[nodiscard]] bool mayStart() override;
    void run() override;
    [[nodiscard]] QString leavingNotice() const override;
    /// First shows what the last exchange left undone, and offers to tick it.
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] bool isUpload() const;
    [[nodiscard]] Direction direction() const;
    void buildBoxes();
    void buildTickChanged();
    void showWay();
    [[nodiscard]] QString wayInWords() const;
    [[nodiscard]] QWidget* areaOfBoxes() const;
    [[nodiscard]] QLayout* columnOfBoxes(int first, int end) const;

    void selectAll();
    void tickUnfinished();
    void lookForChanges();
    void showFound(const FoundChanges& found);
    void showChanges(const AllChanges& changes);
    void showChanges(int box, const BoxChanges& changes);
    void tickChanged();
    void compare();
    [[nodiscard]] std::unique_ptr<RegisterComparison> fetchToCompare();
    [[nodiscard]] bool connects(const link::LinkSettings& link, ExchangeRunner* runner);
    void exchange();
    void noteSerialPort();
    void runSequence(ExchangeRunner& runner);

    [[nodiscard]] bool isTicked(int box) const override;
    void setTicked(int box, bool ticked) override;

    QString m_exchangeMode;
    QLabel* m_way; ///< the customer of the tables, and the registers
    std::array<QCheckBox*, boxCount> check1{};
    QPushButton* CSCmdBtn2 = nullptr;
    std::array<ChangeDot*, boxCount> m_dots{};
    QLabel* m_changes;                    ///< what the dots mean
    QPushButton* m_tickChanged = nullptr; ///< of a download
    ChangesLook m_look{[this](const FoundChanges& found) {
        showFound(found);
    }};
    store::WorkHistory* m_history = nullptr;
};

} // namespace norvane::exchange
