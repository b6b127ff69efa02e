// See KeyEditor.h.
#include "keys/layout/KeyEditor.h"

#include <QUndoCommand>

#include <algorithm>
#include <utility>

namespace norvane::keys
{
namespace
{

/// Those of @p cells that are not among @p others.
KeyCells without(const KeyCells& cells, const KeyCells& others)
{
    KeyCells left;
    for (const KeyCell cell : cells) {
        if (std::ranges::find(others, cell) == others.end())
            left.push_back(cell);
    }
    return left;
}

} // namespace

/// The keys that a step changed, before and after.
class KeyEditor::KeyStep : public QUndoCommand
{
public:
    KeyStep(KeyLevel& level, KeyChanges changes) : m_level(level), m_changes(std::move(changes)) {}

    void undo() override
    {
        for (const KeyChange& change : m_changes)
            m_level.setKey(change.cell, change.before);
    }
    void redo() override
    {
        for (const KeyChange& change : m_changes)
            m_level.setKey(change.cell, change.after);
    }

private:
    KeyLevel& m_level;
    KeyChanges m_changes;
};

KeyCells inReadingOrder(KeyCells cells)
{
    std::ranges::sort(cells, {}, [](KeyCell cell) { return std::pair(cell.row, cell.column); });
    return cells;
}

KeyCells movedBy(KeyCells cells, KeyCell offset)
{
    for (KeyCell& cell : cells)
        cell = cell + offset;
    return cells;
}

KeyCell upperLeft(const KeyCells& cells)
{
    return {std::ranges::min(cells, {}, &KeyCell::row).row,
            std::ranges::min(cells, {}, &KeyCell::column).column};
}

void KeyEditor::levelWasRead()
{
    m_history.clear();
    m_marked.clear();
}

Refusal KeyEditor::refusalOf(const KeyCells& cells) const
{
    const KeyGeometry& keyboard = m_level.geometry();
    if (!std::ranges::all_of(cells, [&](KeyCell cell) { return keyboard.contains(cell); }))
        return Refusal::Outside;
    const auto isFixed = [&](KeyCell cell) {
        return keyboard.fixedAt(cell) != nullptr;
    };
    return std::ranges::any_of(cells, isFixed) ? Refusal::FixedKey : Refusal::None;
}

void KeyEditor::make(KeyChanges changes)
{
    std::erase_if(changes, [](const KeyChange& change) { return change.before == change.after; });
    if (!changes.empty())
        m_history.push(new KeyStep(m_level, std::move(changes)));
}

void KeyEditor::assign(const KeyCells& cells, ItemKind kind, const QString& number)
{
    const std::optional<Key> chosen = m_level.items().keyFor(kind, number);
    KeyChanges changes;
    for (const KeyCell cell : cells) {
        Key key = m_level.key(cell);
        const bool isFixed = key.state == KeyState::Fixed;
        if (chosen && !isFixed) {
            key = *chosen;
        } else {
            key.text = chosen ? chosen->text : itemTable(kind).missingEntry;
            key.state = isFixed ? KeyState::Fixed : KeyState::Missing;
        }
        changes.push_back(changeOf(cell, key));
    }
    make(std::move(changes));
}

void KeyEditor::place(const std::vector<FilledKey>& keys)
{
    KeyChanges changes;
    for (const FilledKey& placed : keys)
        changes.push_back(changeOf(placed.cell, placed.key));
    make(std::move(changes));
}

/// Each of @p target does what the cell of @p source at the same place does.
KeyEditor::KeyChanges KeyEditor::copies(const KeyCells& source, const KeyCells& target) const
{
    KeyChanges changes;
    for (std::size_t i = 0; i < source.size(); ++i)
        changes.push_back(changeOf(target[i], m_level.key(source[i])));
    return changes;
}

Refusal KeyEditor::swap(const KeyCells& cells, KeyCell from, KeyCell to)
{
    const KeyCells source = inReadingOrder(cells);
    const KeyCells target = movedBy(source, to - from);
    for (const KeyCells& touched : {target, source}) {
        if (const Refusal refusal = refusalOf(touched); refusal != Refusal::None)
            return refusal;
    }
    KeyChanges changes = copies(source, target);
    const KeyChanges back = copies(without(target, source), without(source, target));
    changes.insert(changes.end(), back.begin(), back.end());
    make(std::move(changes));
    return Refusal::None;
}

Refusal KeyEditor::copyTo(const KeyCells& cells, KeyCell from, KeyCell to)
{
    const KeyCells target = movedBy(cells, to - from);
    for (const KeyCells& touched : {target, cells}) {
        if (const Refusal refusal = refusalOf(touched); refusal != Refusal::None)
            return refusal;
    }
    make(copies(cells, target));
    return Refusal::None;
}

KeyCells KeyEditor::programmable(KeyCells cells) const
{
    std::erase_if(cells, [this](KeyCell cell) { return m_level.geometry().fixedAt(cell) != nullptr; });
    return cells;
}

/// A fixed key's function cannot be put on another key.
void KeyEditor::copy(const KeyCells& cells)
{
    const KeyCells keys = programmable(cells);
    if (keys.empty())
        return;
    m_copied.clear();
    const KeyCell corner = upperLeft(keys);
    for (const KeyCell cell : keys)
        m_copied.push_back({cell - corner, m_level.key(cell)});
}

Refusal KeyEditor::cut(const KeyCells& cells)
{
    if (const Refusal refusal = refusalOf(cells); refusal != Refusal::None)
        return refusal;
    copy(cells);
    return clear(cells);
}

Refusal KeyEditor::clear(const KeyCells& cells)
{
    if (const Refusal refusal = refusalOf(cells); refusal != Refusal::None)
        return refusal;
    KeyChanges changes;
    for (const KeyCell cell : cells)
        changes.push_back(changeOf(cell, unprogrammedKey()));
    make(std::move(changes));
    return Refusal::None;
}

Refusal KeyEditor::paste(const KeyCells& cells)
{
    if (m_copied.empty() || cells.empty())
        return Refusal::NoKeys;
    const KeyCells corners = m_copied.size() == 1 ? cells : KeyCells{upperLeft(cells)};
    KeyChanges changes;
    for (const KeyCell corner : corners) {
        for (const Piece& piece : m_copied) {
            const KeyCell cell = corner + piece.offset;
            if (const Refusal refusal = refusalOf({cell}); refusal != Refusal::None)
                return refusal;
            changes.push_back(changeOf(cell, piece.key));
        }
    }
    make(std::move(changes));
    return Refusal::None;
}

Refusal KeyEditor::swapWithMarked(const KeyCells& cells)
{
    if (m_marked.empty() || cells.empty())
        return Refusal::NoKeys;
    const Refusal refusal = swap(m_marked, upperLeft(m_marked), upperLeft(cells));
    if (refusal == Refusal::None)
        m_marked.clear();
    return refusal;
}

} // namespace norvane::keys
