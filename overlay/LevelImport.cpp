// See LevelImport.h.
#include "overlay/LevelImport.h"

#include "overlay/KeyLines.h"
#include "overlay/LevelWalk.h"
#include "store/engine/Database.h"

#include <algorithm>
#include <utility>

namespace norvane::overlay
{
namespace
{

/// Keys that are reserved by the register. They have no row in the tables.
struct FixedKey {
    Keyboard keyboard;
    int firstCell;
};
constexpr auto fixedKeys = std::to_array<FixedKey>({
    {Keyboard::Dorvik, 0},  // feeds the receipt
    {Keyboard::Dorvik, 30}, // feeds the journal
});

bool hasRow(Keyboard keyboard, const OverlayKey& key)
{
    return std::ranges::none_of(fixedKeys, [&](const FixedKey& fixed) {
        return fixed.keyboard == keyboard && fixed.firstCell == key.firstCell;
    });
}

/// The numeric keys show their digits whatever their rows say.
bool takesText(const OverlayKey& key)
{
    return key.kind != KeyKind::Single;
}

/// The keys that have rows, in the order of the rows: columns from the left, each from the bottom up.
std::vector<const OverlayKey*> keysInTableOrder(Keyboard keyboard)
{
    std::vector<const OverlayKey*> keys;
    for (const OverlayKey& key : layoutOf(keyboard).keys()) {
        if (hasRow(keyboard, key))
            keys.push_back(&key);
    }
    std::ranges::stable_sort(keys, [](const OverlayKey* left, const OverlayKey* right) {
        return std::pair(left->column, -left->row) < std::pair(right->column, -right->row);
    });
    return keys;
}

void fillKey(Document& document, const OverlayKey& key, const QString& text)
{
    int cell = key.firstCell;
    for (const QString& line : CUTTEXTUP(RemoveCarriage(text)))
        document.cell(cell++).text = line;
}

} // namespace

void importdata(Document& document, int level, const QString& databasePath)
{
    store::Database database(databasePath);
    const auto keys = keysInTableOrder(document.keyboard());
    LevelWalk walk(database, level, static_cast<int>(keys.size()));
    for (const OverlayKey* const key : keys) {
        const QString text = walk.key().text;
        if (takesText(*key))
            fillKey(document, *key, text);
        walk.toNextKey();
    }
}

std::vector<LevelKey> keysOfLevel(Keyboard keyboard, int level, const QString& databasePath)
{
    store::Database database(databasePath);
    const OverlayLayout& layout = layoutOf(keyboard);
    std::vector<LevelKey> result(layout.keys().size());
    const auto keys = keysInTableOrder(keyboard);
    LevelWalk walk(database, level, static_cast<int>(keys.size()));
    for (const OverlayKey* const key : keys) {
        LevelKey& entry = result[static_cast<std::size_t>(layout.keyIndex(key->firstCell))];
        entry = takesText(*key) ? walk.key() : LevelKey{KeyUse::Number, 0, {}};
        walk.toNextKey();
    }
    return result;
}

} // namespace norvane::overlay
