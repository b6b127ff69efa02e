// The status bar of the main window.
#pragma once

#include <QStatusBar>

class QLabel;

namespace norvane::shell
{

/// A panel ("Ready.....") and beside it the status text, which names the customer. At the right the result of
/// the last action ("Saved PLU 1001"), and the owner of the open data if it is another customer.
class MainStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit MainStatusBar(QWidget* parent = nullptr);

    void setPanel(const QString& text);
    [[nodiscard]] QString panel() const;
    void setStatusText(const QString& text);
    [[nodiscard]] QString statusText() const;
    /// Remains until the next one; an empty text removes it.
    void setNotice(const QString& text);
    [[nodiscard]] QString notice() const;
    /// Shows whose data screens and exchange use; an empty name for the chosen customer.
    void setDataInUse(const QString& customer);

private:
    QLabel* m_panel;
    QLabel* m_text;
    QLabel* m_notice;
    QLabel* m_dataInUse;
};

/// The panel's text while no form has set another one.
[[nodiscard]] QString readyText();

} // namespace norvane::shell
