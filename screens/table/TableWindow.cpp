// See TableWindow.h.
#include "screens/table/TableWindow.h"

#include "base/CustomerSettings.h"
#include "platform/RuntimeFailure.h"
#include "register/RegisterModel.h"
#include "screens/ShownUses.h"
#include "screens/table/ChoiceBar.h"
#include "screens/table/PendingPanel.h"
#include "screens/table/TableGrid.h"
#include "screens/table/TableModel.h"
#include "screens/ToolMenu.h"
#include "store/engine/ShortWait.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// At the usual font, in pixels.
constexpr QSize usualSize(1040, 540);

/// Of the screen "Mix and Match Table", too.
QString titleOf(QString caption)
{
    if (caption.endsWith(u" Table"_s))
        caption.chop(u" Table"_s.size());
    return u"Table of "_s + caption;
}

QVector<ColumnChoices> allChoices(const TableOrder& order, const store::Database& database,
                                  const TableSource& source)
{
    auto all = choicesOf(database, source, QDate::currentDate());
    if (order.unsentKeys)
        all.prepend(choiceOfUnsent(source, [look = order.unsentKeys, source] { return look(source); }));
    return all;
}

} // namespace

TableWindow::TableWindow(const TableOrder& order, const ApplicationValues& values, Boxes& boxes,
                         ColumnMemory memory, QWidget* parent)
    : QWidget(parent), m_screenFile(order.screenFile), m_databasePath(order.databasePath),
      m_caption(order.caption), m_values(values), m_boxes(boxes), m_memory(std::move(memory)),
      m_history(order.history), m_database(std::make_shared<store::Database>(order.databasePath)),
      m_model(new TableModel(
          m_database, tableSource(*m_database, ScreenReader(order.screenFile), values, order.labelOf), this)),
      m_choices(new ChoiceBar(allChoices(order, *m_database, m_model->rows().source()), this)),
      m_view(new TableGrid(*m_model, this)), m_pending(new PendingPanel(*m_model, this)),
      m_count(new QLabel(this))
{
    ui::nameControl(*this, u"TableWindow"_s);
    setWindowTitle(titleOf(order.caption) + u"[*]"_s);
    m_view->setAccessibleName(order.caption);
    ui::nameControl(*m_count, u"TableCount"_s);
    buildView();
    buildFilters();
    buildUses();
    layOut(order.tools);
    showCount();
    m_choices->box().setFocus();
}

QSize TableWindow::sizeHint() const
{
    return ui::scaled(usualSize);
}

void TableWindow::buildView()
{
    connect(m_view->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) { chooseAgain([&] { m_model->sort(column, order); }); });
    connect(m_view, &QTableView::activated, this, &TableWindow::openRecord);
    connect(m_view, &TableGrid::pasteWanted, this, &TableWindow::paste);
    connect(m_model, &TableModel::editsChanged, this, &TableWindow::rememberEdits);
    connect(m_view, &TableGrid::refused, this, &TableWindow::refuse);
    // The cell can be opened again only after the view has closed its editor.
    connect(
        m_model, &TableModel::refused, this,
        [this](const QModelIndex& index, const QString& text, const QString& why) {
            refuse(why);
            m_view->retry(index, text);
        },
        Qt::QueuedConnection);
}

void TableWindow::refuse(const QString& why)
{
    Q_EMIT noticeChanged(why);
    m_boxes.beep();
}

QPushButton* TableWindow::makeSaveButton()
{
    auto* const button = ui::makeButton(u"SaveChanges"_s, u"&Save Changes"_s, this);
    button->setEnabled(false);
    connect(m_model, &TableModel::editsChanged, button,
            [this, button] { button->setEnabled(!m_model->edits().isEmpty()); });
    connect(button, &QPushButton::clicked, this, &TableWindow::save);
    return button;
}

/// A column that is not shown still takes part in the filter.
QPushButton* TableWindow::makeColumnsButton()
{
    auto* const button = ui::makeButton(u"TableColumns"_s, u"&Columns"_s, this);
    auto* const menu = new QMenu(button);
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
    button->setMenu(menu);
    return button;
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

/// About the current record, and about all.
QHBoxLayout* TableWindow::makeRecordRow()
{
    auto* const row = new QHBoxLayout;
    if (m_uses != nullptr)
        row->addWidget(m_uses);
    row->addStretch();
    row->addWidget(m_count);
    return row;
}

void TableWindow::layOut(const TableTools& tools)
{
    auto* const exit = ui::makeButton(u"ExitTable"_s, u"E&xit"_s, this);
    connect(exit, &QPushButton::clicked, this, &QWidget::close);
    auto* const setField = ui::makeButton(u"SetField"_s, u"Set a &Field..."_s, this);
    connect(setField, &QPushButton::clicked, this, &TableWindow::setField);
    QHBoxLayout* const buttons = ui::makeButtonRow({makeSaveButton(), exit}, {makeColumnsButton(), setField});
    if (QPushButton* const more = makeMoreButton(tools, *this))
        buttons->insertWidget(2, more);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(ui::spacing::controlGap);
    column->addWidget(m_choices);
    column->addWidget(m_view, 1);
    column->addLayout(makeRecordRow());
    column->addWidget(m_pending);
    column->addLayout(buttons);
}

void TableWindow::buildFilters()
{
    m_choices->box().setList(m_view);
    m_choices->box().installEventFilter(this);
    connect(&m_choices->box(), &QLineEdit::textChanged, this,
            [this](const QString& text) { chooseAgain([&] { m_model->setFilter(text); }); });
    connect(&m_choices->box(), &QLineEdit::returnPressed, this,
            [this] { openRecord(m_view->currentIndex()); });
    connect(m_choices, &ChoiceBar::choicesChanged, this,
            [this] { chooseAgain([&] { m_model->setChoices(m_choices->chosen()); }); });
}

bool TableWindow::eventFilter(QObject* box, QEvent* event)
{
    const bool isUndo = event->type() == QEvent::ShortcutOverride &&
                        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Undo);
    return (isUndo && !m_choices->box().isUndoAvailable()) || QWidget::eventFilter(box, event);
}

void TableWindow::buildUses()
{
    if (!canBeUsed(source().table))
        return;
    m_uses = new ui::UsesButton([this](int atMost) { return shownUses(readUses(atMost)); }, this);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, m_uses,
            &ui::UsesButton::recount);
    // No row may be left, and then none becomes the current one.
    connect(m_model, &QAbstractItemModel::modelReset, m_uses, &ui::UsesButton::recount);
    connect(new QShortcut(QKeySequence(u"Ctrl+R"_s), this, {}, {}, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, m_uses, &QPushButton::click);
}

std::optional<KeyUses> TableWindow::readUses(int atMost)
{
    const store::ShortWait wait(*m_database);
    try {
        return usesOfKey(*m_database, source().table, store::Value::text(currentKey()),
                         keysOfLevel(registerModelByText(m_values).family), atMost);
    } catch (const RuntimeFailure&) {
        return std::nullopt; // the button says so; the table can be used without them
    }
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

const TableSource& TableWindow::source() const
{
    return m_model->rows().source();
}

std::vector<int> TableWindow::shownColumns() const
{
    std::vector<int> columns;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (!m_view->isColumnHidden(column))
            columns.push_back(column);
    }
    return columns;
}

bool TableWindow::hasEdits() const
{
    return !m_model->edits().isEmpty();
}

QString TableWindow::currentKey() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? m_model->rows().key(current.row()).toText() : QString();
}

std::vector<int> TableWindow::allRows() const
{
    std::vector<int> rows(static_cast<std::size_t>(m_model->rowCount()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

QStringList TableWindow::keysOf(const std::vector<int>& rows) const
{
    QStringList keys;
    for (const int row : rows)
        keys += m_model->rows().key(row).toText();
    return keys;
}

QStringList TableWindow::chosenKeys() const
{
    return keysOf(m_view->chosenRows());
}

QStringList TableWindow::shownKeys() const
{
    return keysOf(allRows());
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
