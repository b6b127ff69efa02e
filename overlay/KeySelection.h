// Which keys of an overlay are selected.
#pragma once

#include "overlay/CellOrder.h"

#include <QRectF>

#include <vector>

namespace norvane::overlay
{

/// Keys are numbered by their place in the layout. A block reaches from its anchor, the key where it was
/// begun, to its end.
class KeySelection
{
public:
    explicit KeySelection(const OverlayLayout& layout);

    [[nodiscard]] bool isEmpty() const { return count() == 0; }
    [[nodiscard]] int count() const;
    [[nodiscard]] bool has(int key) const { return m_isSelected[static_cast<std::size_t>(key)]; }
    /// In the order of the layout.
    [[nodiscard]] std::vector<int> keys() const;
    /// All cells of the keys.
    [[nodiscard]] std::vector<int> cells() const;
    /// The end of the block.
    [[nodiscard]] int end() const { return m_end; }

    void clear();
    void select(const std::vector<int>& keys);
    void selectAll();
    void selectColumn(int key);
    void toggle(int key);
    /// The keys in the rectangle around both. A key reached in part counts.
    void selectBlock(int from, int to);
    /// The keys that @p area touches. @param area in mm, as the outlines of keys.
    void selectArea(const QRectF& area);
    /// Moves the end of the block to the next key. Without a block, one begins at @p from.
    void extend(int from, ArrowDirection direction);
    /// Moves the end of the block to @p key. Without a block, one begins at @p from.
    void extendTo(int from, int key);

    bool operator==(const KeySelection& other) const { return m_isSelected == other.m_isSelected; }

private:
    template <typename Condition>
    void selectIf(const Condition& isWanted);

    const OverlayLayout* m_layout;
    std::vector<bool> m_isSelected;
    int m_anchor = -1; ///< -1 if the selection is not a block
    int m_end = 0;
};

/// The nearest key to @p key in a direction; @p key itself at the edge.
[[nodiscard]] int neighbourKey(const OverlayLayout& layout, int key, ArrowDirection direction);

} // namespace norvane::overlay
