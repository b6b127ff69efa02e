// The copy and what it hits; see LevelCopy.h.
#include "keys/LevelCopy.h"

#include "platform/FailurePlace.h"
#include "store/Recordset.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// A table of the keyboard and the box that fetches it from a register.
struct KeyTable {
    QLatin1StringView table;
    QLatin1StringView field;
    QLatin1StringView box;
};
constexpr KeyTable keyLinks{"keylink"_L1, "keylink"_L1, "Key Link"_L1};
constexpr KeyTable numbers{"nlu"_L1, "nlu"_L1, "PLU & WLU Relocation"_L1};

int rowsAhead(int level)
{
    return (level - 1) * copiedKeys;
}

/// A walk over one of the tables from a level's first row on.
class Walk
{
public:
    Walk(store::Database& database, const KeyTable& table, int level)
        : m_table(table), m_records(database.openTable(table.table))
    {
        m_records.setIndex(u"primarykey"_s);
        for (int row = rowsAhead(level); row > 0 && m_records.hasCurrent(); --row)
            next();
    }

    [[nodiscard]] const store::Value& value() const
    {
        requireRow();
        return m_records.value(m_table.field);
    }
    void store(const store::Value& value)
    {
        requireRow();
        m_records.edit();
        m_records.setValue(m_table.field, value);
        m_records.update();
    }
    void next() { m_records.moveNext(); }

private:
    void requireRow() const
    {
        if (m_records.hasCurrent())
            return;
        throw RuntimeFailure(Failure::NoCurrentRecord,
                             u"No current record. Table %1 has only %2 rows. Upload %3 from the ECR first."_s
                                 .arg(m_table.table)
                                 .arg(m_records.recordCount())
                                 .arg(m_table.box));
    }

    const KeyTable& m_table;
    store::Recordset m_records;
};

/// "keys 159 to 169 of Level 1 and keys 1 to 147 of Level 2": what lies on @p keyboard where the copy expects
/// @p level.
QString keysOf(int level, const KeyGeometry& keyboard)
{
    QStringList parts;
    const int behind = rowsAhead(level) + copiedKeys;
    for (int row = rowsAhead(level); row < behind;) {
        const int realLevel = row / keyboard.keysPerLevel + 1;
        const int end = std::min(behind, keyboard.rowsAhead(realLevel + 1));
        const int before = keyboard.rowsAhead(realLevel);
        parts += u"keys %1 to %2 of Level %3"_s.arg(row - before + 1).arg(end - before).arg(realLevel);
        row = end;
    }
    return parts.join(u" and "_s);
}

} // namespace

QString LevelCopy::misplacedKeys(const KeyGeometry& keyboard) const
{
    if (from == to || keyboard.keysPerLevel == copiedKeys)
        return {};
    return u"A level of this keyboard has %1 keys, but Copy Levels counts %2 keys a level. It would copy %3 "
           u"over "
           "%4.\n\nCopy all the same?"_s.arg(keyboard.keysPerLevel)
               .arg(copiedKeys)
               .arg(keysOf(from, keyboard), keysOf(to, keyboard));
}

void LevelCopy::run(store::Database& database) const
{
    store::Transaction all(database);
    try {
        Walk sourceLinks(database, keyLinks, from);
        Walk links(database, keyLinks, to);
        Walk sourceNumbers(database, numbers, from);
        Walk targets(database, numbers, to);
        for (int key = 0; key < copiedKeys; ++key) {
            links.store(sourceLinks.value());
            targets.store(sourceNumbers.value());
            for (Walk* const each : {&sourceLinks, &links, &sourceNumbers, &targets})
                each->next();
        }
    } catch (const RuntimeFailure&) {
        all.rollBack();
        throw;
    }
    all.commit();
}

} // namespace norvane::keys
