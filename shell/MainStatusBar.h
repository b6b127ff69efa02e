// The status bar of the main window.
#pragma once

#include <QStatusBar>

class QLabel;

namespace norvane::shell
{

/// A panel ("Ready.....") and beside it the status text, which names the customer.
class MainStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit MainStatusBar(QWidget* parent = nullptr);

    void setPanel(const QString& text);
    [[nodiscard]] QString panel() const;
    void setStatusText(const QString& text);
    [[nodiscard]] QString statusText() const;

private:
    QLabel* m_panel;
    QLabel* m_text;
};

/// The panel's text while no form has set another one.
[[nodiscard]] QString readyText();

} // namespace norvane::shell
