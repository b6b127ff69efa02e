// Base of the small windows that show in the status bar that they are open.
#pragma once

#include <QWidget>

class QPushButton;

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

    /// Enter presses the button with the focus, or @p onEnter if none has it; Escape presses @p onEscape.
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
