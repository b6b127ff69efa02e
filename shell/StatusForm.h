// Base of the small windows that tell in the status bar that they are open.
#pragma once

#include <QWidget>

#include <initializer_list>

class QLayout;
class QPushButton;
class QVBoxLayout;

namespace norvane::shell
{

class MainStatusBar;

/// Shows its text in the status bar's panel, and "Ready....." there when it closes, even when another such
/// window is still open.
class StatusForm : public QWidget
{
    Q_OBJECT

protected:
    StatusForm(const QString& name, const QString& caption, const QString& panelText, MainStatusBar& status,
               QWidget* parent);

    /// The column that the form's contents stand in; the form is as large as they need, and no larger.
    [[nodiscard]] QVBoxLayout* makeColumn();
    /// A button of the form, still to be placed.
    [[nodiscard]] QPushButton* addButton(const QString& name, const QString& caption);
    /// A row of @p buttons at the right edge, still to be placed.
    [[nodiscard]] static QLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons);
    /// Enter presses the button with the focus, or @p onEnter when none has it; Escape presses @p onEscape.
    void setKeys(QPushButton* onEnter, QPushButton* onEscape);

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QPushButton* buttonFor(int key) const;

    MainStatusBar& m_status;
    QPushButton* m_onEnter = nullptr;
    QPushButton* m_onEscape = nullptr;
};

} // namespace norvane::shell
