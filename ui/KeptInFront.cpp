// See KeptInFront.h.
#include "ui/KeptInFront.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace norvane::ui
{

KeptInFront::KeptInFront(QWidget& window) : QObject(&window), m_window(window)
{
    QApplication::instance()->installEventFilter(this);
}

/// A click raises the form again, also while it is active: its end comes after that.
bool KeptInFront::eventFilter(QObject* watched, QEvent* event)
{
    const bool mayRaise =
        event->type() == QEvent::WindowActivate || event->type() == QEvent::MouseButtonRelease;
    const auto* const widget = mayRaise ? qobject_cast<const QWidget*>(watched) : nullptr;
    if (widget && m_window.isVisible() && widget->window() == m_window.parentWidget()->window())
        m_window.raise();
    return false;
}

} // namespace norvane::ui
