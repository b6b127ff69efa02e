// See KeySelection.h.
#include "overlay/KeySelection.h"

#include <algorithm>

namespace norvane::overlay
{
namespace
{

constexpr double leastArea = 0.01; ///< mm

} // namespace

KeySelection::KeySelection(const OverlayLayout& layout)
    : m_layout(&layout), m_isSelected(layout.keys().size())
{
}

int KeySelection::count() const
{
    return static_cast<int>(std::ranges::count(m_isSelected, true));
}

std::vector<int> KeySelection::keys() const
{
    std::vector<int> keys;
    keys.reserve(m_isSelected.size());
    for (int key = 0; key < static_cast<int>(m_isSelected.size()); ++key) {
        if (has(key))
            keys.push_back(key);
    }
    return keys;
}

std::vector<int> KeySelection::cells() const
{
    std::vector<int> cells;
    cells.reserve(static_cast<std::size_t>(m_layout->cellCount()));
    for (int cell = 0; cell < m_layout->cellCount(); ++cell) {
        if (has(m_layout->keyIndex(cell)))
            cells.push_back(cell);
    }
    return cells;
}

void KeySelection::clear()
{
    m_anchor = -1;
    m_isSelected.assign(m_isSelected.size(), false);
}

template <typename Condition>
void KeySelection::selectIf(const Condition& isWanted)
{
    for (std::size_t key = 0; key < m_isSelected.size(); ++key)
        m_isSelected[key] = isWanted(m_layout->keys()[key]);
}

void KeySelection::select(const std::vector<int>& keys)
{
    clear();
    for (const int key : keys)
        m_isSelected[static_cast<std::size_t>(key)] = true;
}

void KeySelection::selectAll()
{
    m_anchor = -1;
    m_isSelected.assign(m_isSelected.size(), true);
}

void KeySelection::selectColumn(int key)
{
    m_anchor = key;
    m_end = key;
    selectIf([column = m_layout->key(key).column](const OverlayKey& each) { return each.column == column; });
}

void KeySelection::toggle(int key)
{
    m_isSelected[static_cast<std::size_t>(key)] = !has(key);
    m_anchor = key;
    m_end = key;
}

void KeySelection::selectBlock(int from, int to)
{
    m_anchor = from;
    m_end = to;
    selectArea(m_layout->key(from).outline() | m_layout->key(to).outline());
}

void KeySelection::selectArea(const QRectF& area)
{
    // A straight drag has an area without a width.
    const QRectF touched = area.adjusted(-leastArea, -leastArea, leastArea, leastArea);
    selectIf([&touched](const OverlayKey& key) { return key.outline().intersects(touched); });
}

void KeySelection::extend(int from, ArrowDirection direction)
{
    extendTo(from, neighbourKey(*m_layout, m_anchor < 0 ? from : m_end, direction));
}

void KeySelection::extendTo(int from, int key)
{
    selectBlock(m_anchor < 0 ? from : m_anchor, key);
}

int neighbourKey(const OverlayLayout& layout, int key, ArrowDirection direction)
{
    const OverlayKey& leaving = layout.key(key);
    int cell = leaving.firstCell + leaving.cells / 2;
    if (direction == ArrowDirection::Up)
        cell = leaving.firstCell;
    if (direction == ArrowDirection::Down)
        cell = leaving.lastCell();
    return layout.keyIndex(neighbour(layout, cell, direction));
}

} // namespace norvane::overlay
