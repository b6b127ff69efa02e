// See KeyListPanel.h.
#include "keys/KeyListPanel.h"

#include "store/RecordListModel.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/WaitPointer.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

enum class NumberColumn { Hidden, Shown };

/// One of the lists and the button that shows it.
struct ListRow {
    ItemKind kind;
    QLatin1StringView option;
    QLatin1StringView caption;
    QLatin1StringView list;
    QLatin1StringView index; ///< its order
    NumberColumn number;
};

// clang-format off
constexpr ListRow rows[] = {
    {ItemKind::Function, "function1"_L1,   "Function "_L1, "functionlist"_L1, "primarykey"_L1, NumberColumn::Hidden},
    {ItemKind::Plu,      "plucode"_L1,     "PLU "_L1,      "plulist"_L1,      "plunumber"_L1,  NumberColumn::Shown},
    {ItemKind::LookUp,   "WLUfunction"_L1, "WLU"_L1,       "wlulist"_L1,      "primarykey"_L1, NumberColumn::Shown},
};
// clang-format on

constexpr int panelPixels = 260;

const ListRow& rowOf(ItemKind kind)
{
    return rows[static_cast<std::size_t>(kind)];
}

} // namespace

KeyListPanel::KeyListPanel(const std::shared_ptr<store::Database>& database, QWidget* parent)
    : QWidget(parent), m_filter(new ui::FilterBox(u"ListFilter"_s, this)), m_count(new QLabel(this))
{
    ui::nameControl(*m_count, u"ListCount"_s);
    setFixedWidth(panelPixels);
    for (const ListRow& row : rows)
        build(row.kind, database);
    connect(m_filter, &QLineEdit::textChanged, this, &KeyListPanel::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this,
            [this] { choose(shownList().table->currentIndex(), true); });
    layOut();
    list(ItemKind::Function).option->setChecked(true);
}

void KeyListPanel::build(ItemKind kind, const std::shared_ptr<store::Database>& database)
{
    const ListRow& row = rowOf(kind);
    const ItemTable& table = itemTable(kind);
    List& built = list(kind);
    built.option = new QRadioButton(row.caption, this);
    ui::nameControl(*built.option, row.option);
    connect(built.option, &QRadioButton::toggled, this, [this, kind](bool on) {
        if (on)
            show(kind);
    });
    built.model =
        new store::RecordListModel(database, {table.table, row.index, table.number, u"DESCRIPTION"_s}, this);
    built.table = ui::makeListTable(row.list, built.model, this);
    built.table->setColumnHidden(0, row.number == NumberColumn::Hidden);
    built.table->installEventFilter(this);
    built.table->hide();
    connect(built.table, &QTableView::clicked, this,
            [this](const QModelIndex& index) { choose(index, false); });
    connect(built.table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, kind](const QModelIndex& current) {
                if (current.isValid())
                    Q_EMIT looked(kind, current.siblingAtColumn(0).data().toString());
            });
}

void KeyListPanel::layOut()
{
    auto* const options = new QHBoxLayout;
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(options);
    column->addWidget(m_filter);
    for (const List& each : m_lists) {
        options->addWidget(each.option);
        column->addWidget(each.table, 1);
    }
    options->addStretch();
    column->addWidget(m_count);
    setTabOrder(m_lists.back().option, m_filter);
    for (const List& each : m_lists)
        setTabOrder(m_filter, each.table);
}

void KeyListPanel::show(ItemKind kind)
{
    m_kind = kind;
    for (const List& each : m_lists)
        each.table->setVisible(each.table == shownList().table);
    m_filter->setList(shownList().table);
    if (shownList().model->recordCount() == 0) {
        const ui::WaitPointer wait;
        shownList().model->reload();
        ui::fitFirstColumn(*shownList().table, shownList().model->lastNumber());
    }
    setFilter(m_filter->text());
}

void KeyListPanel::setFilter(const QString& part)
{
    shownList().model->setFilter(part);
    if (!part.isEmpty())
        shownList().table->selectRow(0);
    tellCount();
}

void KeyListPanel::tellCount()
{
    const store::RecordListModel& model = *shownList().model;
    m_count->setText(u"%1 of %2"_s.arg(model.rowCount()).arg(model.recordCount()));
}

void KeyListPanel::enterList()
{
    QTableView& table = *shownList().table;
    if (!table.currentIndex().isValid())
        table.selectRow(0);
    table.setFocus();
}

void KeyListPanel::choose(const QModelIndex& index, bool byEnter)
{
    if (index.isValid())
        Q_EMIT chosen(m_kind, index.siblingAtColumn(0).data().toString(), byEnter);
}

void KeyListPanel::clearFilter()
{
    m_filter->clear();
}

/// Enter chooses; what is typed in a list filters it anew.
bool KeyListPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        choose(shownList().table->currentIndex(), true);
        return true;
    }
    const bool isCommand = key->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier);
    if (isCommand || key->text().isEmpty() || !key->text().front().isPrint())
        return QWidget::eventFilter(watched, event);
    m_filter->setFocus();
    m_filter->selectAll();
    QCoreApplication::sendEvent(m_filter, event);
    return true;
}

} // namespace norvane::keys
