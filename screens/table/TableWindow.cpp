// See TableWindow.h.
#include "screens/table/TableWindow.h"

#include "screens/table/ChoiceBar.h"
#include "screens/table/TableModel.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Pixels at the usual font.
constexpr QSize usualSize(1040, 540);
constexpr int rowPixels = 22;
constexpr int widestColumn = 220;
constexpr int columnPadding = 14; ///< the marked record is shown in bold
/// Rows by which columns are fitted.
constexpr int rowsToFit = 40;

std::shared_ptr<store::Database> opened(const QString& path)
{
    return std::make_shared<store::Database>(path);
}

void fitColumns(QTableView& view)
{
    view.resizeColumnsToContents();
    for (int column = 0; column < view.model()->columnCount(); ++column)
        view.setColumnWidth(column, view.columnWidth(column) + ui::scaled(columnPadding));
}

} // namespace

TableWindow::TableWindow(const TableOrder& order, const ApplicationValues& values, ColumnMemory memory,
                         QWidget* parent)
    : QWidget(parent), m_screenFile(order.screenFile), m_databasePath(order.databasePath),
      m_memory(std::move(memory)), m_database(opened(order.databasePath)),
      m_model(new TableModel(
          m_database, tableSource(*m_database, ScreenReader(order.screenFile), values, order.labelOf), this)),
      m_choices(new ChoiceBar(choicesOf(*m_database, m_model->rows().source(), QDate::currentDate()), this)),
      m_view(makeView()), m_count(new QLabel(this))
{
    ui::nameControl(*this, u"TableWindow"_s);
    setWindowTitle(u"Table of %1"_s.arg(order.caption));
    m_view->setAccessibleName(windowTitle());
    ui::nameControl(*m_count, u"TableCount"_s);
    auto* const columns = ui::makeButton(u"TableColumns"_s, u"&Columns"_s, this);
    buildColumnsMenu(*columns);
    layOut(columns);
    showCount();
}

QSize TableWindow::sizeHint() const
{
    return ui::scaled(usualSize);
}

QTableView* TableWindow::makeView()
{
    auto* const view = new QTableView(this);
    ui::nameControl(*view, u"TableView"_s);
    view->setModel(m_model);
    view->setAlternatingRowColors(true);
    view->setTabKeyNavigation(false);
    view->setEditTriggers(QTableView::NoEditTriggers);
    view->setHorizontalScrollMode(QTableView::ScrollPerPixel);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->verticalHeader()->setMinimumSectionSize(ui::scaled(rowPixels));
    view->verticalHeader()->setDefaultSectionSize(ui::scaled(rowPixels));
    QHeaderView& header = *view->horizontalHeader();
    header.setHighlightSections(false);
    header.setMaximumSectionSize(ui::scaled(widestColumn));
    header.setResizeContentsPrecision(rowsToFit);
    header.setSortIndicatorClearable(true);
    header.setSortIndicator(-1, Qt::AscendingOrder);
    fitColumns(*view);
    connect(&header, &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) { chooseAgain([&] { m_model->sort(column, order); }); });
    view->horizontalHeader()->setSectionsClickable(true);
    view->horizontalHeader()->setSortIndicatorShown(true);
    connect(view, &QTableView::activated, this, &TableWindow::openRecord);
    return view;
}

/// A column that is not shown still takes part in the filter.
void TableWindow::buildColumnsMenu(QPushButton& button)
{
    auto* const menu = new QMenu(&button);
    const QStringList hidden = m_memory.hidden(m_screenFile);
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const TableColumn& shown = m_model->column(column);
        QAction* const action = menu->addAction(QString(shown.label).replace(u'&', u"&&"_s));
        action->setObjectName(u"Show"_s + shown.field.name);
        action->setCheckable(true);
        action->setChecked(shown.isKey || !hidden.contains(shown.field.name));
        action->setEnabled(!shown.isKey);
        m_view->setColumnHidden(column, !action->isChecked());
        connect(action, &QAction::toggled, this, [this, column](bool on) { showColumn(column, on); });
    }
    button.setMenu(menu);
}

void TableWindow::showColumn(int column, bool isShown)
{
    m_view->setColumnHidden(column, !isShown);
    QStringList hidden;
    for (int other = 0; other < m_model->columnCount(); ++other) {
        if (m_view->isColumnHidden(other))
            hidden += m_model->column(other).field.name;
    }
    m_memory.keepHidden(m_screenFile, hidden);
}

void TableWindow::layOut(QPushButton* columns)
{
    auto* const exit = ui::makeButton(u"ExitTable"_s, u"E&xit"_s, this);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    QHBoxLayout* const buttons = ui::makeButtonRow({exit}, {columns});
    buttons->insertWidget(1, m_count);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_choices);
    column->addWidget(m_view, 1);
    column->addLayout(buttons);
    m_choices->box().setList(m_view);
    connect(&m_choices->box(), &QLineEdit::textChanged, this,
            [this](const QString& text) { chooseAgain([&] { m_model->setFilter(text); }); });
    connect(&m_choices->box(), &QLineEdit::returnPressed, this,
            [this] { openRecord(m_view->currentIndex()); });
    connect(m_choices, &ChoiceBar::choicesChanged, this,
            [this] { chooseAgain([&] { m_model->setChoices(m_choices->chosen()); }); });
    m_choices->box().setFocus();
}

/// Changes which rows are shown, or their order; the current record remains the current one if it is still
/// shown.
void TableWindow::chooseAgain(const std::function<void()>& change)
{
    const QModelIndex current = m_view->currentIndex();
    const qint64 record = current.isValid() ? m_model->rows().rowId(current.row()) : 0;
    change();
    const int row = qMax(0, m_model->rows().rowOf(record));
    if (current.isValid() || m_model->rowCount() > 0)
        m_view->setCurrentIndex(m_model->index(row, qMax(0, current.column())));
    showCount();
}

void TableWindow::showCount()
{
    const TableRows& rows = m_model->rows();
    m_count->setText(rows.size() == rows.total() ? u"%1 records"_s.arg(rows.total())
                                                 : u"%1 of %2 records"_s.arg(rows.size()).arg(rows.total()));
    ui::announce(*m_count, m_count->text());
}

void TableWindow::mark(const QString& key)
{
    if (key != m_model->markedKey())
        goTo(key);
}

void TableWindow::goTo(const QString& key)
{
    m_model->mark(key);
    if (const int row = m_model->markedRow(); row >= 0)
        m_view->setCurrentIndex(m_model->index(row, qMax(0, m_view->currentIndex().column())));
}

void TableWindow::refresh()
{
    if (m_model->rows().isOutdated())
        chooseAgain([this] { m_model->reload(); });
}

void TableWindow::openRecord(const QModelIndex& index)
{
    if (index.isValid())
        Q_EMIT recordWanted(m_model->rows().key(index.row()).toText());
}

} // namespace norvane::screens
