// See KeyNames.h.
#include "reports/lines/KeyNames.h"

#include "platform/ProfileFile.h"
#include "register/PluNumber.h"
#include "register/RegisterModel.h"
#include "store/engine/BoundQuery.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// Rows of both tables belong together by their place, not by their ids; a key of a PLU has the link 0.
constexpr auto keysStatement =
    "WITH links AS (SELECT row_number() OVER (ORDER BY id, rowid) AS place, keylink FROM keylink),"
    " numbers AS (SELECT row_number() OVER (ORDER BY id, rowid) AS place, nlu FROM nlu) "
    "SELECT nlu, place FROM links JOIN numbers USING (place) "
    "WHERE keylink = '0' AND place <= ?1 ORDER BY place";

int keysPerLevelOf(const QString& dataFile)
{
    const ProfileFile settings(QFileInfo(dataFile).path() + u"/setup.ini"_s);
    return keysOfLevel(modelOfText(settings.value(u"SetupOption", u"ECRModel", u"0"_s)).family);
}

struct PluKeys {
    QString text;
    int level = 0; ///< of the last key
    bool hasSeveral = false;
};

/// "key 117" becomes "keys 117, 118" with the second key of a level.
void addKey(PluKeys& keys, int level, int key)
{
    if (keys.level != level) {
        keys.text += u"%1Level %2 key %3"_s.arg(keys.text.isEmpty() ? u""_s : u", "_s).arg(level).arg(key);
        keys.hasSeveral = false;
    } else {
        if (!keys.hasSeveral)
            keys.text.insert(keys.text.lastIndexOf(u"key "_s) + 3, u's');
        keys.text += u", %1"_s.arg(key);
        keys.hasSeveral = true;
    }
    keys.level = level;
}

} // namespace

QHash<QString, QString> keysByPlu(store::Database& database, const QString& dataFile,
                                  const std::function<bool()>& keepGoing)
{
    const int perLevel = keysPerLevelOf(dataFile);
    store::BoundQuery rows(database, keysStatement,
                           {store::Value::whole(std::int64_t{keyboardLevels} * perLevel)}, dataFile,
                           keepGoing);
    QHash<QString, PluKeys> all;
    while (rows.next()) {
        const int row = static_cast<int>(rows.value(1).toNumber()) - 1;
        addKey(all[unfilledNumber(rows.value(0).toText().trimmed())], row / perLevel + 1, row % perLevel + 1);
    }
    QHash<QString, QString> texts;
    for (auto keys = all.cbegin(); keys != all.cend(); ++keys)
        texts.insert(keys.key(), keys->text);
    return texts;
}

} // namespace norvane::reports
