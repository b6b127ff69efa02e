// See KeyItems.h.
#include "keys/KeyItems.h"

#include "store/engine/Database.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

// clang-format off
constexpr ItemTable tables[] = {
    {"FUNCTIONKEY"_L1, "id"_L1,        ""_L1,  "Function Key"_L1, "Function ITEM"_L1, KeyState::Function},
    {"PLUDATA"_L1,     "PLUNUMBER"_L1, "P"_L1, "PLU ITEM"_L1,     "PLU ITEM"_L1,      KeyState::Plu},
    {"WLU"_L1,         "WLUno"_L1,     "W"_L1, "WLU ITEM"_L1,     "WLU ITEM"_L1,      KeyState::LookUp},
};
// clang-format on

constexpr int shownWidth = 17;

QString zeroFilled(const QString& number, int width)
{
    return number.rightJustified(width, u'0');
}

/// Leading zeros beyond the width are dropped, other digits never are.
QString shownNumber(const QString& number)
{
    return zeroFilled(unfilledNumber(number), shownWidth);
}

Key codesFor(ItemKind kind, const QString& number)
{
    switch (kind) {
    case ItemKind::Plu:
        return {pluLink, filledPluNumber(number), {}};
    case ItemKind::LookUp:
        return {lookUpLink, zeroFilled(number, wluDigits).leftJustified(lookUpWidth, u'0'), {}};
    case ItemKind::Function:
        break;
    }
    return {number, QString(lookUpWidth, u'0'), {}};
}

store::Recordset openItems(store::Database& database, const ItemTable& table)
{
    store::Recordset records = database.openTable(table.table);
    records.setIndex(u"primarykey"_s);
    records.readOnly({records.fieldOrdinal(table.number), records.fieldOrdinal(u"DESCRIPTION"_s)});
    return records;
}

} // namespace

const ItemTable& itemTable(ItemKind kind)
{
    return tables[static_cast<std::size_t>(kind)];
}

ItemKind kindOf(const QString& function)
{
    if (function == pluLink)
        return ItemKind::Plu;
    return function == lookUpLink ? ItemKind::LookUp : ItemKind::Function;
}

QString itemNumber(const QString& function, const QString& lookUp)
{
    switch (kindOf(function)) {
    case ItemKind::Plu:
        return lookUp;
    case ItemKind::LookUp:
        return lookUp.left(wluDigits);
    case ItemKind::Function:
        break;
    }
    return {};
}

bool doTheSame(const Key& one, const Key& other)
{
    return one.function == other.function &&
           itemNumber(one.function, one.lookUp) == itemNumber(other.function, other.lookUp);
}

Key unprogrammedKey()
{
    return {{}, QString(lookUpWidth, u'0'), itemTable(ItemKind::Function).missingKey, KeyState::Unprogrammed};
}

KeyItems::KeyItems(store::Database& database)
{
    m_records.reserve(std::size(tables));
    for (const ItemTable& table : tables)
        m_records.push_back(openItems(database, table));
}

/// Of the current item in the recordset of the kind.
QString KeyItems::textOf(ItemKind kind)
{
    const store::Recordset& item = records(kind);
    QString description = item.value(u"DESCRIPTION"_s).toText();
    if (kind == ItemKind::Function)
        return description;
    const ItemTable& table = itemTable(kind);
    return table.mark + shownNumber(item.value(table.number).toText()) + u' ' + description;
}

Key KeyItems::keyOf(const QString& function, const QString& lookUp)
{
    const ItemKind kind = kindOf(function);
    const ItemTable& table = itemTable(kind);
    if (function.isEmpty())
        return {function, lookUp, table.missingKey, KeyState::Unprogrammed};
    const QString number = kind == ItemKind::Function ? function : itemNumber(function, lookUp);
    if (!records(kind).seek(store::Seek::Equal, store::Value::text(number)))
        return {function, lookUp, table.missingKey, KeyState::Missing};
    return {function, lookUp, textOf(kind), table.state};
}

std::optional<Key> KeyItems::keyFor(ItemKind kind, const QString& number)
{
    const auto sought = kind == ItemKind::Function ? number : filledPluNumber(number);
    if (!records(kind).seek(store::Seek::Equal, store::Value::text(sought)))
        return std::nullopt;
    const ItemTable& table = itemTable(kind);
    Key key = codesFor(kind, records(kind).value(table.number).toText());
    key.text = textOf(kind);
    key.state = table.state;
    return key;
}

Key KeyItems::missingKey(ItemKind kind, const QString& number)
{
    Key key = codesFor(kind, number);
    key.text = itemTable(kind).missingKey;
    key.state = KeyState::Missing;
    return key;
}

} // namespace norvane::keys
