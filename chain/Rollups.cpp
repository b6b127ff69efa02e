// See Rollups.h.
#include "chain/Rollups.h"

#include "chain/ChainTables.h"
#include "platform/Dates.h"
#include "store/catalogue/SalesTables.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// Totals of months. One may read those before it.
struct Rollup {
    const char* name;
    const char* columns; ///< after shop and month, as a declaration
    const char* key;     ///< columns of the key after shop and month
    // The rows of the shop $1 from the month $2 until before $3.
    const char* items;    ///< the columns before the sums
    const char* quantity; ///< what is added up
    const char* takings;
    const char* more; ///< after the sums
    const char* source;
    const char* days; ///< the table of days that is added up, null for totals of something else
};

constexpr auto monthTotals = std::to_array<Rollup>({
    {"shop_months",
     "first_day date NOT NULL, last_day date NOT NULL, days integer NOT NULL, quantity numeric, "
     "takings numeric, net_sales numeric",
     "", "shop, $2::date, min(day), max(day), count(*)", "quantity", "takings", ", sum(net_sales)",
     "published_days WHERE shop = $1 AND day >= $2 AND day < $3 GROUP BY shop", nullptr},
    {"plu_months", "plu text COLLATE \"C\" NOT NULL, quantity numeric NOT NULL, takings numeric NOT NULL",
     ", plu", "shop, date_trunc('month', $2::date::timestamp)::date, plu", pluQuantity, pluTakings, "",
     "plu_sales WHERE shop = $1 AND day >= $2 AND day < $3 GROUP BY shop, plu", "plu_sales"},
    // A key has no empty values: -1 is the group of PLUs without one.
    {"group_months", "group_no integer NOT NULL, quantity numeric NOT NULL, takings numeric NOT NULL",
     ", group_no", "m.shop, m.month, coalesce(p.group_no, -1)", "m.quantity", "m.takings", "",
     "plu_months m LEFT JOIN plus p ON p.shop = m.shop AND p.plu = m.plu "
     "WHERE m.shop = $1 AND m.month >= $2 AND m.month < $3 "
     "GROUP BY m.shop, m.month, coalesce(p.group_no, -1)",
     nullptr},
    {"time_months", "period integer NOT NULL, quantity numeric NOT NULL, takings numeric NOT NULL",
     ", period", "shop, date_trunc('month', $2::date::timestamp)::date, period", "quantity", "value", "",
     "time_sales WHERE shop = $1 AND day >= $2 AND day < $3 GROUP BY shop, period", "time_sales"},
});

std::string selectOf(const Rollup& rollup)
{
    return std::string("SELECT ") + rollup.items + ", sum(" + rollup.quantity + "), sum(" + rollup.takings +
           ')' + rollup.more + " FROM " + rollup.source;
}

/// A bound of months that PostgreSQL reads as before or after all others.
constexpr const char* beforeAll = "-infinity";
constexpr const char* afterAll = "infinity";

/// A statement with the values in the place of its parameters: those of several statements reach the server
/// in one message.
std::string withValues(std::string statement, int shop, const std::string& first, const std::string& end)
{
    const std::array values{std::to_string(shop), '\'' + first + '\'', '\'' + end + '\''};
    for (std::size_t at = 0; (at = statement.find('$', at)) != std::string::npos;)
        statement.replace(at, 2, values.at(static_cast<std::size_t>(statement[at + 1] - '1')));
    return statement + ";\n";
}

std::string writing(const Rollup& rollup, int shop, const std::string& first, const std::string& end)
{
    const std::string name = rollup.name;
    return withValues("DELETE FROM " + name + " WHERE shop = $1 AND month >= $2 AND month < $3", shop, first,
                      end) +
           withValues("INSERT INTO " + name + ' ' + selectOf(rollup), shop, first, end);
}

/// Adds a day that the totals do not contain.
std::string adding(const Rollup& rollup, int shop, QDate day)
{
    const std::string name = rollup.name;
    return withValues("INSERT INTO " + name + ' ' + selectOf(rollup) + " ON CONFLICT (shop, month" +
                          rollup.key + ") DO UPDATE SET quantity = " + name +
                          ".quantity + excluded.quantity, takings = " + name + ".takings + excluded.takings",
                      shop, isoDay(day), isoDay(day.addDays(1)));
}

std::string writingMonth(const Rollup& rollup, int shop, QDate month)
{
    return writing(rollup, shop, isoDay(month), isoDay(month.addMonths(1)));
}

std::string declarationOf(const Rollup& rollup)
{
    return std::string("CREATE TABLE ") + rollup.name + " (shop integer NOT NULL, month date NOT NULL, " +
           rollup.columns + ", PRIMARY KEY (shop, month" + rollup.key + "))";
}

/// Nothing but zeros in all columns that are added up.
std::string zeroCondition(const SalesTable& days)
{
    std::string all;
    for (const std::string& column : summedColumnsOf(days))
        all += " AND " + column + " = 0";
    return all;
}

/// A day of which a report was collected has totals, 0 if it sold nothing.
std::string totalsStatement(const std::string& assignments, const std::string& source)
{
    return "UPDATE published_days d SET " + assignments + " FROM (SELECT shop, day, " + source +
           " WHERE shop = $1 AND day >= $2 AND day < $3 GROUP BY shop, day) t "
           "WHERE d.shop = $1 AND t.shop = d.shop AND d.day = t.day";
}

std::vector<std::string> conversionStatements()
{
    std::vector<std::string> all{
        totalsStatement("quantity = t.quantity, takings = t.takings", std::string("sum(") + pluQuantity +
                                                                          ") AS quantity, sum(" + pluTakings +
                                                                          ") AS takings FROM plu_sales"),
        totalsStatement("net_sales = t.net_sales", "coalesce(sum(value) FILTER (WHERE line = " +
                                                       std::to_string(store::salestable::netSalesLine) +
                                                       "), 0) AS net_sales FROM financial_sales")};
    for (const auto& days : salesTables()) {
        all.push_back("DELETE FROM " + std::string(days.name) +
                      " WHERE shop = $1 AND day >= $2 AND day < $3" + zeroCondition(days));
    }
    all.emplace_back("UPDATE published_days SET rolled_up = true WHERE shop = $1 AND day >= $2 AND day < $3");
    return all;
}

std::vector<QDate> monthsWhere(pqxx::work& work, int shop, const std::string& condition)
{
    std::vector<QDate> all;
    for (const auto& row : work.exec_params("SELECT DISTINCT date_trunc('month', day::timestamp)::date::text "
                                            "FROM published_days WHERE shop = $1" +
                                                condition + " ORDER BY 1",
                                            shop))
        all.push_back(QDate::fromString(QString::fromUtf8(row[0].c_str()), Qt::ISODate));
    return all;
}

/// Days whose totals are not those of their PLUs.
std::string wrongDays()
{
    return std::string("SELECT d.day FROM published_days d LEFT JOIN (SELECT shop, day, sum(") + pluQuantity +
           ") AS quantity, sum(" + pluTakings +
           ") AS takings FROM plu_sales WHERE shop = $1 AND day >= $2 AND day < $3 GROUP BY shop, day) t "
           "ON t.shop = d.shop AND t.day = d.day WHERE d.shop = $1 AND d.day >= $2 AND d.day < $3 "
           "AND (coalesce(d.quantity, 0) <> coalesce(t.quantity, 0) OR coalesce(d.takings, 0) <> "
           "coalesce(t.takings, 0))";
}

} // namespace

std::vector<std::string> rollupStatements()
{
    std::vector<std::string> all;
    all.reserve(monthTotals.size());
    for (const auto& rollup : monthTotals)
        all.push_back(declarationOf(rollup));
    // For one PLU, and for one month, of all shops. Equal keys of an index share one entry, so these are
    // small.
    for (const char* index :
         {"plu_sales (plu)", "plu_months (plu)", "plu_months (month)", "published_days (day)"})
        all.push_back(std::string("CREATE INDEX ON ") + index);
    return all;
}

std::vector<std::string> rollupNames()
{
    std::vector<std::string> all;
    all.reserve(monthTotals.size());
    for (const auto& rollup : monthTotals)
        all.emplace_back(rollup.name);
    return all;
}

void rollUp(pqxx::work& work, int shop, QDate month)
{
    // The server has no statistics of a month that has just begun and would sort its sales.
    std::string all = "SET LOCAL enable_sort = off;\n";
    for (const auto& rollup : monthTotals)
        all += writingMonth(rollup, shop, month);
    work.exec(all);
}

bool isInTotals(pqxx::work& work, int shop, QDate day)
{
    return std::ranges::any_of(monthTotals, [&](const Rollup& rollup) {
        return rollup.days != nullptr &&
               !work.exec(withValues(std::string("SELECT shop FROM ") + rollup.days +
                                         " WHERE shop = $1 AND day = $2 LIMIT 1",
                                     shop, isoDay(day), {}))
                    .empty();
    });
}

void addDay(pqxx::work& work, int shop, QDate day)
{
    std::string all;
    for (const auto& rollup : monthTotals) {
        all += rollup.days != nullptr ? adding(rollup, shop, day)
                                      : writingMonth(rollup, shop, {day.year(), day.month(), 1});
    }
    work.exec(all);
}

void rollUpGroups(pqxx::work& work, int shop)
{
    const auto* const groups =
        std::ranges::find(monthTotals, std::string_view("group_months"), &Rollup::name);
    work.exec(writing(*groups, shop, beforeAll, afterAll));
}

void convertMonth(pqxx::work& work, int shop, QDate month)
{
    for (const std::string& statement : conversionStatements())
        work.exec_params0(statement, shop, isoDay(month), isoDay(month.addMonths(1)));
    rollUp(work, shop, month);
}

std::vector<QDate> formerMonths(pqxx::work& work, int shop)
{
    return monthsWhere(work, shop, " AND NOT rolled_up");
}

std::vector<QDate> monthsOf(pqxx::work& work, int shop)
{
    return monthsWhere(work, shop, "");
}

bool isRolledUp(pqxx::work& work, int shop, QDate month)
{
    const auto isEmpty = [&](const std::string& select) {
        return work.exec_params(select + " LIMIT 1", shop, isoDay(month), isoDay(month.addMonths(1))).empty();
    };
    return isEmpty(wrongDays()) && std::ranges::all_of(monthTotals, [&](const Rollup& rollup) {
               const std::string stored = std::string("SELECT * FROM ") + rollup.name +
                                          " WHERE shop = $1 AND month >= $2 AND month < $3";
               const std::string summed = selectOf(rollup);
               return isEmpty("(" + stored + " EXCEPT " + summed + ") UNION ALL (" + summed + " EXCEPT " +
                              stored + ")");
           });
}

} // namespace norvane::chain
