// See KeyListPanel.h.
#include "keys/layout/KeyListPanel.h"

#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/RecordListModel.h"

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

/// In the order of ItemKind.
constexpr ItemList::Names rows[] = {
    {ItemKind::Function, "function1"_L1, "Function "_L1, "functionlist"_L1},
    {ItemKind::Plu, "plucode"_L1, "PLU "_L1, "plulist"_L1},
    {ItemKind::LookUp, "WLUfunction"_L1, "WLU"_L1, "wlulist"_L1},
};

constexpr int panelPixels = 260;

} // namespace

KeyListPanel::KeyListPanel(const std::shared_ptr<store::Database>& database, QWidget* parent)
    : QWidget(parent), m_filter(new ui::FilterBox(u"ListFilter"_s, this)), m_count(new QLabel(this))
{
    ui::nameControl(*m_count, u"ListCount"_s);
    setFixedWidth(ui::scaled(panelPixels));
    for (const ItemList::Names& names : rows) {
        list(names.kind) = makeItemList(names, database, this);
        connectList(names.kind);
    }
    connect(m_filter, &QLineEdit::textChanged, this, &KeyListPanel::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this,
            [this] { choose(shownList().view->currentIndex(), true); });
    layOut();
    list(ItemKind::Function).option->setChecked(true);
}

void KeyListPanel::connectList(ItemKind kind)
{
    const ItemList& connected = list(kind);
    connected.option->show();
    connected.view->installEventFilter(this);
    connect(connected.option, &QRadioButton::toggled, this, [this, kind](bool on) {
        if (on)
            show(kind);
    });
    connect(connected.view, &QTableView::clicked, this,
            [this](const QModelIndex& index) { choose(index, false); });
    connect(connected.view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this, kind](const QModelIndex& current) {
                if (current.isValid())
                    Q_EMIT looked(kind, ItemList::numberAt(current));
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
    for (const ItemList& each : m_lists) {
        options->addWidget(each.option);
        column->addWidget(each.view, 1);
    }
    options->addStretch();
    column->addWidget(m_count);
    setTabOrder(m_lists.back().option, m_filter);
    for (const ItemList& each : m_lists)
        setTabOrder(m_filter, each.view);
}

void KeyListPanel::show(ItemKind kind)
{
    m_kind = kind;
    for (const ItemList& each : m_lists)
        each.view->setVisible(each.view == shownList().view);
    m_filter->setList(shownList().view);
    shownList().readIfNew();
    setFilter(m_filter->text());
}

void KeyListPanel::setFilter(const QString& part)
{
    shownList().model->setFilter(part);
    if (!part.isEmpty())
        shownList().view->selectRow(0);
    showCount();
}

void KeyListPanel::showCount()
{
    const ui::RecordListModel& model = *shownList().model;
    m_count->setText(u"%1 of %2"_s.arg(model.rowCount()).arg(model.recordCount()));
}

void KeyListPanel::enterList()
{
    QTableView& view = *shownList().view;
    if (!view.currentIndex().isValid())
        view.selectRow(0);
    view.setFocus();
}

void KeyListPanel::choose(const QModelIndex& index, bool byEnter)
{
    if (index.isValid())
        Q_EMIT chosen(m_kind, ItemList::numberAt(index), byEnter);
}

void KeyListPanel::clearFilter()
{
    m_filter->clear();
}

/// Enter chooses; what is typed in a list filters it again.
bool KeyListPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        choose(shownList().view->currentIndex(), true);
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
