// See WrappingRow.h.
#include "ui/WrappingRow.h"

#include <algorithm>

namespace norvane::ui
{

WrappingRow::WrappingRow(int gap, QWidget* parent) : QLayout(parent)
{
    setContentsMargins({});
    setSpacing(gap);
}

WrappingRow::~WrappingRow() = default;

void WrappingRow::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    const auto place = static_cast<std::size_t>(index);
    return place < m_items.size() ? m_items[place].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (itemAt(index) == nullptr)
        return nullptr;
    QLayoutItem* const taken = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return taken;
}

template <typename Place>
int WrappingRow::walk(const QRect& room, Place place) const
{
    QPoint at = room.topLeft();
    int lineHeight = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size(std::min(item->sizeHint().width(), room.width()), item->sizeHint().height());
        if (at.x() > room.left() && at.x() + size.width() > room.left() + room.width()) {
            at = QPoint(room.left(), at.y() + lineHeight + spacing());
            lineHeight = 0;
        }
        place(*item, QRect(at, size));
        at.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return at.y() + lineHeight - room.top();
}

int WrappingRow::heightForWidth(int width) const
{
    return walk(QRect(0, 0, width, 0), [](QLayoutItem&, const QRect&) {});
}

void WrappingRow::setGeometry(const QRect& room)
{
    QLayout::setGeometry(room);
    walk(room, [](QLayoutItem& item, const QRect& place) { item.setGeometry(place); });
}

/// Of the widest control alone.
QSize WrappingRow::minimumSize() const
{
    QSize size;
    for (const auto& item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

/// All in one line.
QSize WrappingRow::sizeHint() const
{
    QSize size;
    for (const auto& item : m_items) {
        const int gap = item->isEmpty() || size.isEmpty() ? 0 : spacing();
        size = QSize(size.width() + gap + item->sizeHint().width(),
                     std::max(size.height(), item->sizeHint().height()));
    }
    return size;
}

} // namespace norvane::ui
