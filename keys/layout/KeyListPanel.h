// The three lists from which keys are programmed.
#pragma once

#include "keys/ItemList.h"

#include <QWidget>

#include <array>

class QLabel;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::keys
{

/// Function keys, PLUs and window look-ups, one list of them shown, with a box that filters it. A table is
/// read when its list is shown for the first time.
class KeyListPanel : public QWidget
{
    Q_OBJECT

public:
    KeyListPanel(const std::shared_ptr<store::Database>& database, QWidget* parent);

    /// Moves the keyboard focus to the list shown.
    void enterList();
    /// Shows all entries again.
    void clearFilter();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user chose this item for the key, by Enter or a click.
    void chosen(ItemKind kind, const QString& number, bool byEnter);
    /// The user looks at this item.
    void looked(ItemKind kind, const QString& number);

private:
    void connectList(ItemKind kind);
    void layOut();
    void show(ItemKind kind);
    void setFilter(const QString& part);
    void showCount();
    void choose(const QModelIndex& index, bool byEnter);
    [[nodiscard]] ItemList& list(ItemKind kind) { return m_lists.at(static_cast<std::size_t>(kind)); }
    [[nodiscard]] ItemList& shownList() { return list(m_kind); }

    std::array<ItemList, 3> m_lists; ///< by kind
    ItemKind m_kind = ItemKind::Function;
    ui::FilterBox* m_filter;
    QLabel* m_count;
};

} // namespace norvane::keys
