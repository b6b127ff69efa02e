// The lists beside the lines of a look-up, from which the lines are filled.
#pragma once

#include "keys/ItemList.h"

#include <QWidget>

#include <memory>
#include <vector>

class QButtonGroup;
class QLabel;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::keys
{

/// PLUs and function keys, each with an option button that hides the other list, and a box above that filters
/// what is shown. The form decides which of them are available.
class LookUpLists : public QWidget
{
    Q_OBJECT

public:
    explicit LookUpLists(const std::shared_ptr<store::Database>& database, QWidget* parent);

    /// Shows a list and its option button, or hides both.
    void reach(ItemKind kind, bool reachable);
    /// Moves the keyboard focus to the filter box. Does nothing while there is no list.
    void enter();
    /// Clears the filter if the keyboard focus is here. @return whether it is.
    [[nodiscard]] bool leave();

Q_SIGNALS:
    /// The user clicked the entry of this number.
    void clicked(ItemKind kind, const QString& number);
    /// The user pressed Enter on it.
    void entered(ItemKind kind, const QString& number);

private:
    void connectList(const ItemList& list);
    void layOut();
    void showOnly(ItemKind kind);
    void follow();
    void setFilter(const QString& text);
    void chooseCurrentRow();
    [[nodiscard]] bool isShown(const ItemList& list) const;

    std::vector<ItemList> m_lists;
    QButtonGroup* m_options;
    ui::FilterBox* m_filter;
    QLabel* m_hint;
};

} // namespace norvane::keys
