// See RecentTakings.h.
#include "sales/RecentTakings.h"

#include "reports/data/ShownNumber.h"
#include "reports/formula/ExactNumbers.h"
#include "reports/lines/MoneyFormat.h"
#include "reports/lines/SalesDays.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"

#include <map>

namespace norvane::sales
{
namespace
{

/// Of the days that have any.
std::map<QDate, Decimal> netSales(store::Database& database, const reports::Period& period)
{
    using namespace store::salestable;
    const std::string column = day;
    const std::string table = financials;
    store::BoundQuery query(
        database,
        "SELECT " + column + ", exact_sum(VALUE) FROM " + table + " WHERE ID = ? AND " + column +
            " BETWEEN ? AND ? GROUP BY " + column,
        {store::Value::whole(netSalesLine), store::Value::date(period.from), store::Value::date(period.to)},
        QString::fromStdString(table));
    std::map<QDate, Decimal> sums;
    while (query.next()) {
        const QDate sold = query.value(0).toDate();
        sums[sold] = reports::decimalOf(query.value(1).toText().toStdString());
    }
    return sums;
}

QString shownMoney(const Decimal& amount, const reports::MoneyFormat& money)
{
    return reports::dressed(reports::shownNumber(amount, money.decimals, money.decimals),
                            {true, money.currency});
}

} // namespace

RecentTakings recentTakings(store::Database& database, QDate today, int count)
{
    const reports::Period period{today.addDays(1 - count), today, {}};
    const auto collected = reports::daysWithLast(database, period);
    const auto sums = netSales(database, period);
    const auto money = reports::moneyFormatOf(database);
    RecentTakings takings;
    for (QDate day = period.from; day <= today; day = day.addDays(1)) {
        DayTakings each{day, std::nullopt, {}};
        if (collected.contains(day)) {
            const auto sum = sums.find(day);
            each.netSales = sum == sums.end() ? Decimal() : sum->second;
            each.shown = shownMoney(*each.netSales, money);
        }
        takings.days.push_back(std::move(each));
    }
    if (!collected.empty())
        takings.lastCollected = *collected.rbegin();
    return takings;
}

} // namespace norvane::sales
