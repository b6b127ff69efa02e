// See MoneyFormat.h.
#include "reports/lines/MoneyFormat.h"

#include "platform/Windows1252.h"
#include "store/engine/BoundQuery.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr int usualDecimals = 2;
constexpr int mostMoneyDecimals = 3;

/// The field in the first record of a table of settings; null if there is none.
store::Value setting(store::Database& database, const QString& table, const QString& field)
{
    if (!database.hasTable(table))
        return {};
    store::BoundQuery query(
        database, u"SELECT \"%1\" FROM \"%2\" ORDER BY ID LIMIT 1"_s.arg(field, table).toStdString(), {},
        table);
    return query.next() ? query.value(0) : store::Value();
}

/// The registers keep the sign as the code of a character.
QString currencySign(store::Database& database)
{
    constexpr double lowest = 33;
    constexpr double highest = 255;
    const double code = setting(database, u"GENERALPRINTOPTION"_s, u"HOMESYMBOL"_s).toNumber();
    if (code < lowest || code > highest)
        return {};
    return fromWindows1252(QByteArray(1, static_cast<char>(static_cast<int>(code))));
}

} // namespace

MoneyFormat moneyFormatOf(store::Database& database)
{
    const store::Value places = setting(database, u"smode"_s, u"DECIMALPlace"_s);
    const double decimals = places.isNull() ? usualDecimals : places.toNumber();
    const bool isUsual = decimals < 0 || decimals > mostMoneyDecimals;
    return {isUsual ? usualDecimals : static_cast<int>(decimals), currencySign(database)};
}

} // namespace norvane::reports
