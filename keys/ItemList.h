// A list of the items that keys and look-ups can hold.
#pragma once

#include "keys/KeyItems.h"
#include "ui/RecordListModel.h"

#include <memory>

class QModelIndex;
class QRadioButton;
class QTableView;
class QWidget;

namespace norvane::keys
{

/// One of several lists on a form, and the option button that shows it.
struct ItemList {
    /// Control names and caption.
    struct Names {
        ItemKind kind;
        QLatin1StringView option;
        QLatin1StringView caption;
        QLatin1StringView list;
    };

    ItemKind kind = ItemKind::Function;
    QRadioButton* option = nullptr;
    QTableView* view = nullptr;
    ui::RecordListModel* model = nullptr;

    /// Reads the table when the list is first shown: a long one takes its time.
    void readIfNew() const;
    /// Of an entry, as the list shows it.
    [[nodiscard]] static QString numberAt(const QModelIndex& entry);
};

/// Both controls are hidden at first; @p parent owns and places them.
[[nodiscard]] ItemList makeItemList(const ItemList::Names& names,
                                    const std::shared_ptr<store::Database>& database, QWidget* parent);

} // namespace norvane::keys
