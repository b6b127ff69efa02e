// See AccessLetters.h.
#include "shell/AccessLetters.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcutEvent>

namespace norvane::shell
{
namespace
{

/// The control that @p letter of @p widget is for: a button itself, or the box beside its label.
QWidget* targetOf(QWidget& widget, const QKeySequence& letter)
{
    if (const auto* const button = qobject_cast<QAbstractButton*>(&widget))
        return button->shortcut() == letter ? &widget : nullptr;
    const auto* const label = qobject_cast<QLabel*>(&widget);
    return label && QKeySequence::mnemonic(label->text()) == letter ? label->buddy() : nullptr;
}

/// One control is pressed; of several, each press of the letter leads to the next.
void press(const QList<QWidget*>& targets)
{
    auto* const button = qobject_cast<QAbstractButton*>(targets.first());
    if (targets.size() == 1 && button) {
        button->animateClick();
    } else {
        const auto next = (targets.indexOf(QApplication::focusWidget()) + 1) % targets.size();
        targets[next]->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace

AccessLetters::AccessLetters(QMdiArea& area) : QObject(&area), m_area(area)
{
    QApplication::instance()->installEventFilter(this);
}

bool AccessLetters::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::Shortcut)
        return false;
    const auto& shortcut = static_cast<const QShortcutEvent&>(*event);
    const auto targets = shortcut.isAmbiguous() ? targetsOf(shortcut.key()) : QList<QWidget*>();
    if (targets.isEmpty())
        return false;
    press(targets);
    return true;
}

QList<QWidget*> AccessLetters::targetsOf(const QKeySequence& letter) const
{
    const QMdiSubWindow* const child = m_area.activeSubWindow();
    if (!child || !child->isAncestorOf(QApplication::focusWidget()))
        return {};
    QList<QWidget*> targets;
    for (QWidget* const widget : child->findChildren<QWidget*>()) {
        QWidget* const target =
            widget->isVisible() && widget->isEnabled() ? targetOf(*widget, letter) : nullptr;
        if (target)
            targets += target;
    }
    return targets;
}

} // namespace norvane::shell
