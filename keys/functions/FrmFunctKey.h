// The editor of the function keys.
#pragma once

#include "keys/functions/FunctionKeys.h"
#include "platform/Boxes.h"

#include <QDialog>

class QGridLayout;
class QLabel;
class QPushButton;

namespace norvane::ui
{
class DecimalBox;
class IntegerBox;
class NumberBox;
class TextBox;
class UsesButton;
} // namespace norvane::ui

namespace norvane::keys
{

class OptionColumns;
class RecordPicker;

/// Shows the options of the key that the user selects. Selecting another key and "E&xit" discard unsaved
/// changes without a question. Before the first key is selected there is nothing to save.
class FrmFunctKey : public QDialog
{
    Q_OBJECT

public:
    /// Leads @p values to the chosen customer's database.
    /// @throws RuntimeFailure as openCustomerDatabase() and FunctionKeys do.
    FrmFunctKey(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

    /// Shows the key of this number as a choice in the list does; nothing happens if there is none.
    void showKey(const QString& number);
    /// Escape asks about changes, as the window's close button does.
    void reject() override;

Q_SIGNALS:
    /// The result of the last action, in words for the status bar.
    void noticeChanged(const QString& text);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// A number, its label and what the logic calls it.
    struct NumberRow {
        NumberControl control;
        QLabel* label;
        ui::NumberBox* box;
    };

    void makeControls();
    [[nodiscard]] QGridLayout* makeGrid();
    void layOut();
    [[nodiscard]] NumberRow makeNumber(NumberControl control, const QString& label, ui::NumberBox* box,
                                       const QString& name);
    void Form_Load();
    void selectkey_Click(int row);
    bool saveRecord();
    [[nodiscard]] bool mayLeave();
    void showControls();
    void showNumber(const NumberRow& row);
    void readControls();

    Boxes& m_boxes;
    std::shared_ptr<store::Database> m_database;
    FunctionKeys m_keys;
    KeyControls m_controls;
    KeyControls m_shown; ///< as the controls held it when the key was shown or saved
    RecordPicker* selectkey;
    QLabel* labels;
    ui::TextBox* description;
    ui::DecimalBox* Halo;
    QVector<NumberRow> m_numbers;
    OptionColumns* m_options;
    QPushButton* SaveRecord;
    ui::UsesButton* m_uses;
};

} // namespace norvane::keys
