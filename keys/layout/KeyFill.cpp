// See KeyFill.h.
#include "keys/layout/KeyFill.h"

#include <QSet>

#include <algorithm>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// The cells of the keyboard from @p first on.
KeyCells cellsFrom(const KeyGeometry& keyboard, KeyCell first)
{
    KeyCells cells;
    for (int row = first.row; row < keyboard.rows; ++row) {
        for (int column = row == first.row ? first.column : 0; column < keyboard.columns; ++column)
            cells.push_back({row, column});
    }
    return cells;
}

KeyCells roomFor(const KeyLevel& level, const FillWish& wish)
{
    KeyCells cells =
        wish.cells.size() == 1 ? cellsFrom(level.geometry(), wish.cells.front()) : inReadingOrder(wish.cells);
    std::erase_if(cells, [&](KeyCell cell) {
        const KeyState state = level.key(cell).state;
        return level.geometry().fixedAt(cell) != nullptr ||
               (wish.skipsUsed && state != KeyState::Unprogrammed);
    });
    return cells;
}

QString itemOf(const Key& key)
{
    return key.function + u' ' + itemNumber(key.function, key.lookUp);
}

/// The items of all keys but @p replaced.
QSet<QString> keptItems(const KeyLevel& level, std::span<const KeyCell> replaced)
{
    QSet<QString> items;
    for (const KeyCell cell : level.geometry().walk()) {
        if (std::ranges::find(replaced, cell) == replaced.end())
            items += itemOf(level.key(cell));
    }
    return items;
}

/// Fewer items leave more keys as they are, and each of these may have another of the items.
int leaveOutPlaced(std::vector<Key>& keys, const KeyLevel& level, const KeyCells& room)
{
    const std::size_t all = keys.size();
    std::size_t before = 0;
    do {
        before = keys.size();
        const QSet<QString> kept = keptItems(level, std::span(room).first(std::min(before, room.size())));
        std::erase_if(keys, [&](const Key& key) { return kept.contains(itemOf(key)); });
    } while (keys.size() != before);
    return static_cast<int>(all - keys.size());
}

QString counted(qsizetype count, const QString& what)
{
    return count == 0 ? QString() : u"%1 %2"_s.arg(count).arg(what);
}

} // namespace

qsizetype mostItems(const KeyGeometry& keyboard)
{
    return 2 * static_cast<qsizetype>(keyboard.keysPerLevel);
}

FillPlan planFill(KeyLevel& level, const FillWish& wish)
{
    FillPlan plan;
    const KeyCells room = roomFor(level, wish);
    std::vector<Key> keys;
    for (const QString& number : wish.numbers) {
        if (const std::optional<Key> key = level.items().keyFor(wish.kind, number))
            keys.push_back(*key);
    }
    plan.gone = static_cast<int>(wish.numbers.size() - std::ssize(keys));
    if (wish.skipsPlaced)
        plan.placed = leaveOutPlaced(keys, level, room);
    const std::size_t filled = std::min(keys.size(), room.size());
    plan.withoutRoom = std::ssize(keys) - static_cast<qsizetype>(filled) + wish.further;
    for (std::size_t i = 0; i < filled; ++i) {
        if (level.key(room[i]).state != KeyState::Unprogrammed)
            ++plan.inUse;
        plan.keys.push_back({room[i], keys[i]});
    }
    return plan;
}

QString planText(const FillPlan& plan)
{
    QStringList leftOut{counted(plan.placed, u"on other keys of this level"_s),
                        counted(plan.withoutRoom, u"without room"_s), counted(plan.gone, u"in no table"_s)};
    leftOut.removeAll(QString());
    QString text = plan.keys.size() == 1 ? u"1 key"_s : u"%1 keys"_s.arg(plan.keys.size());
    if (plan.inUse > 0)
        text += u", %1 of them in use"_s.arg(plan.inUse);
    return leftOut.isEmpty() ? text + u'.' : text + u". Left out: "_s + leftOut.join(u", "_s) + u'.';
}

std::optional<KeyCell> keyAfter(const KeyGeometry& keyboard, KeyCell cell)
{
    KeyCells cells = cellsFrom(keyboard, cell);
    const auto next = std::ranges::find_if(cells.begin() + 1, cells.end(),
                                           [&](KeyCell each) { return keyboard.fixedAt(each) == nullptr; });
    return next == cells.end() ? std::nullopt : std::optional(*next);
}

} // namespace norvane::keys
