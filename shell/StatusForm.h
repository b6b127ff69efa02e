// Base of the small windows that stand beside the menu and say in the status bar that they are open.
#pragma once

#include <QWidget>

class QPushButton;

namespace norvane::shell
{

class MainStatusBar;

/// Puts its text into the status bar's panel while it is open and "Ready....." when it closes, also when
/// another such window is still open.
class StatusForm : public QWidget
{
    Q_OBJECT

protected:
    StatusForm(const QString& name, const QString& caption, const QString& panelText, MainStatusBar& status,
               QWidget* parent);

    /// A button of the form, still to be placed.
    [[nodiscard]] QPushButton* addButton(const QString& name, const QString& caption);
    /// Enter presses the button that has the focus, or else @p onEnter; Escape presses @p onEscape.
    void setKeys(QPushButton* onEnter, QPushButton* onEscape);

    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    MainStatusBar& m_status;
    QPushButton* m_onEnter = nullptr;
    QPushButton* m_onEscape = nullptr;
};

} // namespace norvane::shell
