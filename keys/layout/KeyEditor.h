// A level being edited: every change of its keys, with undo.
#pragma once

#include "keys/layout/KeyLevel.h"

#include <QUndoStack>

#include <vector>

namespace norvane::keys
{

/// Cells in no particular order, each once.
using KeyCells = std::vector<KeyCell>;

/// A cell and what its key is to do.
struct FilledKey {
    KeyCell cell;
    Key key;
};

/// Why keys were not changed.
enum class Refusal {
    None,
    FixedKey, ///< a fixed key would be moved or written over
    Outside,  ///< the block would extend beyond the keyboard
    NoKeys,   ///< nothing was copied or marked
};

/// Changes the keys of a KeyLevel. Each call that changes keys is one step of the history, which lasts until
/// another level is read. Keys that were copied remain, so that they can be pasted into another level.
class KeyEditor
{
public:
    explicit KeyEditor(KeyLevel& level) : m_level(level) {}

    /// Forgets the steps and the marked keys: another level was read, or this one again.
    void levelWasRead();

    /// Puts the item @p number on keys. If the item does not exist, only the cells show it. A fixed cell
    /// shows the text only and keeps its function.
    void assign(const KeyCells& cells, ItemKind kind, const QString& number);
    /// Puts each key on its cell, which is not a fixed one.
    void place(const std::vector<FilledKey>& keys);
    /// Swaps @p cells, of which @p from moves to @p to, with the keys there. Where both blocks overlap, the
    /// displaced keys fill the freed places.
    Refusal swap(const KeyCells& cells, KeyCell from, KeyCell to);
    /// The keys at the new place do what @p cells do.
    Refusal copyTo(const KeyCells& cells, KeyCell from, KeyCell to);

    /// Those of @p cells that are not fixed keys.
    [[nodiscard]] KeyCells programmable(KeyCells cells) const;
    void copy(const KeyCells& cells);
    /// Copies and clears.
    Refusal cut(const KeyCells& cells);
    /// Makes keys unprogrammed.
    Refusal clear(const KeyCells& cells);
    /// Puts what was copied at the upper left of @p cells; a single key on all of them.
    Refusal paste(const KeyCells& cells);
    [[nodiscard]] bool canPaste() const { return !m_copied.empty(); }

    /// Remembers keys for swapWithMarked().
    void mark(const KeyCells& cells) { m_marked = cells; }
    [[nodiscard]] const KeyCells& marked() const { return m_marked; }
    /// swap() of the marked keys, the upper left of them to that of @p cells. Removes the mark.
    Refusal swapWithMarked(const KeyCells& cells);

    [[nodiscard]] QUndoStack& history() { return m_history; }

private:
    class KeyStep;
    struct KeyChange {
        KeyCell cell;
        Key before;
        Key after;
    };
    using KeyChanges = std::vector<KeyChange>;
    struct Piece {
        KeyCell offset; ///< from the upper left of what was copied
        Key key;
    };

    [[nodiscard]] Refusal refusalOf(const KeyCells& cells) const;
    [[nodiscard]] KeyChange changeOf(KeyCell cell, const Key& after) const
    {
        return {cell, m_level.key(cell), after};
    }
    [[nodiscard]] KeyChanges copies(const KeyCells& source, const KeyCells& target) const;
    void make(KeyChanges changes);

    KeyLevel& m_level;
    QUndoStack m_history;
    std::vector<Piece> m_copied;
    KeyCells m_marked;
};

/// Row by row from the left, so that a block and its new place are in the same order whatever was clicked
/// first.
[[nodiscard]] KeyCells inReadingOrder(KeyCells cells);
[[nodiscard]] KeyCells movedBy(KeyCells cells, KeyCell offset);
/// The first row and the first column of @p cells, which may not be empty.
[[nodiscard]] KeyCell upperLeft(const KeyCells& cells);

} // namespace norvane::keys
