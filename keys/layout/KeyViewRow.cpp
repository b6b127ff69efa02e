// See KeyViewRow.h.
#include "keys/layout/KeyViewRow.h"

#include "keys/layout/LevelRow.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QAction>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// The grid's menu names its actions for tests and scripts; their buttons need names of their own.
QPushButton* makeActionButton(QAction* action, QWidget* form)
{
    QPushButton* const button =
        makeFormButton(action->objectName() + u"Button"_s, ui::spokenText(action->text()), form);
    button->setMinimumWidth(0);
    button->setToolTip(u"%1 (%2)"_s.arg(action->toolTip(), action->shortcut().toString()));
    button->setCheckable(action->isCheckable());
    button->setChecked(action->isChecked());
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::toggled, button, &QPushButton::setChecked);
    return button;
}

} // namespace

KeyViewRow::KeyViewRow(const QList<QAction*>& actions, QWidget* parent) : QWidget(parent)
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(ui::spacing::controlGap);
    for (QAction* const action : actions)
        row->addWidget(makeActionButton(action, this));
}

} // namespace norvane::keys
