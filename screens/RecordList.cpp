// See RecordList.h.
#include "screens/RecordList.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr int handlePixels = 16;
/// Width used if the main window has no more room beside the screen. At the usual font, in pixels.
constexpr int narrowestPanel = 160;

int panelPixels()
{
    return ui::scaled(260);
}

/// The record on the screen is highlighted even if another row is chosen.
class MarkingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->font.setBold(index.data(ui::RecordListModel::MarkedRole).toBool());
    }
};

} // namespace

RecordList::RecordList(const std::shared_ptr<store::Database>& database, const ui::RecordListSource& source,
                       QWidget* parent)
    : QWidget(parent), m_model(new ui::RecordListModel(database, source, this)),
      m_handle(new QToolButton(this))
{
    ui::nameControl(*this, u"RecordList"_s);
    buildHandle();
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_handle);
}

void RecordList::buildHandle()
{
    ui::nameControl(*m_handle, u"ListHandle"_s, u"List of records"_s);
    m_handle->setToolTip(u"List of records (Ctrl+L)"_s);
    m_handle->setArrowType(Qt::LeftArrow);
    m_handle->setAutoRaise(true);
    m_handle->setFocusPolicy(Qt::NoFocus);
    m_handle->setFixedWidth(handlePixels);
    m_handle->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(m_handle, &QToolButton::clicked, this, &RecordList::toggle);
}

/// Not before the list is opened: most screens are used without it and open faster so.
void RecordList::buildPanel()
{
    m_panel = new QWidget(this);
    m_panel->hide();
    layout()->addWidget(m_panel);
    buildFilter();
    buildTable();
    m_count = new QLabel(m_panel);
    ui::nameControl(*m_count, u"ListCount"_s);
    auto* const column = new QVBoxLayout(m_panel);
    column->setContentsMargins(0, ui::spacing::controlGap, ui::spacing::controlGap, ui::spacing::controlGap);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_filter);
    column->addWidget(m_table, 1);
    column->addWidget(m_count);
}

void RecordList::buildFilter()
{
    m_filter = new ui::FilterBox(u"ListFilter"_s, m_panel);
    // Other screens may have changed the table since it was read.
    connect(m_filter, &ui::FilterBox::entered, this, &RecordList::reload);
    connect(m_filter, &QLineEdit::textChanged, this, &RecordList::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this, [this] { choose(m_table->currentIndex()); });
}

void RecordList::buildTable()
{
    m_table = ui::makeListTable(u"ListTable"_s, u"List of records"_s, m_model, m_panel);
    m_table->setItemDelegate(new MarkingDelegate(m_table));
    m_filter->setList(m_table);
    connect(m_table, &QTableView::clicked, this, &RecordList::choose);
    connect(m_table, &QTableView::activated, this, &RecordList::choose);
}

int RecordList::handleWidth() const
{
    return handlePixels;
}

bool RecordList::isOpen() const
{
    return m_panel != nullptr && !m_panel->isHidden();
}

void RecordList::toggle()
{
    if (isOpen()) {
        fold();
    } else {
        unfold();
    }
}

/// Asks for room first, and takes what it gets: a form that is too narrow grows by itself, but not by the
/// right width.
void RecordList::unfold()
{
    Q_EMIT widened(panelPixels());
    if (m_panel == nullptr)
        buildPanel();
    const QWidget& form = *parentWidget();
    const int room = form.width() - form.minimumSizeHint().width();
    m_panel->setFixedWidth(qBound(ui::scaled(narrowestPanel), room, panelPixels()));
    m_panel->show();
    m_handle->setArrowType(Qt::RightArrow);
    m_filter->setFocus();  // reads the records, unless the window is not active
    m_filter->selectAll(); // typing replaces the former filter
    if (m_model->recordCount() == 0)
        reload();
    // How many rows the table has room for is known only when it has its place.
    QMetaObject::invokeMethod(this, &RecordList::showMarked, Qt::QueuedConnection);
}

void RecordList::fold()
{
    m_panel->hide();
    m_handle->setArrowType(Qt::LeftArrow);
    layout()->activate(); // so that the form knows its new least width already
    Q_EMIT widened(-panelPixels());
}

void RecordList::reload()
{
    if (!isOpen())
        return;
    m_model->reload();
    fitNumbers();
    showMarked();
    tellCount();
}

void RecordList::mark(const QString& number)
{
    m_model->mark(number);
    if (m_panel != nullptr)
        showMarked();
}

void RecordList::setFilter(const QString& text)
{
    m_model->setFilter(text);
    if (text.isEmpty()) {
        showMarked();
    } else {
        m_table->selectRow(0);
    }
    tellCount();
    ui::announce(*m_count, m_count->text());
}

void RecordList::showMarked()
{
    if (m_model->markedRow() >= 0) {
        m_table->selectRow(m_model->markedRow());
        m_table->scrollTo(m_table->currentIndex());
    } else {
        m_table->clearSelection();
    }
}

void RecordList::tellCount()
{
    m_count->setText(u"%1 of %2"_s.arg(m_model->rowCount()).arg(m_model->recordCount()));
}

/// The last number is the longest, or nearly so.
void RecordList::fitNumbers()
{
    ui::fitFirstColumn(*m_table, m_model->lastNumber());
}

void RecordList::choose(const QModelIndex& index)
{
    if (!index.isValid() || index.row() == m_model->markedRow())
        return;
    Q_EMIT chosen(index.siblingAtColumn(0).data().toString());
}

} // namespace norvane::screens
