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

/// The beginning of a month that is next to a day.
std::string nearestMonth(const std::string& day)
{
    return "date_trunc('month', (" + day + " + 15)::timestamp)::date";
}

/// The end of the months of a range. Nothing is sold after today, so a range until now takes the month of
/// today as a whole and reads no day of it.
std::string lastMonthEnd(const std::string& last)
{
    return "CASE WHEN " + last + " >= current_date - 1 THEN (date_trunc('month', " + last +
           "::timestamp) + interval '1 month')::date ELSE " + nearestMonth(last + " + 1") + " END";
}

/// Both sides of a bound: the days between the end of the range and the nearest month. The server reads no
/// partition without such days.
std::string between(const std::string& bound, const std::string& month)
{
    return "(d.day >= least(" + bound + ", " + month + ") AND d.day < greatest(" + bound + ", " + month +
           "))";
}

/// Shop, item, quantity and takings, added up with names of shops: a name that is asked for becomes a number
/// before sales are read.
std::string totals(const Range& range, const std::string& first, const std::string& last)
{
    const std::string start = nearestMonth(first);
    const std::string end = lastMonthEnd(last);
    const std::string item = range.item;
    const std::string isInRange = "d.day >= " + first + " AND d.day <= " + last;
    const auto edge = [&](const char* sum) {
        return "CASE WHEN " + isInRange + " THEN " + sum + " ELSE -(" + sum + ") END";
    };
    return "SELECT s.shop, s.name AS shop_name, u." + item +
           ", sum(u.quantity) AS quantity, sum(u.takings) AS takings FROM (SELECT shop, " + item +
           ", quantity, takings FROM " + range.months + " WHERE month >= " + start + " AND month < " + end +
           " UNION ALL SELECT d.shop, " + range.dayItem + ", " + edge(range.quantity) + ", " +
           edge(range.takings) + " FROM " + range.days + " d " + range.dayJoin + " WHERE (" +
           between(first, start) + " OR " + between('(' + last + " + 1)", end) + ") AND (" + isInRange +
           ") <> (d.day >= " + start + " AND d.day < " + end +
           ")) u JOIN shops s ON s.shop = u.shop GROUP BY "
           "s.shop, u." +
           item + " HAVING sum(u.quantity) <> 0 OR sum(u.takings) <> 0";
}

std::string selectOf(const Range& range, const std::string& first, const std::string& last,
                     const std::string& takings)
{
    return "SELECT t.shop, t.shop_name, " + std::string(range.columns) + ", t.quantity, " + takings +
           " AS takings FROM (" + totals(range, first, last) + ") t " + range.names;
}

} // namespace

std::string pluTotals(const std::string& first, const std::string& last)
{
    return selectOf(ranges.front(), first, last, "t.takings");
}

std::vector<std::string> rangeFunctions()
{
    std::vector<std::string> all;
    for (const auto& range : ranges) {
        // Such a body finds its tables whatever the search path of the reader is.
        all.push_back("CREATE OR REPLACE FUNCTION " + std::string(range.name) +
                      "(from_day date, to_day date) RETURNS TABLE (shop integer, shop_name text, " +
                      range.declared +
                      ", quantity numeric, takings numeric) LANGUAGE sql STABLE "
                      "BEGIN ATOMIC " +
                      selectOf(range, "from_day", "to_day", "round(t.takings, 2)") + "; END");
    }
    return all;
}

} // namespace norvane::chain
