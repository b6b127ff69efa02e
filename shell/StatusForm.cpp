// Status panel and keys of the small windows; see StatusForm.h.
#include "shell/StatusForm.h"

#include "shell/MainStatusBar.h"
#include "ui/Appearance.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

namespace norvane::shell
{

StatusForm::StatusForm(const QString& name, const QString& caption, const QString& panelText,
                       MainStatusBar& status, QWidget* parent)
    : QWidget(parent), m_status(status)
{
    setObjectName(name);
    setAccessibleName(name);
    setWindowTitle(caption);
    m_status.setPanel(panelText);
}

QPushButton* StatusForm::addButton(const QString& name, const QString& caption)
{
    auto* const button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(name);
    button->setMinimumWidth(ui::buttonWidth);
    return button;
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

void StatusForm::keyPressEvent(QKeyEvent* event)
{
    QPushButton* pressed = nullptr;
    if (event->key() == Qt::Key_Escape) {
        pressed = m_onEscape;
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* const focused = qobject_cast<QPushButton*>(focusWidget());
        pressed = focused ? focused : m_onEnter;
    }
    if (pressed) {
        pressed->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace norvane::shell
