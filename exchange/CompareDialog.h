// The differences between a customer's tables and a register, and taking over the register's values.
#pragma once

#include "exchange/RegisterComparison.h"
#include "platform/Boxes.h"
#include "ui/EventTurns.h"

#include <QDialog>

#include <memory>

class QBoxLayout;
class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace norvane::exchange
{

/// Lists what differs once it is shown; the window answers meanwhile, and Close ends it. Nothing is stored
/// before the button is pressed.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param history for undo, may be nullptr; must outlive the dialog, as @p boxes.
    CompareDialog(std::unique_ptr<RegisterComparison> comparison, Boxes& boxes, store::WorkHistory* history,
                  QWidget* parent = nullptr);
    ~CompareDialog() override;

public Q_SLOTS:
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    void addTable(QBoxLayout& column);
    void addButtons(QBoxLayout& column);
    void list();
    void addLine(const ComparedLine& line);
    void showNotes();
    void showFound();
    [[nodiscard]] RegisterRecords chosenRecords() const;
    void choiceChanged();
    void useValues();
    [[nodiscard]] bool keepsGoing();

    std::unique_ptr<RegisterComparison> m_comparison;
    Boxes& m_boxes;
    store::WorkHistory* m_history;
    QStandardItemModel* m_lines;
    QTableView* m_table = nullptr; ///< of them
    QLabel* m_notes;
    QLabel* m_state;
    QPushButton* m_use;
    QPushButton* m_close;
    ui::EventTurns m_turns{ui::EventTurns::between};
    qint64 m_different = 0; ///< lines, listed or not
    qint64 m_oneWay = 0;
    QString m_done; ///< the latest taking over
    bool m_isListed = false;
    bool m_isListing = false;
    bool m_isStopped = false;
};

} // namespace norvane::exchange
