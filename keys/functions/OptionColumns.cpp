// Columns of check boxes and their captions; see OptionColumns.h.
#include "keys/functions/OptionColumns.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

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

/// Shows @p caption beside @p box.
void setCaption(QCheckBox& box, const QString& caption)
{
    box.setText(buttonText(caption));
}

constexpr int columnCount = 3;

int columnOf(int index)
{
    return std::min(index / checksOfFlag, columnCount - 1);
}

/// The size that fits the boxes of every key.
struct Room {
    QVector<int> widths = QVector<int>(columnCount);
    qsizetype lines = 0; ///< of the longest column
};

/// @p box is used to measure its captions.
Room roomForAll(QCheckBox& box)
{
    Room room;
    for (const auto* const table : {&keyOptionsTo156(), &keyOptionsFrom157()}) {
        for (const KeyOptions& options : *table) {
            QVector<qsizetype> lines(columnCount);
            for (const OptionBox& option : options.boxes) {
                const int column = columnOf(option.index);
                box.setText(buttonText(option.caption));
                room.widths[column] = std::max(room.widths[column], box.sizeHint().width());
                room.lines = std::max(room.lines, ++lines[column]);
            }
        }
    }
    return room;
}

} // namespace

OptionColumns::OptionColumns(QWidget* parent)
    : QWidget(parent), m_noOptions(new QLabel(u"This key has no options to tick."_s, this))
{
    makeChecks();
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(0);
    for (int column = 0; column < columnCount; ++column) {
        auto* const boxes = new QVBoxLayout;
        boxes->setSpacing(ui::spacing::controlGap);
        for (int index = 0; index < checkCount; ++index) {
            if (columnOf(index) == column)
                boxes->addWidget(Check1[index]);
        }
        boxes->addStretch();
        grid->addLayout(boxes, 0, column);
    }
    fixSize(*grid);
    m_noOptions->setEnabled(false);
    m_noOptions->hide();
}

void OptionColumns::makeChecks()
{
    for (int index = 0; index < checkCount; ++index) {
        Check1 += new QCheckBox(this);
        ui::nameControl(*Check1.last(), u"Check1_%1"_s.arg(index));
        Check1.last()->hide();
    }
}

/// A column keeps its width when it shows nothing.
void OptionColumns::fixSize(QGridLayout& grid)
{
    const Room room = roomForAll(*Check1.first());
    int width = 0;
    for (int column = 0; column < columnCount; ++column) {
        grid.setColumnMinimumWidth(column, room.widths[column] + ui::spacing::groupGap);
        width += room.widths[column] + ui::spacing::groupGap;
    }
    setFixedWidth(width);
    const int line = Check1.first()->sizeHint().height() + ui::spacing::controlGap;
    setFixedHeight(static_cast<int>(room.lines) * line);
}

void OptionColumns::showChecks(const QVector<KeyControls::Tick>& checks)
{
    for (int index = 0; index < checkCount; ++index) {
        const KeyControls::Tick& check = checks[index];
        setCaption(*Check1[index], check.caption);
        Check1[index]->setChecked(check.ticked);
        Check1[index]->setVisible(check.visible);
    }
    m_noOptions->setVisible(std::ranges::none_of(checks, &KeyControls::Tick::visible));
    m_noOptions->adjustSize();
}

void OptionColumns::readTicks(QVector<KeyControls::Tick>& checks) const
{
    for (int index = 0; index < checkCount; ++index)
        checks[index].ticked = Check1[index]->isChecked();
}

} // namespace norvane::keys
