// See AccessLetters.h.
#include "shell/AccessLetters.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QShortcutEvent>

#include <algorithm>

namespace norvane::shell
{
namespace
{

QAction* entryOf(const QMenuBar& menu, const QKeySequence& letter)
{
    const auto entries = menu.actions();
    const auto found = std::ranges::find_if(entries, [&letter](const QAction* entry) {
        return entry->isEnabled() && QKeySequence::mnemonic(entry->text()) == letter;
    });
    return found == entries.end() ? nullptr : *found;
}

/// The control that @p letter of @p widget is for: a button itself, the box beside its label, or a menu bar.
QWidget* targetOf(QWidget& widget, const QKeySequence& letter)
{
    if (const auto* const menu = qobject_cast<QMenuBar*>(&widget))
        return entryOf(*menu, letter) ? &widget : nullptr;
    if (const auto* const button = qobject_cast<QAbstractButton*>(&widget))
        return button->shortcut() == letter ? &widget : nullptr;
    const auto* const label = qobject_cast<QLabel*>(&widget);
    return label && QKeySequence::mnemonic(label->text()) == letter ? label->buddy() : nullptr;
}

/// Opens the menu of the entry, or does what the entry is for.
void choose(QMenuBar& menu, QAction& entry)
{
    if (entry.menu()) {
        menu.setActiveAction(&entry);
    } else {
        entry.trigger();
    }
}

/// One control is pressed; of several, each press of the letter leads to the next. A menu comes first.
void press(const QList<QWidget*>& targets, const QKeySequence& letter)
{
    for (QWidget* const target : targets) {
        if (auto* const menu = qobject_cast<QMenuBar*>(target)) {
            choose(*menu, *entryOf(*menu, letter));
            return;
        }
    }
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
    press(targets, shortcut.key());
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
