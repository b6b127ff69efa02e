// See KeySearch.h.
#include "keys/layout/KeySearch.h"

#include <algorithm>

namespace norvane::keys
{
namespace
{

std::vector<KeyPlace> keysOfLevelLike(const Key& key, const KeyLevel& level)
{
    std::vector<KeyPlace> places;
    int number = 0;
    for (const KeyCell cell : level.geometry().walk()) {
        ++number;
        if (doTheSame(level.key(cell), key))
            places.push_back({level.level(), number});
    }
    return places;
}

} // namespace

std::vector<KeyCell> cellsWith(const KeyLevel& level, const QString& part)
{
    std::vector<KeyCell> found;
    const KeyGeometry& keyboard = level.geometry();
    for (int row = 0; row < keyboard.rows && !part.isEmpty(); ++row) {
        for (int column = 0; column < keyboard.columns; ++column) {
            if (level.key({row, column}).text.contains(part, Qt::CaseInsensitive))
                found.push_back({row, column});
        }
    }
    return found;
}

std::vector<KeyPlace> keysLike(const Key& key, const KeyLevel& level, store::Database& database)
{
    if (key.function.isEmpty())
        return {};
    std::vector<KeyPlace> places =
        findKeys(database, level.geometry(), key.function, itemNumber(key.function, key.lookUp));
    std::erase_if(places, [&](const KeyPlace& place) { return place.level == level.level(); });
    const std::vector<KeyPlace> shown = keysOfLevelLike(key, level);
    places.insert(std::ranges::upper_bound(places, level.level(), {}, &KeyPlace::level), shown.begin(),
                  shown.end());
    return places;
}

} // namespace norvane::keys
