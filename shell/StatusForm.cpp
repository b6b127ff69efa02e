// Status panel and keys of the small windows; see StatusForm.h.
#include "shell/StatusForm.h"

#include "shell/MainStatusBar.h"
#include "ui/FormKit.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace norvane::shell
{

StatusForm::StatusForm(const QString& name, const QString& caption, const QString& panelText,
                       MainStatusBar& status, QWidget* parent)
    : QWidget(parent), m_status(status)
{
    ui::nameControl(*this, name);
    setWindowTitle(caption);
    m_status.setPanel(panelText);
}

void StatusForm::setKeys(QPushButton* onEnter, QPushButton* onEscape)
{
    m_onEnter = onEnter;
    m_onEscape = onEscape;
}

void StatusForm::closeEvent(QCloseEvent* event)
{
    m_status.setPanel(readyText());
    QWidget::closeEvent(event);
}

QPushButton* StatusForm::buttonFor(int key) const
{
    if (key == Qt::Key_Escape)
        return m_onEscape;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return nullptr;
    auto* const focused = qobject_cast<QPushButton*>(focusWidget());
    return focused ? focused : m_onEnter;
}

void StatusForm::keyPressEvent(QKeyEvent* event)
{
    if (QPushButton* const button = buttonFor(event->key())) {
        button->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace norvane::shell
