// See FormKit.h.
#include "ui/FormKit.h"

#include "ui/Appearance.h"

#include <QAbstractButton>
#include <QDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{

void nameControl(QWidget& control, const QString& name, const QString& spoken)
{
    control.setObjectName(name);
    control.setAccessibleName(spoken);
}

QString spokenName(const QWidget& control)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    return button && control.accessibleName().isEmpty() ? spokenText(button->text()).trimmed()
                                                        : control.accessibleName();
}

QString spokenText(QString caption)
{
    static const QRegularExpression accessMark(u"&(.?)"_s);
    return caption.contains(u'&') ? caption.replace(accessMark, u"\\1"_s) : caption;
}

QPushButton* makeButton(const QString& name, const QString& caption, QWidget* form)
{
    auto* const button = new QPushButton(caption, form);
    nameControl(*button, name);
    button->setMinimumWidth(scaled(buttonWidth));
    return button;
}

QHBoxLayout* makeButtonRow(std::initializer_list<QPushButton*> buttons,
                           std::initializer_list<QPushButton*> left)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(spacing::controlGap);
    for (QPushButton* const button : left)
        row->addWidget(button);
    row->addStretch();
    for (QPushButton* const button : buttons)
        row->addWidget(button);
    return row;
}

QHBoxLayout* makeOkCancelRow(QDialog& form, std::initializer_list<QPushButton*> left)
{
    QPushButton* const ok = makeButton(u"OkButton"_s, u"&OK"_s, &form);
    QPushButton* const cancel = makeButton(u"CancelButton"_s, u"&Cancel"_s, &form);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, &form, &QDialog::accept);
    QObject::connect(cancel, &QPushButton::clicked, &form, &QDialog::reject);
    return makeButtonRow({ok, cancel}, left);
}

void rejectNumber(QLineEdit& box, Boxes& boxes)
{
    boxes.message(u"Maximum Value Exceeded"_s, u"Input Error"_s, BoxIcon::Exclamation);
    box.setFocus();
    box.selectAll();
    QToolTip::showText(box.mapToGlobal(box.rect().bottomLeft()), box.toolTip(), &box);
}

QVBoxLayout* makeFormColumn(QWidget& form, int gap)
{
    auto* const column = new QVBoxLayout(&form);
    constexpr int margin = spacing::formMargin;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    return column;
}

} // namespace norvane::ui
