// See ItemUses.h.
#include "keys/ItemUses.h"

#include "keys/KeyPlaces.h"
#include "store/engine/BoundQuery.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Lines in a record of table WLU.
constexpr int storedLines = 50;

/// Lines of the type function that hold the number.
QString functionLines()
{
    QStringList selects;
    for (int line = 1; line <= storedLines; ++line) {
        selects += u"SELECT WLUno AS number, DESCRIPTION AS name, %1 AS line FROM WLU "
                   "WHERE wlutype%1 = 2 AND CAST(codenumber%1 AS INTEGER) = ?1"_s.arg(line);
    }
    return selects.join(u" UNION ALL "_s) + u" ORDER BY number, line"_s;
}

QString linkedLookUps()
{
    return u"SELECT WLUno, DESCRIPTION, 0 FROM WLU WHERE LINK = ?1 ORDER BY WLUno"_s;
}

/// A name may contain a "%1".
QString holderOf(store::BoundQuery& row)
{
    return u"indow look-up "_s + row.value(0).toText() + u" \""_s + row.value(1).toText().trimmed() + u'"';
}

QStringList lookUpUses(store::Database& database, ItemKind kind, qint64 number)
{
    const bool isFunction = kind == ItemKind::Function;
    const QString sql = isFunction ? functionLines() : linkedLookUps();
    store::BoundQuery rows(database, sql.toStdString(), {store::Value::whole(number)}, u"WLU"_s);
    QStringList uses;
    while (rows.next()) {
        uses += isFunction ? u'W' + holderOf(rows) + u", line "_s + rows.value(2).toText()
                           : u"Link of w"_s + holderOf(rows);
    }
    return uses;
}

QStringList keyUses(store::Database& database, const KeyGeometry& keyboard, ItemKind kind, qint64 number)
{
    const QString text = QString::number(number);
    const auto places = kind == ItemKind::Function
                            ? findKeys(database, keyboard, text, {})
                            : findKeys(database, keyboard, lookUpLink, text.rightJustified(wluDigits, u'0'));
    QStringList uses;
    for (const KeyPlace& place : places)
        uses += u"Keyboard level %1, key %2"_s.arg(place.level).arg(place.key);
    return uses;
}

} // namespace

QStringList usesOfItem(store::Database& database, const KeyGeometry& keyboard, ItemKind kind,
                       const QString& number)
{
    const qint64 counted = number.toLongLong();
    if (counted == 0)
        return {};
    return keyUses(database, keyboard, kind, counted) + lookUpUses(database, kind, counted);
}

} // namespace norvane::keys
