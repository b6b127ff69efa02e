// See KeyListPanel.h.
#include "keys/layout/KeyListPanel.h"

#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/RecordListModel.h"
#include "ui/WaitPointer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

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

/// First and last row of each range that is selected, in the order of the rows.
std::vector<std::pair<int, int>> rowRanges(const QTableView& view)
{
    std::vector<std::pair<int, int>> ranges;
    for (const QItemSelectionRange& range : view.selectionModel()->selection())
        ranges.emplace_back(range.top(), range.bottom());
    std::ranges::sort(ranges);
    return ranges;
}

} // namespace

KeyListPanel::KeyListPanel(const std::shared_ptr<store::Database>& database, QWidget* parent)
    : QWidget(parent), m_database(database), m_filter(new ui::FilterBox(u"ListFilter"_s, this)),
      m_count(new QLabel(this)), m_choice(new QComboBox(this)),
      m_next(new QCheckBox(u"&Next key after each"_s, this))
{
    ui::nameControl(*m_count, u"ListCount"_s);
    ui::nameControl(*m_choice, u"ListChoice"_s, u"Which PLUs"_s);
    ui::nameControl(*m_next, u"NextKey"_s);
    m_next->setToolTip(u"Goes to the next key once an entry was put on one"_s);
    m_filter->setToolTip(u"1001..1024 shows the PLUs with these numbers"_s);
    m_choice->addItem(u"All PLUs"_s);
    m_choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(m_choice, &QComboBox::currentIndexChanged, this, &KeyListPanel::choosePlus);
    setFixedWidth(ui::scaled(panelPixels));
    for (const ItemList::Names& names : rows) {
        list(names.kind) = makeItemList(names, database, this);
        connectList(names.kind);
    }
    connect(m_filter, &QLineEdit::textChanged, this, &KeyListPanel::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this, &KeyListPanel::enter);
    layOut();
    list(ItemKind::Function).option->setChecked(true);
}

void KeyListPanel::connectList(ItemKind kind)
{
    const ItemList& connected = list(kind);
    connected.option->show();
    connected.view->installEventFilter(this);
    connected.view->setSelectionMode(QTableView::ExtendedSelection);
    connect(connected.option, &QRadioButton::toggled, this, [this, kind](bool on) {
        if (on)
            show(kind);
    });
    connect(connected.view, &QTableView::clicked, this, &KeyListPanel::clicked);
    connect(connected.view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KeyListPanel::marksChanged);
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
    column->addWidget(m_choice);
    column->addWidget(m_filter);
    for (const ItemList& each : m_lists) {
        options->addWidget(each.option);
        column->addWidget(each.view, 1);
    }
    options->addStretch();
    auto* const below = new QHBoxLayout;
    below->addWidget(m_count, 1);
    below->addWidget(m_next);
    column->addLayout(below);
    setTabOrder(m_lists.back().option, m_choice);
    setTabOrder(m_choice, m_filter);
    QWidget* before = m_filter;
    for (const ItemList& each : m_lists) {
        setTabOrder(before, each.view);
        before = each.view;
    }
    setTabOrder(before, m_next);
}

void KeyListPanel::show(ItemKind kind)
{
    m_kind = kind;
    for (const ItemList& each : m_lists)
        each.view->setVisible(each.view == shownList().view);
    m_filter->setList(shownList().view);
    shownList().readIfNew();
    m_choice->setVisible(kind == ItemKind::Plu);
    if (kind == ItemKind::Plu && m_choices.empty())
        readChoices();
    setFilter(m_filter->text());
}

void KeyListPanel::readChoices()
{
    m_choices = pluChoices(*m_database, QDate::currentDate());
    const QSignalBlocker quiet(m_choice);
    for (const PluChoice& choice : m_choices)
        m_choice->addItem(choice.name);
}

/// Two numbers in the box come before a chosen group: they name every PLU themselves.
void KeyListPanel::choosePlus()
{
    const ui::WaitPointer wait;
    std::optional<PluChoice> choice = pluRange(m_filter->text());
    m_isRange = choice.has_value();
    if (const int index = m_choice->currentIndex(); !choice && index > 0)
        choice = m_choices.at(static_cast<std::size_t>(index) - 1);
    list(ItemKind::Plu)
        .model->showOnly(choice ? std::optional(pluNumbers(*m_database, *choice)) : std::nullopt);
    list(ItemKind::Plu).model->setFilter(m_isRange ? QString() : m_filter->text());
    markAll();
    showCount();
}

void KeyListPanel::setFilter(const QString& part)
{
    if (m_kind == ItemKind::Plu && (m_isRange || pluRange(part))) {
        choosePlus();
        return;
    }
    shownList().model->setFilter(part);
    if (!part.isEmpty())
        shownList().view->selectRow(0);
    markAll();
    showCount();
}

/// The choice of the rows is what the user wants then; without one it would be a whole table.
void KeyListPanel::markAll()
{
    const bool isChosen =
        !m_filter->text().isEmpty() || (m_kind == ItemKind::Plu && m_choice->currentIndex() > 0);
    if (m_isMarking && isChosen)
        shownList().view->selectAll();
    Q_EMIT marksChanged(); // a list that is read again loses its marks silently
}

void KeyListPanel::setMarking(bool isMarking)
{
    m_isMarking = isMarking;
    if (!isMarking) {
        shownList().view->clearSelection(); // the next Enter is for one entry again
    } else if (shownList().view->selectionModel()->selectedRows().size() < 2) {
        markAll();
    }
}

MarkedItems KeyListPanel::marked(qsizetype most) const
{
    MarkedItems items{m_kind, {}, 0};
    const QAbstractItemModel& model = *shownList().model;
    for (const auto& [top, bottom] : rowRanges(*shownList().view)) {
        const auto listed = std::min<qsizetype>(bottom - top + 1, most - items.numbers.size());
        for (qsizetype row = 0; row < listed; ++row)
            items.numbers += ItemList::numberAt(model.index(top + static_cast<int>(row), 0));
        items.further += bottom - top + 1 - listed;
    }
    return items;
}

bool KeyListPanel::goesOn() const
{
    return m_next->isChecked();
}

void KeyListPanel::showCount()
{
    const ui::RecordListModel& model = *shownList().model;
    m_count->setText(u"%1 of %2"_s.arg(model.rowCount()).arg(model.recordCount()));
}

void KeyListPanel::enterList()
{
    QTableView& view = *shownList().view;
    if (!view.currentIndex().isValid()) {
        // The keyboard begins at the first row, which is not a mark for a fill yet.
        view.selectionModel()->setCurrentIndex(view.model()->index(0, 0),
                                               m_isMarking ? QItemSelectionModel::NoUpdate
                                                           : QItemSelectionModel::ClearAndSelect |
                                                                 QItemSelectionModel::Rows);
    }
    view.setFocus();
}

void KeyListPanel::choose(const QModelIndex& index, bool byEnter)
{
    if (index.isValid())
        Q_EMIT chosen(m_kind, ItemList::numberAt(index), byEnter);
}

void KeyListPanel::clicked(const QModelIndex& index)
{
    const auto marking = QGuiApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier);
    if (!m_isMarking && marking == Qt::NoModifier)
        choose(index, false);
}

void KeyListPanel::enter()
{
    QTableView& view = *shownList().view;
    if (m_isMarking || view.selectionModel()->selectedRows().size() > 1) {
        Q_EMIT marksEntered();
    } else {
        choose(view.currentIndex(), true);
    }
    if (goesOn())
        m_filter->selectAll();
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
        enter();
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
