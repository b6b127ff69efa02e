// See ItemList.h.
#include "keys/ItemList.h"

#include "ui/FilteredList.h"
#include "ui/FormKit.h"
#include "ui/WaitPointer.h"

#include <QRadioButton>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{

ItemList makeItemList(const ItemList::Names& names, const std::shared_ptr<store::Database>& database,
                      QWidget* parent)
{
    const ItemTable& items = itemTable(names.kind);
    auto* const option = new QRadioButton(names.caption, parent);
    ui::nameControl(*option, names.option);
    auto* const model = new ui::RecordListModel(
        database, {items.table, u"primarykey"_s, items.number, u"DESCRIPTION"_s}, parent);
    QTableView* const view = ui::makeListTable(names.list, ui::spokenName(*option), model, parent);
    option->hide();
    view->hide();
    return {names.kind, option, view, model};
}

void ItemList::readIfNew() const
{
    if (model->recordCount() > 0)
        return;
    const ui::WaitPointer wait;
    model->reload();
    ui::fitFirstColumn(*view, model->lastNumber());
}

QString ItemList::numberAt(const QModelIndex& entry)
{
    return entry.siblingAtColumn(0).data().toString();
}

} // namespace norvane::keys
