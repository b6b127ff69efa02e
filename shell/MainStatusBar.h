// The status bar of the main window, in which the dialogs beside it say what goes on.
#pragma once

#include <QStatusBar>

class QLabel;

namespace norvane::shell
{

/// One panel ("Ready.....") and, beside it, the plain status text that names the customer.
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

/// The panel's text while nothing of its own is open.
inline const QString& readyText()
{
    static const QString text = QStringLiteral("Ready.....");
    return text;
}

} // namespace norvane::shell
