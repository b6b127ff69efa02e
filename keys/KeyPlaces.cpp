// One query over both tables of the keyboard; see KeyPlaces.h.
#include "keys/KeyPlaces.h"

#include "store/engine/BoundQuery.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Rows of both tables belong together by their place, not by their ids.
constexpr auto placesStatement =
    "WITH links AS (SELECT row_number() OVER (ORDER BY id, rowid) AS place, keylink FROM keylink),"
    " numbers AS (SELECT row_number() OVER (ORDER BY id, rowid) AS place, nlu FROM nlu) "
    "SELECT place FROM links JOIN numbers USING (place) "
    "WHERE keylink = ?1 AND substr(nlu, 1, length(?2)) = ?2 AND place <= ?3 ORDER BY place";

/// Numbers of the keys of one level from @p at, which is moved past them.
QStringList keysOfLevel(const std::vector<KeyPlace>& places, std::size_t& at)
{
    QStringList keys;
    for (const int level = places[at].level; at < places.size() && places[at].level == level; ++at)
        keys += QString::number(places[at].key);
    return keys;
}

} // namespace

std::vector<KeyPlace> findKeys(store::Database& database, const KeyGeometry& keyboard, const QString& link,
                               const QString& number)
{
    store::BoundQuery found(database, placesStatement,
                            {store::Value::text(link), store::Value::text(number),
                             store::Value::whole(keyboard.rowsAhead(levelCount + 1))},
                            u"keys of the keyboard"_s);
    std::vector<KeyPlace> places;
    while (found.next()) {
        const int row = static_cast<int>(found.value(0).toNumber()) - 1;
        places.push_back({row / keyboard.keysPerLevel + 1, row % keyboard.keysPerLevel + 1});
    }
    return places;
}

QString placesText(const std::vector<KeyPlace>& places)
{
    QStringList levels;
    for (std::size_t at = 0; at < places.size();) {
        const int level = places[at].level;
        const QStringList keys = keysOfLevel(places, at);
        levels +=
            u"Level %1 %2 %3"_s.arg(level).arg(keys.size() == 1 ? u"key"_s : u"keys"_s, keys.join(u", "_s));
    }
    return levels.join(u", "_s);
}

} // namespace norvane::keys
