// The three lists from which keys are programmed.
#pragma once

#include "keys/ItemList.h"
#include "keys/layout/PluChoices.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::keys
{

/// Items of one kind.
struct MarkedItems {
    ItemKind kind = ItemKind::Function;
    QStringList numbers;
    qsizetype further = 0; ///< how many more there are
};

/// Function keys, PLUs and window look-ups, one list of them shown, with a box that filters it. A table is
/// read when its list is shown for the first time. Of the PLUs a group, the best sellers or, with two dots
/// between two numbers in the box, consecutive numbers can be shown. A click with Shift or Ctrl marks rows
/// and chooses none; so does every click while rows are marked for a fill.
class KeyListPanel : public QWidget
{
    Q_OBJECT

public:
    KeyListPanel(const std::shared_ptr<store::Database>& database, QWidget* parent);

    /// Moves the keyboard focus to the list shown.
    void enterList();
    /// Shows all entries again.
    void clearFilter();
    /// Begins or ends marking rows for a fill. Where a filter or a choice is set, all rows are marked at
    /// first; the end removes the marks.
    void setMarking(bool isMarking);
    /// The first @p most marked rows: a long list has more than a level has keys.
    [[nodiscard]] MarkedItems marked(qsizetype most) const;
    /// Whether the next key follows once an item was put on one.
    [[nodiscard]] bool goesOn() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user chose this item for the key, by Enter or a click.
    void chosen(ItemKind kind, const QString& number, bool byEnter);
    /// The user looks at this item.
    void looked(ItemKind kind, const QString& number);
    void marksChanged();
    /// Enter was pressed with several rows marked, or while rows are marked for a fill.
    void marksEntered();

private:
    void connectList(ItemKind kind);
    void layOut();
    void show(ItemKind kind);
    void setFilter(const QString& part);
    void readChoices();
    void choosePlus();
    void markAll();
    void showCount();
    void clicked(const QModelIndex& index);
    void enter();
    void choose(const QModelIndex& index, bool byEnter);
    [[nodiscard]] ItemList& list(ItemKind kind) { return m_lists.at(static_cast<std::size_t>(kind)); }
    [[nodiscard]] const ItemList& shownList() const { return m_lists.at(static_cast<std::size_t>(m_kind)); }

    std::shared_ptr<store::Database> m_database;
    std::array<ItemList, 3> m_lists; ///< by kind
    ItemKind m_kind = ItemKind::Function;
    ui::FilterBox* m_filter;
    QLabel* m_count;
    QComboBox* m_choice;
    std::vector<PluChoice> m_choices; ///< entries of the box after the first, which shows all PLUs
    QCheckBox* m_next;
    bool m_isMarking = false;
    bool m_isRange = false; ///< the filter names two numbers
};

} // namespace norvane::keys
