// The interface of a widget to screen readers with items that are not widgets. Only for the files of ui/.
#pragma once

#include "ui/SpokenItems.h"

#include <QAccessibleWidget>
#include <QHash>

namespace norvane::ui
{

/// Finds its items below @p widget as long as that lives. They get interfaces when somebody asks for them.
class ItemsInterface : public QAccessibleWidget
{
public:
    ItemsInterface(QWidget& widget, QAccessible::Role role, const SpokenItems& items)
        : QAccessibleWidget(&widget, role), m_items(items)
    {
    }

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

protected:
    ~ItemsInterface() override;

private:
    const SpokenItems& m_items;
    mutable QHash<int, QAccessible::Id> m_ids; ///< of the items that were asked for
};

} // namespace norvane::ui
