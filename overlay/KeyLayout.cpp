// See KeyLayout.h.
#include "overlay/KeyLayout.h"

namespace norvane::overlay
{

KeyLayout::KeyLayout(const KeyboardGeometry& geometry)
{
    KeyPlace next;
    next.x = geometry.startX;
    for (const ColumnGroup& group : geometry.columns) {
        for (int column = 0; column < group.columns; ++column) {
            addColumn(geometry, group, next);
            ++next.column;
            next.x = next.x + group.step;
        }
    }
}

void KeyLayout::addColumn(const KeyboardGeometry& geometry, const ColumnGroup& group, KeyPlace next)
{
    next.y = geometry.startY;
    for (const KeyRun& run : group.runs) {
        for (int key = 0; key < run.count; ++key) {
            next.form = run.form;
            addKey(geometry, next);
            ++next.row;
            next.y = next.y + geometry.keyStep;
        }
    }
}

void KeyLayout::addKey(const KeyboardGeometry& geometry, KeyPlace place)
{
    place.firstCell = cellCount();
    place.cells = place.form == KeyForm::Single ? 1 : 3;
    place.width = geometry.shape(place.form).width;
    place.height = geometry.keyHeight;
    m_keyOfCell.insert(m_keyOfCell.end(), static_cast<std::size_t>(place.cells), m_keys.size());
    m_keys.push_back(place);
}

const KeyPlace& KeyLayout::keyOf(int cell) const
{
    return m_keys[m_keyOfCell[static_cast<std::size_t>(cell)]];
}

const KeyLayout& layoutOf(Keyboard keyboard)
{
    static const std::array layouts = {KeyLayout(geometryOf(Keyboard::Dorvik)),
                                       KeyLayout(geometryOf(Keyboard::Velmar)),
                                       KeyLayout(geometryOf(Keyboard::Quelmont))};
    return layouts[static_cast<std::size_t>(keyboard)];
}

} // namespace norvane::overlay
