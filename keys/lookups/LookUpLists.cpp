// Option buttons, filter and lists; see LookUpLists.h.
#include "keys/lookups/LookUpLists.h"

#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/FormKit.h"

#include <QButtonGroup>
#include <QLabel>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int listWidth = 300;

} // namespace

LookUpLists::LookUpLists(const std::shared_ptr<store::Database>& database, QWidget* parent)
    : QWidget(parent), m_options(new QButtonGroup(this)), m_filter(new ui::FilterBox(u"ListFilter"_s, this)),
      m_hint(new QLabel(u"What is ticked under Allow is listed here."_s, this))
{
    setMinimumWidth(ui::scaled(listWidth));
    ui::nameControl(*m_hint, u"ListHint"_s);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setEnabled(false);
    for (const ItemList::Names& names :
         {ItemList::Names{ItemKind::Plu, "plucode"_L1, "PLU Code"_L1, "plulist"_L1},
          ItemList::Names{ItemKind::Function, "function1"_L1, "Function Keys"_L1, "functionlist"_L1}}) {
        m_lists.push_back(makeItemList(names, database, this));
        m_options->addButton(m_lists.back().option);
        connectList(m_lists.back());
    }
    connect(m_filter, &QLineEdit::textChanged, this, &LookUpLists::setFilter);
    connect(m_filter, &QLineEdit::returnPressed, this, &LookUpLists::chooseCurrentRow);
    layOut();
    follow();
}

void LookUpLists::connectList(const ItemList& list)
{
    const ItemKind kind = list.kind;
    connect(list.option, &QRadioButton::clicked, this, [this, kind] { showOnly(kind); });
    connect(list.view, &QTableView::clicked, this,
            [this, kind](const QModelIndex& index) { Q_EMIT clicked(kind, ItemList::numberAt(index)); });
    connect(list.view, &QTableView::activated, this,
            [this, kind](const QModelIndex& index) { Q_EMIT entered(kind, ItemList::numberAt(index)); });
}

void LookUpLists::layOut()
{
    auto* const options = new QHBoxLayout;
    options->setSpacing(ui::spacing::groupGap);
    for (const ItemList& list : m_lists)
        options->addWidget(list.option);
    options->addStretch();
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(options);
    column->addWidget(m_filter);
    for (const ItemList& list : m_lists)
        column->addWidget(list.view, 1);
    column->addWidget(m_hint, 1);
}

bool LookUpLists::isShown(const ItemList& list) const
{
    return list.view->isVisibleTo(this);
}

void LookUpLists::reach(ItemKind kind, bool reachable)
{
    const auto list = std::ranges::find(m_lists, kind, &ItemList::kind);
    list->option->setVisible(reachable);
    list->view->setVisible(reachable);
    follow();
}

void LookUpLists::showOnly(ItemKind kind)
{
    for (const ItemList& list : m_lists)
        list.view->setVisible(list.kind == kind);
    follow();
}

/// An option is chosen while its list is the only one.
void LookUpLists::follow()
{
    const auto isShownHere = [this](const ItemList& list) {
        return isShown(list);
    };
    const auto first = std::ranges::find_if(m_lists, isShownHere);
    const auto shown = std::ranges::count_if(m_lists, isShownHere);
    m_options->setExclusive(false);
    for (const ItemList& list : m_lists) {
        list.option->setChecked(shown == 1 && isShown(list));
        if (isShown(list))
            list.readIfNew();
    }
    m_options->setExclusive(true);
    m_filter->setVisible(shown > 0);
    m_hint->setVisible(shown == 0);
    m_filter->setList(shown > 0 ? first->view : nullptr);
}

/// Only one row is selected in both lists.
void LookUpLists::setFilter(const QString& text)
{
    bool isSelected = text.isEmpty();
    for (const ItemList& list : m_lists) {
        list.model->setFilter(text);
        if (isSelected || !isShown(list) || list.model->rowCount() == 0)
            continue;
        list.view->selectRow(0);
        isSelected = true;
    }
}

/// Of the lists shown, the first that has one.
void LookUpLists::chooseCurrentRow()
{
    const auto list = std::ranges::find_if(m_lists, [this](const ItemList& each) {
        return isShown(each) && each.view->currentIndex().isValid();
    });
    if (list != m_lists.end())
        Q_EMIT entered(list->kind, ItemList::numberAt(list->view->currentIndex()));
}

void LookUpLists::enter()
{
    if (m_filter->isVisibleTo(this)) {
        m_filter->setFocus();
        m_filter->selectAll();
    }
}

bool LookUpLists::leave()
{
    if (!isAncestorOf(window()->focusWidget()))
        return false;
    m_filter->clear();
    return true;
}

} // namespace norvane::keys
