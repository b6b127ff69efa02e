// See LevelImport.h.
#include "overlay/LevelImport.h"

#include "overlay/KeyLines.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

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
std::vector<const OverlayKey*> keysInTableOrder(const Document& document)
{
    std::vector<const OverlayKey*> keys;
    for (const OverlayKey& key : document.layout().keys()) {
        if (hasRow(document.keyboard(), key))
            keys.push_back(&key);
    }
    std::ranges::stable_sort(keys, [](const OverlayKey* left, const OverlayKey* right) {
        return std::pair(left->column, -left->row) < std::pair(right->column, -right->row);
    });
    return keys;
}

/// Rows of NLU that are looked at: five levels of the larger keyboard and some more.
constexpr std::size_t lookUpEntries = 901;
/// What KEYLINK says of a key that is not a function.
constexpr auto pluKey = "0"_L1;
constexpr auto windowKey = "271"_L1;
/// The number of a window is before the key's number.
constexpr qsizetype windowDigits = 4;

/// A table whose DESCRIPTION names the function of a key.
class NamedRows
{
public:
    NamedRows(store::Database& database, const QString& table, const QString& index, QString unknown)
        : m_rows(database.openTable(table)), m_description(m_rows.fieldOrdinal(u"DESCRIPTION"_s)),
          m_unknown(std::move(unknown))
    {
        m_rows.setIndex(index);
        m_rows.readOnly({m_description});
    }
    /// The name of the row with @p key, or the text for a missing row.
    [[nodiscard]] QString nameOf(const QString& key)
    {
        return m_rows.seek(store::Seek::Equal, store::Value::text(key)) ? m_rows.value(m_description).toText()
                                                                        : m_unknown;
    }

private:
    store::Recordset m_rows;
    int m_description;
    QString m_unknown;
};

/// Entry n of the result is row n in the order of the keys; there is no row 0.
std::vector<QString> readLookUps(store::Database& database)
{
    std::vector<QString> entries(1);
    store::Recordset rows = database.openTable(u"nlu"_s);
    rows.setIndex(u"primarykey"_s);
    const int number = rows.fieldOrdinal(u"nlu"_s);
    for (; !rows.atEnd() && entries.size() <= lookUpEntries; rows.moveNext())
        entries.push_back(rows.value(number).toText());
    entries.resize(lookUpEntries + 1);
    return entries;
}

/// The keys of a level one after another, as the tables have them.
class LevelWalk
{
public:
    LevelWalk(store::Database& database, int level, int keysALevel);

    /// What the key does, in words.
    [[nodiscard]] QString text();
    void toNextKey();

private:
    void needRow() const;

    int m_level;
    int m_keysALevel;
    std::vector<QString> m_lookUps;
    store::Recordset m_links;
    int m_link;
    std::size_t m_counter = 1;
    NamedRows m_plus;
    NamedRows m_windows;
    NamedRows m_functions;
};

LevelWalk::LevelWalk(store::Database& database, int level, int keysALevel)
    : m_level(level), m_keysALevel(keysALevel), m_lookUps(readLookUps(database)),
      m_links(database.openTable(u"keylink"_s)), m_link(m_links.fieldOrdinal(u"keylink"_s)),
      m_plus(database, u"pludata"_s, u"plunumber"_s, u"plu"_s),
      m_windows(database, u"wlu"_s, u"primarykey"_s, u"wlu"_s),
      m_functions(database, u"functionkey"_s, u"primarykey"_s, u"function"_s)
{
    m_links.setIndex(u"primarykey"_s);
    for (int below = (level - 1) * keysALevel; below > 0; --below)
        toNextKey();
}

void LevelWalk::needRow() const
{
    if (!m_links.atEnd())
        return;
    throw RuntimeFailure(
        Failure::NoCurrentRecord,
        u"No current record: level %1 ends at row %2 of KEYLINK, which has only %3. Upload \"Key Link\" and "
        "\"PLU & WLU Relocation\" from the register, then import the level again."_s.arg(m_level)
            .arg(m_level * m_keysALevel)
            .arg(m_links.recordCount()));
}

QString LevelWalk::text()
{
    needRow();
    const QString link = m_links.value(m_link).toText();
    const QString& lookUp = m_lookUps.at(m_counter);
    if (link == pluKey)
        return m_plus.nameOf(lookUp);
    if (link == windowKey)
        return m_windows.nameOf(lookUp.left(windowDigits));
    return m_functions.nameOf(link);
}

void LevelWalk::toNextKey()
{
    needRow();
    m_links.moveNext();
    ++m_counter;
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
    const auto keys = keysInTableOrder(document);
    LevelWalk walk(database, level, static_cast<int>(keys.size()));
    for (const OverlayKey* const key : keys) {
        const QString text = walk.text();
        if (takesText(*key))
            fillKey(document, *key, text);
        walk.toNextKey();
    }
}

} // namespace norvane::overlay
