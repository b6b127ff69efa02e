// See FilteredList.h.
#include "ui/FilteredList.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

constexpr int rowHeight = 22;
constexpr int cellPadding = 16;

bool walksRows(int key)
{
    return key == Qt::Key_Down || key == Qt::Key_Up || key == Qt::Key_PageDown || key == Qt::Key_PageUp;
}

} // namespace

FilterBox::FilterBox(const QString& name, QWidget* parent) : QLineEdit(parent)
{
    const QString hint = u"Part of number or text"_s;
    nameControl(*this, name, hint);
    setPlaceholderText(hint);
    setClearButtonEnabled(true);
}

void FilterBox::focusInEvent(QFocusEvent* event)
{
    Q_EMIT entered();
    QLineEdit::focusInEvent(event);
}

void FilterBox::keyPressEvent(QKeyEvent* event)
{
    if (m_list != nullptr && walksRows(event->key())) {
        QCoreApplication::sendEvent(m_list, event);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

QTableView* makeListTable(const QString& name, const QString& spoken, QAbstractItemModel* model,
                          QWidget* parent)
{
    auto* const table = new QTableView(parent);
    nameControl(*table, name, spoken);
    table->setModel(model);
    table->setShowGrid(false);
    table->setTabKeyNavigation(false);
    table->setSelectionBehavior(QTableView::SelectRows);
    table->setSelectionMode(QTableView::SingleSelection);
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setMinimumSectionSize(scaled(rowHeight));
    table->verticalHeader()->setDefaultSectionSize(scaled(rowHeight));
    return table;
}

void fitFirstColumn(QTableView& list, const QString& longest)
{
    QFont bold = list.font();
    bold.setBold(true);
    list.setColumnWidth(0, QFontMetrics(bold).horizontalAdvance(longest) + cellPadding);
}

} // namespace norvane::ui
