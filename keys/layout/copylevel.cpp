// Two lists and two buttons; see copylevel.h.
#include "keys/layout/copylevel.h"

#include "base/LossQuestion.h"
#include "customers/SafetyCopies.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/ValueList.h"
#include "ui/WaitPointer.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Of the list's second column in pixels; the first, the number, is the value and not shown.
constexpr int nameWidth = 206;

QVector<QStringList> levelRows()
{
    QVector<QStringList> rows;
    for (int level = 1; level <= levelCount; ++level)
        rows += {QString::number(level), u"Level %1"_s.arg(level)};
    return rows;
}

} // namespace

copylevel::copylevel(store::Database& database, const KeyGeometry& keyboard, const ApplicationValues& values,
                     Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_database(database), m_keyboard(keyboard), m_values(values), m_boxes(boxes),
      m_copy(ui::makeButton(u"CSCmdBtn1"_s, u"&Copy"_s, this))
{
    setObjectName(u"copylevel"_s);
    setWindowTitle(u"Copy Levels"_s);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    auto* const grid = new QGridLayout;
    grid->setSpacing(ui::spacing::controlGap);
    CopyFrom = addList(u"CopyFrom"_s, u"Copy From"_s, *grid, 0);
    CopyTo = addList(u"CopyTo"_s, u"Copy To"_s, *grid, 1);
    auto* const exit = ui::makeButton(u"CSCmdBtn2"_s, u"&Exit"_s, this);
    exit->setAutoDefault(false);
    m_copy->setDefault(true);
    column->addLayout(grid);
    column->addLayout(ui::makeButtonRow({m_copy, exit}));
    connect(m_copy, &QPushButton::clicked, this, &copylevel::copy);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    allowCopy();
}

ui::ValueList* copylevel::addList(const QString& name, const QString& caption, QGridLayout& grid, int row)
{
    auto* const list = new ui::ValueList(this);
    ui::nameControl(*list, name);
    list->setRows(levelRows());
    list->setColumnWidths({0, ui::scaled(nameWidth)});
    list->setValue({});
    auto* const label = new QLabel(caption, this);
    label->setBuddy(list);
    grid.addWidget(label, row, 0);
    grid.addWidget(list, row, 1);
    connect(list, &ui::ValueList::valueEdited, this, &copylevel::allowCopy);
    return list;
}

LevelCopy copylevel::chosen() const
{
    return {CopyFrom->value().toInt(), CopyTo->value().toInt()};
}

void copylevel::allowCopy()
{
    m_copy->setEnabled(!CopyFrom->value().isEmpty() && !CopyTo->value().isEmpty());
}

void copylevel::copy()
{
    const QString misplaced = chosen().misplacedKeys(m_keyboard);
    if (!misplaced.isEmpty() && !askBeforeLoss(m_boxes, misplaced))
        return;
    const ui::WaitPointer wait;
    if (!customers::copyBeforeJob(m_values, m_boxes, u"before level copy"_s))
        return;
    chosen().run(m_database);
    accept();
}

} // namespace norvane::keys
