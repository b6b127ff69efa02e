// See LevelSearch.h.
#include "keys/layout/LevelSearch.h"

#include "keys/layout/KeyWords.h"
#include "register/PluNumber.h"
#include "store/engine/BoundQuery.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

KeyHit hitOf(const PlacedKey& placed)
{
    return {placed, kindOf(placed.key.function), shownItemNumber(placed.key), keyInWords(placed.key)};
}

template <typename Wanted>
std::vector<KeyHit> hitsOf(const KeyboardKeys& keyboard, Wanted isWanted)
{
    std::vector<KeyHit> hits;
    for (const PlacedKey& placed : keyboard.keys) {
        if (isWanted(placed.key))
            hits.push_back(hitOf(placed));
    }
    return hits;
}

bool isPlu(const Key& key)
{
    return key.function == pluLink;
}

/// Look-up codes of PLUs are compared as they are: only equal ones are the same article for the register.
std::vector<KeyHit> repeatedPlus(const KeyboardKeys& keyboard)
{
    QHash<QString, int> counts;
    for (const PlacedKey& placed : keyboard.keys)
        counts[placed.key.lookUp] += isPlu(placed.key) ? 1 : 0;
    std::vector<KeyHit> hits =
        hitsOf(keyboard, [&](const Key& key) { return isPlu(key) && counts.value(key.lookUp) > 1; });
    std::ranges::stable_sort(hits, {}, [](const KeyHit& hit) { return hit.key->key.lookUp; });
    return hits;
}

QSet<QString> numbersOnKeys(const KeyboardKeys& keyboard, ItemKind kind)
{
    QSet<QString> numbers;
    for (const PlacedKey& placed : keyboard.keys) {
        if (!placed.key.function.isEmpty() && kindOf(placed.key.function) == kind)
            numbers.insert(shownItemNumber(placed.key));
    }
    return numbers;
}

void addItemsOnNoKey(const KeyboardKeys& keyboard, ItemKind kind, store::Database& database,
                     std::vector<KeyHit>& hits)
{
    const ItemTable& table = itemTable(kind);
    const QSet<QString> onKeys = numbersOnKeys(keyboard, kind);
    const QString sql = u"SELECT %1, DESCRIPTION FROM %2 ORDER BY %1"_s.arg(table.number, table.table);
    store::BoundQuery rows(database, sql.toStdString(), {}, table.table);
    while (rows.next()) {
        const QString number = unfilledNumber(rows.value(0).toText());
        if (!onKeys.contains(number)) {
            const QString name = rows.value(1).toText().trimmed();
            hits.push_back({std::nullopt, kind, number, kindWord(kind) + u' ' + number + u' ' + name});
        }
    }
}

std::vector<KeyHit> itemsOnNoKey(const KeyboardKeys& keyboard, store::Database& database)
{
    std::vector<KeyHit> hits;
    for (const ItemKind kind : {ItemKind::Plu, ItemKind::LookUp, ItemKind::Function})
        addItemsOnNoKey(keyboard, kind, database, hits);
    return hits;
}

} // namespace

std::vector<KeyHit> searchKeys(const KeyboardKeys& keyboard, KeyFilter filter, store::Database& database)
{
    switch (filter) {
    case KeyFilter::Missing:
        return hitsOf(keyboard, [](const Key& key) { return key.state == KeyState::Missing; });
    case KeyFilter::Repeated:
        return repeatedPlus(keyboard);
    case KeyFilter::OnNoKey:
        return itemsOnNoKey(keyboard, database);
    case KeyFilter::Programmed:
        break;
    }
    return hitsOf(keyboard, [](const Key& key) { return !key.function.isEmpty(); });
}

} // namespace norvane::keys
