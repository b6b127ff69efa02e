// Status panel and keys of the small windows; see StatusForm.h.
#include "shell/StatusForm.h"

#include "shell/MainStatusBar.h"
#include "ui/Appearance.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

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

QVBoxLayout* StatusForm::makeColumn()
{
    auto* const column = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::formMargin;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(ui::spacing::groupGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    return column;
}

QPushButton* StatusForm::addButton(const QString& name, const QString& caption)
{
    auto* const button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAccessibleName(name);
    button->setMinimumWidth(ui::buttonWidth);
    return button;
}

QLayout* StatusForm::makeButtonRow(std::initializer_list<QPushButton*> buttons)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addStretch();
    for (QPushButton* const button : buttons)
        row->addWidget(button);
    return row;
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
