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

constexpr int lookUpLines = 50;

/// The number of a look-up, then type and code of each of its lines.
std::string lookUpStatement()
{
    QString fields = u"WLUno"_s;
    for (int line = 1; line <= lookUpLines; ++line)
        fields += u", wlutype%1, codenumber%1"_s.arg(line);
    return u"SELECT %1 FROM WLU ORDER BY WLUno"_s.arg(fields).toStdString();
}

int keysPerLevelOf(const QString& dataFile)
{
    const ProfileFile settings(QFileInfo(dataFile).path() + u"/setup.ini"_s);
    return keysOfLevel(modelOfText(settings.value(u"SetupOption", u"ECRModel", u"0"_s)).family);
}

struct PluKeys {
    QString text;
    int level = 0; ///< of the last key
    bool hasSeveral = false;
    QStringList lookUps = {};
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

/// "Level 1 key 117, look-ups 3, 4".
QString textOf(const PluKeys& keys)
{
    if (keys.lookUps.isEmpty())
        return keys.text;
    const QString lookUps =
        (keys.lookUps.size() == 1 ? u"look-up "_s : u"look-ups "_s) + keys.lookUps.join(u", "_s);
    return keys.text.isEmpty() ? lookUps : keys.text + u", "_s + lookUps;
}

/// PLUs of the look-up in the row, as such or as condiments.
QStringList plusOfLookUp(store::BoundQuery& row)
{
    constexpr double function = 2; ///< the type of a line with a function key
    QStringList plus;
    for (int line = 0; line < lookUpLines; ++line) {
        const QString plu = unfilledNumber(row.value(2 * line + 2).toText().trimmed());
        if (row.value(2 * line + 1).toNumber() < function && !plu.isEmpty() && plu != u"0"_s)
            plus << plu;
    }
    plus.removeDuplicates();
    return plus;
}

class KeysOfPlus
{
public:
    KeysOfPlus(store::Database& database, QString dataFile, const std::function<bool()>& keepGoing)
        : m_database(database), m_dataFile(std::move(dataFile)), m_keepGoing(keepGoing)
    {
        addKeys();
        if (database.hasTable(u"WLU"_s))
            addLookUps();
    }

    [[nodiscard]] QHash<QString, QString> texts() const
    {
        QHash<QString, QString> texts;
        for (auto keys = m_keys.cbegin(); keys != m_keys.cend(); ++keys)
            texts.insert(keys.key(), textOf(*keys));
        return texts;
    }

private:
    void addKeys()
    {
        const int perLevel = keysPerLevelOf(m_dataFile);
        store::BoundQuery rows(m_database, keysStatement,
                               {store::Value::whole(std::int64_t{keyboardLevels} * perLevel)}, m_dataFile,
                               m_keepGoing);
        while (rows.next()) {
            const int row = static_cast<int>(rows.value(1).toNumber()) - 1;
            addKey(m_keys[unfilledNumber(rows.value(0).toText().trimmed())], row / perLevel + 1,
                   row % perLevel + 1);
        }
    }

    void addLookUps()
    {
        store::BoundQuery rows(m_database, lookUpStatement(), {}, m_dataFile, m_keepGoing);
        while (rows.next()) {
            for (const QString& plu : plusOfLookUp(rows))
                m_keys[plu].lookUps << rows.value(0).toText();
        }
    }

    store::Database& m_database;
    QString m_dataFile;
    const std::function<bool()>& m_keepGoing;
    QHash<QString, PluKeys> m_keys;
};

} // namespace

QHash<QString, QString> keysByPlu(store::Database& database, const QString& dataFile,
                                  const std::function<bool()>& keepGoing)
{
    return KeysOfPlus(database, dataFile, keepGoing).texts();
}

} // namespace norvane::reports
