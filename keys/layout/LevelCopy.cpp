// The copy and what it hits; see LevelCopy.h.
#include "keys/layout/LevelCopy.h"

#include "keys/layout/KeyRows.h"
#include "store/engine/AllOrNothing.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

int rowsAhead(int level)
{
    return (level - 1) * copiedKeys;
}

/// "keys 159 to 169 of Level 1 and keys 1 to 147 of Level 2": what is on @p keyboard where the copy expects
/// @p level.
QString keysOf(int level, const KeyGeometry& keyboard)
{
    QStringList parts;
    const int afterCopied = rowsAhead(level) + copiedKeys;
    for (int row = rowsAhead(level); row < afterCopied;) {
        const int realLevel = row / keyboard.keysPerLevel + 1;
        const int end = std::min(afterCopied, keyboard.rowsAhead(realLevel + 1));
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
    return u"A level of this keyboard has %1 keys, but Copy Levels counts %2 keys a level. "
           "It would copy %3 over %4.\n\nCopy all the same?"_s.arg(keyboard.keysPerLevel)
               .arg(copiedKeys)
               .arg(keysOf(from, keyboard), keysOf(to, keyboard));
}

void LevelCopy::run(store::Database& database) const
{
    store::allOrNothing(database, [&] {
        for (const KeyTable* const table : {&keyLinkTable(), &nluTable()})
            copyRows(database, *table);
    });
}

void LevelCopy::copyRows(store::Database& database, const KeyTable& table) const
{
    KeyRows source(database, table, rowsAhead(from));
    KeyRows target(database, table, rowsAhead(to));
    for (int key = 0; key < copiedKeys; ++key) {
        target.store(source.value());
        source.next();
        target.next();
    }
}

} // namespace norvane::keys
