// See KeyLevel.h.
#include "keys/layout/KeyLevel.h"

#include "keys/layout/KeyRows.h"
#include "platform/FailurePlace.h"
#include "platform/Numbers.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/ShortWait.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int keyNumberWidth = 14;

/// What KEYLINK takes: a whole number, or nothing for an unprogrammed key.
QString storedFunction(const QString& function)
{
    return function.isEmpty() ? function : QString::number(toWholeNumber(function));
}

/// What NLU takes for the key of this number in its level.
QString storedLookUp(const Key& key, int number)
{
    const QString numberText = QString::number(number).rightJustified(keyNumberWidth, u'0');
    switch (kindOf(storedFunction(key.function))) {
    case ItemKind::Plu:
        return key.lookUp;
    case ItemKind::LookUp:
        return key.lookUp.left(wluDigits) + numberText;
    case ItemKind::Function:
        break;
    }
    return numberText.rightJustified(lookUpWidth, u'0');
}

/// The invalid number is in the table that names the item.
Key readKey(KeyItems& items, const KeyRows& functions, const KeyRows& lookUps)
{
    const QString function = functions.text();
    const QString lookUp = lookUps.text();
    const KeyRows& telling = kindOf(function) == ItemKind::Function ? functions : lookUps;
    return atPlace([&](const QString& failure) { return telling.explained(failure); },
                   [&] { return items.keyOf(function, lookUp); });
}

} // namespace

KeyLevel::KeyLevel(const KeyGeometry& geometry, std::shared_ptr<store::Database> database)
    : m_geometry(geometry), m_database(std::move(database)), m_items(*m_database)
{
}

std::vector<Key> KeyLevel::readKeys(int level)
{
    KeyRows functions(*m_database, keyLinkTable(), m_geometry.rowsAhead(level));
    KeyRows lookUps(*m_database, nluTable(), m_geometry.rowsAhead(level));
    std::vector<Key> keys(indexOf({m_geometry.rows, 0}));
    for (const FixedCell& fixed : m_geometry.fixedCells)
        keys[indexOf(fixed.cell)] = {{}, {}, fixed.text, KeyState::Fixed};
    for (const KeyCell cell : m_geometry.walk()) {
        keys[indexOf(cell)] = readKey(m_items, functions, lookUps);
        functions.next();
        lookUps.next();
    }
    return keys;
}

void KeyLevel::read(int level)
{
    m_keys = readKeys(level);
    m_stored = m_keys;
    m_level = level;
}

void KeyLevel::readItems()
{
    for (const KeyCell cell : m_geometry.walk()) {
        for (std::vector<Key>* const keys : {&m_keys, &m_stored}) {
            Key& key = (*keys)[indexOf(cell)];
            key = m_items.keyOf(key.function, key.lookUp);
        }
    }
}

/// A lock of another program is found before any row is written.
QString KeyLevel::notSaved(const QString& failure) const
{
    const int ahead = m_geometry.rowsAhead(m_level);
    return u"Level %1 was not saved: rows %2 to %3 of the tables %4 and %5 are as they were. %6"_s
        .arg(m_level)
        .arg(ahead + 1)
        .arg(ahead + m_geometry.keysPerLevel)
        .arg(keyLinkTable().table, nluTable().table, failure);
}

/// One table after the other: a walk reads rows ahead as long as nothing but itself stores.
void KeyLevel::save()
{
    const store::ShortWait wait(*m_database);
    atPlace([this](const QString& failure) { return notSaved(failure); },
            [this] {
                store::allOrNothing(*m_database, [this] {
                    saveFunctions();
                    saveLookUps();
                });
            });
    m_stored = m_keys;
}

void KeyLevel::saveFunctions()
{
    KeyRows rows(*m_database, keyLinkTable(), m_geometry.rowsAhead(m_level));
    for (const KeyCell cell : m_geometry.walk()) {
        rows.store(atPlace([&](const QString& failure) { return rows.explained(failure); },
                           [&] { return storedFunction(key(cell).function); }));
        rows.next();
    }
}

void KeyLevel::saveLookUps()
{
    KeyRows rows(*m_database, nluTable(), m_geometry.rowsAhead(m_level));
    int number = 0;
    for (const KeyCell cell : m_geometry.walk()) {
        Key& key = m_keys[indexOf(cell)];
        const QString stored = storedLookUp(key, ++number);
        rows.store(stored);
        if (kindOf(key.function) == ItemKind::LookUp)
            key.lookUp = stored;
        rows.next();
    }
}

bool KeyLevel::differs() const
{
    return !std::ranges::equal(m_keys, m_stored, doTheSame);
}

} // namespace norvane::keys
