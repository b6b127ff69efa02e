// The keys of an overlay: their places on the sheet and their cells.
#pragma once

#include "overlay/KeyboardGeometry.h"

#include <QRectF>

#include <vector>

namespace norvane::overlay
{

/// A key on the sheet. Its cells follow each other, from its upper line down.
struct OverlayKey {
    KeyKind kind = KeyKind::Plain;
    int column = 0; ///< from the left, from 0
    int row = 0;    ///< in its column, from 0
    int firstCell = 0;
    int cells = 0;
    paper::Length x; ///< its upper left corner, from the corner of the printable area
    paper::Length y;
    paper::Length width;
    paper::Length height;

    [[nodiscard]] int lastCell() const { return firstCell + cells - 1; }
    /// Returns the key's outline in mm, from the corner of the printable area.
    [[nodiscard]] QRectF outline() const
    {
        return {x.inMillimetres(), y.inMillimetres(), width.inMillimetres(), height.inMillimetres()};
    }
};

/// The keys of a keyboard in the order of their cells: down each column, columns from the left.
class OverlayLayout
{
public:
    explicit OverlayLayout(const KeyboardGeometry& geometry);

    [[nodiscard]] const std::vector<OverlayKey>& keys() const { return m_keys; }
    [[nodiscard]] int cellCount() const { return static_cast<int>(m_keyOfCell.size()); }
    /// @param cell from 0 to cellCount() - 1.
    [[nodiscard]] const OverlayKey& keyOf(int cell) const;
    /// Place in keys() of the key that has @p cell.
    [[nodiscard]] int keyIndex(int cell) const
    {
        return static_cast<int>(m_keyOfCell[static_cast<std::size_t>(cell)]);
    }
    /// @param index from 0 to the number of keys - 1.
    [[nodiscard]] const OverlayKey& key(int index) const { return m_keys[static_cast<std::size_t>(index)]; }

private:
    void addColumn(const KeyboardGeometry& geometry, const KeyColumns& group, OverlayKey next);
    void addKey(const KeyboardGeometry& geometry, OverlayKey key);

    std::vector<OverlayKey> m_keys;
    std::vector<std::size_t> m_keyOfCell;
};

/// Made once for each keyboard.
[[nodiscard]] const OverlayLayout& layoutOf(Keyboard keyboard);

} // namespace norvane::overlay
