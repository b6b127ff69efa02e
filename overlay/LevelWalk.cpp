// See LevelWalk.h.
#include "overlay/LevelWalk.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/Database.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// Rows of NLU that are looked at: five levels of the larger keyboard and some more.
constexpr std::size_t lookUpEntries = 901;
/// What KEYLINK says of a key that is not a function.
constexpr auto pluKey = "0"_L1;
constexpr auto windowKey = "271"_L1;
/// The number of a window is before the key's number.
constexpr qsizetype windowDigits = 4;

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

} // namespace

NamedRows::NamedRows(store::Database& database, Table table)
    : m_rows(database.openTable(table.name)), m_description(m_rows.fieldOrdinal(u"DESCRIPTION"_s)),
      m_group(table.group.isEmpty() ? -1 : m_rows.fieldOrdinal(table.group)),
      m_unknown(std::move(table.unknown))
{
    m_rows.setIndex(table.index);
    std::vector<int> fields{m_description};
    if (m_group >= 0)
        fields.push_back(m_group);
    m_rows.readOnly(fields);
}

LevelKey NamedRows::keyFor(KeyUse use, const QString& number)
{
    if (!m_rows.seek(store::Seek::Equal, store::Value::text(number)))
        return {use, 0, m_unknown};
    return {use, m_group >= 0 ? m_rows.value(m_group).toText().toInt() : 0,
            m_rows.value(m_description).toText()};
}

LevelWalk::LevelWalk(store::Database& database, int level, int keysALevel)
    : m_level(level), m_keysALevel(keysALevel), m_lookUps(readLookUps(database)),
      m_links(database.openTable(u"keylink"_s)), m_link(m_links.fieldOrdinal(u"keylink"_s)),
      m_plus(database, {u"pludata"_s, u"plunumber"_s, u"plu"_s, u"GROUPNO"_s}),
      m_windows(database, {u"wlu"_s, u"primarykey"_s, u"wlu"_s, {}}),
      m_functions(database, {u"functionkey"_s, u"primarykey"_s, u"function"_s, {}})
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

LevelKey LevelWalk::key()
{
    needRow();
    const QString link = m_links.value(m_link).toText();
    const QString& lookUp = m_lookUps.at(m_counter);
    if (link == pluKey)
        return m_plus.keyFor(KeyUse::Plu, lookUp);
    if (link == windowKey)
        return m_windows.keyFor(KeyUse::LookUp, lookUp.left(windowDigits));
    return m_functions.keyFor(KeyUse::Function, link);
}

void LevelWalk::toNextKey()
{
    needRow();
    m_links.moveNext();
    ++m_counter;
}

} // namespace norvane::overlay
