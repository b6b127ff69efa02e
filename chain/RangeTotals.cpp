// See RangeTotals.h.
//
// A range of days is the months between the two beginnings of months that are next to its ends, with the days
// added that these months lack and those taken away that they have too much: at most half a month of days is
// read at each end, however long the range is.
#include "chain/RangeTotals.h"

#include "chain/Rollups.h"

#include <array>

namespace norvane::chain
{
namespace
{

/// What is added up for a range.
struct Range {
    const char* name;     ///< of the function
    const char* item;     ///< the column that names the item in days and months
    const char* months;   ///< the roll-up
    const char* days;     ///< the table of its days
    const char* dayItem;  ///< the item in a row d of the days
    const char* dayJoin;  ///< what that needs beside d
    const char* quantity; ///< in a row d
    const char* takings;
    const char* columns;  ///< of the result, from the totals t
    const char* declared; ///< the same as a declaration
    const char* names;    ///< joins that bring the names
};

constexpr auto ranges = std::to_array<Range>({
    {"plu_takings", "plu", "plu_months", "plu_sales", "d.plu", "", pluQuantity, pluTakings,
     "t.plu, p.description, p.group_no, g.description AS group_name",
     "plu text, description text, group_no integer, group_name text",
     "LEFT JOIN plus p ON p.shop = t.shop AND p.plu = t.plu "
     "LEFT JOIN groups g ON g.shop = t.shop AND g.group_no = p.group_no"},
    {"group_takings", "group_no", "group_months", "plu_sales", "coalesce(p.group_no, -1)",
     "LEFT JOIN plus p ON p.shop = d.shop AND p.plu = d.plu", pluQuantity, pluTakings,
     "nullif(t.group_no, -1) AS group_no, g.description AS group_name", "group_no integer, group_name text",
     "LEFT JOIN groups g ON g.shop = t.shop AND g.group_no = t.group_no"},
    {"time_takings", "period", "time_months", "time_sales", "d.period", "", "quantity", "value",
     "t.period, p.starts_at, p.ends_at", "period integer, starts_at text, ends_at text",
     "LEFT JOIN time_periods p ON p.shop = t.shop AND p.period = t.period"},
});

/// The bounds of a range as expressions of PostgreSQL: days from first until before end, months from start
/// until before finish.
struct Bounds {
    std::string first;
    std::string end;
    std::string start;
    std::string finish;
};

/// The beginning of a month that is next to a day.
std::string nearestMonth(const std::string& day)
{
    return "date_trunc('month', (" + day + " + 15)::timestamp)::date";
}

Bounds boundsOf(const std::string& first, const std::string& last)
{
    const std::string end = '(' + last + " + 1)";
    return {first, end, nearestMonth(first), nearestMonth(end)};
}

/// The last 30 days. Nothing is sold after today, so the month of today is taken as a whole. Each bound is
/// asked for once and not for every row.
Bounds lastDays()
{
    return {"(SELECT current_date - 29)", "(SELECT current_date + 1)",
            "(SELECT " + nearestMonth("(current_date - 29)") + ')',
            "(SELECT (date_trunc('month', current_date::timestamp) + interval '1 month')::date)"};
}

/// Days that are added to the months or taken away from them.
struct Edge {
    std::string from;
    std::string until; ///< the day after
    const char* sign;
};

std::array<Edge, 4> edgesOf(const Bounds& bounds)
{
    const auto least = [](const std::string& one, const std::string& other) {
        return "least(" + one + ", " + other + ')';
    };
    const auto greatest = [](const std::string& one, const std::string& other) {
        return "greatest(" + one + ", " + other + ')';
    };
    return {{{bounds.first, least(bounds.start, bounds.end), ""},
             {greatest(bounds.finish, bounds.first), bounds.end, ""},
             {bounds.start, least(bounds.first, bounds.finish), "-"},
             {greatest(bounds.end, bounds.start), bounds.finish, "-"}}};
}

std::string monthsOf(const Range& range, const Bounds& bounds)
{
    return "SELECT s.shop, s.name AS shop_name, m." + std::string(range.item) +
           ", m.quantity, m.takings FROM " + range.months +
           " m JOIN shops s ON s.shop = m.shop WHERE m.month >= " + bounds.start + " AND m.month < " +
           bounds.finish;
}

std::string daysOf(const Range& range, const Edge& edge)
{
    return " UNION ALL SELECT s.shop, s.name, " + std::string(range.dayItem) + ", " + edge.sign + '(' +
           range.quantity + "), " + edge.sign + '(' + range.takings + ") FROM " + range.days +
           " d JOIN shops s ON s.shop = d.shop " + range.dayJoin + " WHERE d.day >= " + edge.from +
           " AND d.day < " + edge.until;
}

/// Shop, item, quantity and takings, added up. Each source has the shops beside it: a shop whose name is
/// asked for becomes a number before its sales are read.
std::string totals(const Range& range, const Bounds& bounds)
{
    std::string sources = monthsOf(range, bounds);
    for (const Edge& edge : edgesOf(bounds))
        sources += daysOf(range, edge);
    return "SELECT shop, shop_name, " + std::string(range.item) +
           ", sum(quantity) AS quantity, sum(takings) AS takings FROM (" + sources +
           ") u GROUP BY shop, shop_name, " + range.item + " HAVING sum(quantity) <> 0 OR sum(takings) <> 0";
}

std::string selectOf(const Range& range, const Bounds& bounds, const std::string& takings)
{
    return "SELECT t.shop, t.shop_name, " + std::string(range.columns) + ", t.quantity, " + takings +
           " AS takings FROM (" + totals(range, bounds) + ") t " + range.names;
}

} // namespace

std::string recentPluTotals()
{
    return selectOf(ranges.front(), lastDays(), "t.takings");
}

std::vector<std::string> rangeFunctions()
{
    std::vector<std::string> all;
    all.reserve(ranges.size());
    for (const auto& range : ranges) {
        // Such a body finds its tables whatever the search path of the reader is.
        all.push_back("CREATE OR REPLACE FUNCTION " + std::string(range.name) +
                      "(from_day date, to_day date) RETURNS TABLE (shop integer, shop_name text, " +
                      range.declared +
                      ", quantity numeric, takings numeric) LANGUAGE sql STABLE "
                      "BEGIN ATOMIC " +
                      selectOf(range, boundsOf("from_day", "to_day"), "round(t.takings, 2)") + "; END");
    }
    return all;
}

} // namespace norvane::chain
