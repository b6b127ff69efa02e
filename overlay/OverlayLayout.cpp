// See OverlayLayout.h.
#include "overlay/OverlayLayout.h"

namespace norvane::overlay
{

OverlayLayout::OverlayLayout(const KeyboardGeometry& geometry)
{
    OverlayKey next;
    next.x = geometry.startX;
    for (const KeyColumns& group : geometry.columns) {
        for (int column = 0; column < group.columns; ++column) {
            addColumn(geometry, group, next);
            ++next.column;
            next.x = next.x + group.step;
        }
    }
}

void OverlayLayout::addColumn(const KeyboardGeometry& geometry, const KeyColumns& group, OverlayKey next)
{
    next.y = geometry.startY;
    for (const KeyRun& run : group.runs) {
        for (int key = 0; key < run.count; ++key) {
            next.kind = run.kind;
            addKey(geometry, next);
            ++next.row;
            next.y = next.y + geometry.keyStep;
        }
    }
}

void OverlayLayout::addKey(const KeyboardGeometry& geometry, OverlayKey key)
{
    key.firstCell = cellCount();
    key.cells = key.kind == KeyKind::Single ? 1 : 3;
    key.width = geometry.shape(key.kind).width;
    key.height = geometry.keyHeight;
    m_keyOfCell.insert(m_keyOfCell.end(), static_cast<std::size_t>(key.cells), m_keys.size());
    m_keys.push_back(key);
}

const OverlayKey& OverlayLayout::keyOf(int cell) const
{
    return m_keys[m_keyOfCell[static_cast<std::size_t>(cell)]];
}

const OverlayLayout& layoutOf(Keyboard keyboard)
{
    static const std::array layouts = {OverlayLayout(geometryOf(Keyboard::Dorvik)),
                                       OverlayLayout(geometryOf(Keyboard::Velmar)),
                                       OverlayLayout(geometryOf(Keyboard::Quelmont))};
    return layouts[static_cast<std::size_t>(keyboard)];
}

} // namespace norvane::overlay
