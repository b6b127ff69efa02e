// Which control an access letter presses while a child window is in use.
#pragma once

#include <QObject>

class QKeySequence;
class QMdiArea;
class QWidget;

namespace norvane::shell
{

/// Menu and child windows share one window, and with it their letters: Alt+S would open "&Setup" over a
/// screen with a button "&Save". The letters of the child window with the focus come first. The menu has its
/// other letters at all times, and all of them once Alt alone or F10 has led into it.
class AccessLetters : public QObject
{
    Q_OBJECT

public:
    /// Watches over the child windows of @p area as long as it lives.
    explicit AccessLetters(QMdiArea& area);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QList<QWidget*> targetsOf(const QKeySequence& letter) const;

    QMdiArea& m_area;
};

} // namespace norvane::shell
