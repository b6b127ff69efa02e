// Columns of check boxes and their captions; see OptionColumns.h.
#include "keys/OptionColumns.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// An ampersand is a character of the caption and marks no access letter.
QString buttonText(const QString& caption)
{
    return QString(caption).replace(u'&', u"&&"_s);
}

/// Shows @p caption beside @p box and tells it to screen readers.
void setCaption(QCheckBox& box, const QString& caption)
{
    box.setText(buttonText(caption));
    box.setAccessibleDescription(caption);
}

/// Width of the widest caption of any key in the column of @p flag; @p box is used to measure.
int columnWidth(int flag, QCheckBox& box)
{
    int widest = 0;
    for (const auto* const table : {&keyOptionsTo156(), &keyOptionsFrom157()}) {
        for (const KeyOptions& options : *table) {
            for (const OptionBox& option : options.boxes) {
                if (option.index / checksOfFlag != flag)
                    continue;
                box.setText(buttonText(option.caption));
                widest = std::max(widest, box.sizeHint().width());
            }
        }
    }
    box.setText({});
    return widest;
}

} // namespace

OptionColumns::OptionColumns(QWidget* parent)
    : QWidget(parent), m_noOptions(new QLabel(u"This key has no options to tick."_s, this))
{
    auto* const columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(ui::spacing::groupGap);
    for (int flag = 0; flag < flagCount; ++flag)
        columns->addLayout(makeColumn(flag));
    setFixedSize(sizeHint());
    for (QCheckBox* const box : std::as_const(Check1))
        box->hide();
    m_noOptions->setEnabled(false);
    m_noOptions->hide();
}

QVBoxLayout* OptionColumns::makeColumn(int flag)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(ui::spacing::controlGap);
    for (int index = flag * checksOfFlag; index < (flag + 1) * checksOfFlag; ++index) {
        auto* const box = new QCheckBox(this);
        ui::nameControl(*box, u"Check1_%1"_s.arg(index));
        column->addWidget(box);
        Check1 += box;
    }
    column->addStretch();
    column->addStrut(columnWidth(flag, *Check1.at(flag * checksOfFlag)));
    return column;
}

void OptionColumns::showChecks(const QVector<KeyControls::Check>& checks)
{
    for (int index = 0; index < checkCount; ++index) {
        const KeyControls::Check& check = checks.at(index);
        setCaption(*Check1.at(index), check.caption);
        Check1.at(index)->setChecked(check.ticked);
        Check1.at(index)->setVisible(check.visible);
    }
    m_noOptions->setVisible(std::ranges::none_of(checks, &KeyControls::Check::visible));
    m_noOptions->adjustSize();
}

void OptionColumns::readTicks(QVector<KeyControls::Check>& checks) const
{
    for (int index = 0; index < checkCount; ++index)
        checks[index].ticked = Check1.at(index)->isChecked();
}

} // namespace norvane::keys
