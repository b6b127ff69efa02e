// Interfaces of the toolkit for painted widgets; see SpokenItems.h.
#include "ui/SpokenItems.h"

#include "ui/ItemsInterface.h"

#include <QWidget>

#include <utility>

namespace norvane::ui
{
namespace
{

class Item : public QAccessibleInterface
{
public:
    Item(QWidget& widget, const SpokenItems& items, int index)
        : m_widget(widget), m_items(items), m_index(index)
    {
    }

    [[nodiscard]] bool isValid() const override { return m_index < m_items.spokenItemCount(); }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(&m_widget);
    }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const SpokenItem item = contents();
        return kind == QAccessible::Name          ? item.text
               : kind == QAccessible::Description ? item.state
                                                  : QString();
    }
    [[nodiscard]] QRect rect() const override
    {
        const QRect place = contents().place;
        return {m_widget.mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] QAccessible::State state() const override
    {
        const SpokenItem item = contents();
        QAccessible::State state;
        state.readOnly = true;
        state.selectable = true;
        state.selected = item.isChosen;
        state.invisible = !m_widget.isVisible();
        state.offscreen = !m_widget.rect().intersects(item.place);
        return state;
    }

private:
    [[nodiscard]] SpokenItem contents() const
    {
        return isValid() ? m_items.spokenItem(m_index) : SpokenItem();
    }

    QWidget& m_widget;
    const SpokenItems& m_items;
    int m_index;
};

QAccessibleInterface* makeItemInterface(const QString& /*className*/, QObject* object)
{
    const auto* const items = dynamic_cast<SpokenItems*>(object);
    return items ? new ItemsInterface(*static_cast<QWidget*>(object), QAccessible::Document, *items)
                 : nullptr;
}

} // namespace

int ItemsInterface::childCount() const
{
    return m_items.spokenItemCount();
}

QAccessibleInterface* ItemsInterface::child(int index) const
{
    if (index < 0 || index >= childCount())
        return nullptr;
    if (!m_ids.contains(index))
        m_ids[index] = QAccessible::registerAccessibleInterface(new Item(*widget(), m_items, index));
    return QAccessible::accessibleInterface(m_ids[index]);
}

QAccessibleInterface* ItemsInterface::childAt(int x, int y) const
{
    const QPoint place = widget()->mapFromGlobal(QPoint(x, y));
    for (int index = 0; index < childCount(); ++index) {
        if (m_items.spokenItem(index).place.contains(place))
            return child(index);
    }
    return nullptr;
}

int ItemsInterface::indexOfChild(const QAccessibleInterface* child) const
{
    return m_ids.key(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child)), -1);
}

ItemsInterface::~ItemsInterface()
{
    for (const QAccessible::Id id : std::as_const(m_ids))
        QAccessible::deleteAccessibleInterface(id);
}

/// The toolkit takes the same function once only.
SpokenItems::SpokenItems()
{
    QAccessible::installFactory(makeItemInterface);
}

void sayItem(QWidget& widget, int index)
{
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(index);
    QAccessible::updateAccessibility(&event);
}

} // namespace norvane::ui
