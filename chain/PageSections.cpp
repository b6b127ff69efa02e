// See PageSections.h.
//
// A day is compared with that of 52 weeks earlier, the same weekday; a month with the same days of the year
// before. A change is that of the days that have sales in both years, in per cent: neither a month that has
// not ended nor one in which a shop opened looks like a loss or a gain. There is none without such days.
//
// What a register with a wrong clock sold in the future is not shown.
#include "chain/PageSections.h"

#include <array>

namespace norvane::chain
{
namespace
{

constexpr auto dayHeading = PageHeading{"Day", PageColumn::Text};
constexpr auto takingsHeading = PageHeading{"Takings", PageColumn::Number};
constexpr auto beforeHeading = PageHeading{"A year earlier", PageColumn::Number};
constexpr auto changeHeading = PageHeading{"Change %", PageColumn::Number};
constexpr auto quantityHeading = PageHeading{"Quantity", PageColumn::Number};
constexpr auto lastDayHeading = PageHeading{"Last day", PageColumn::Text};
constexpr auto shopNumberHeading = PageHeading{"", PageColumn::Shop};
constexpr auto shopNameHeading = PageHeading{"Shop", PageColumn::Name};

constexpr std::array dayHeadings{dayHeading, takingsHeading, beforeHeading};
constexpr std::array monthHeadings{PageHeading{"Month", PageColumn::Text}, takingsHeading, beforeHeading,
                                   changeHeading};
constexpr std::array groupHeadings{PageHeading{"Group", PageColumn::Name}, takingsHeading, quantityHeading,
                                   PageHeading{"Share %", PageColumn::Share}};
constexpr std::array pluHeadings{PageHeading{"Description", PageColumn::Name}, takingsHeading,
                                 quantityHeading, PageHeading{"PLU", PageColumn::Text}};
constexpr std::array shopHeadings{shopNumberHeading, shopNameHeading, takingsHeading,
                                  beforeHeading,     changeHeading,   lastDayHeading};
constexpr std::array missingHeadings{shopNumberHeading, shopNameHeading, lastDayHeading,
                                     PageHeading{"Days ago", PageColumn::Number}};

constexpr auto noNote = "";
constexpr auto shopNote =
    "A year earlier: 52 weeks, the same weekdays. Change: of the days with sales in both years.";
constexpr auto dayNote = "Dark: takings. Pale: 52 weeks earlier, the same weekday.";
constexpr auto monthNote =
    "Dark: takings until today. Pale: the same days a year earlier. Change: of the days with sales in both "
    "years.";

constexpr auto sections = std::to_array<PageSection>({
    {"Shops without a collection yesterday",
     "SELECT NULL::integer, shop, shop_name, last_day, days_ago FROM shops_without_collection_yesterday "
     "WHERE $1::date <= $2::date ORDER BY days_ago DESC NULLS FIRST, shop_name",
     missingHeadings, false, noNote},
    {"Shops, the last 30 days",
     "SELECT NULL::integer, s.shop, s.name, round(sum(d.takings), 2), round(sum(b.takings), 2), "
     "round(100 * (sum(d.takings) FILTER (WHERE b.takings IS NOT NULL) - "
     "sum(b.takings) FILTER (WHERE d.takings IS NOT NULL)) / "
     "nullif(sum(b.takings) FILTER (WHERE d.takings IS NOT NULL), 0), 1), "
     "(SELECT max(least(m.last_day, $2::date)) FROM shop_months m WHERE m.shop = s.shop AND m.month <= "
     "$2::date) "
     "FROM generate_series($1::date, $2::date, '1 day') g(day) CROSS JOIN shops s "
     "LEFT JOIN published_days d ON d.shop = s.shop AND d.day = g.day::date "
     "LEFT JOIN published_days b ON b.shop = s.shop AND b.day = g.day::date - 364 "
     "GROUP BY s.shop, s.name ORDER BY sum(d.takings) DESC NULLS LAST, s.name",
     shopHeadings, false, shopNote},
    {"The last 30 days",
     "SELECT s.shop, g.day::date, round(sum(d.takings), 2), round(sum(b.takings), 2) "
     "FROM generate_series($1::date, $2::date, '1 day') g(day) CROSS JOIN shops s "
     "LEFT JOIN published_days d ON d.shop = s.shop AND d.day = g.day::date "
     "LEFT JOIN published_days b ON b.shop = s.shop AND b.day = g.day::date - 364 "
     "GROUP BY GROUPING SETS ((s.shop, g.day), (g.day)) ORDER BY g.day",
     dayHeadings, true, dayNote},
    {"Months",
     "SELECT shop, to_char(day, 'YYYY-MM'), round(sum(takings), 2), round(sum(before), 2), "
     "round(100 * (sum(takings) FILTER (WHERE before IS NOT NULL) - "
     "sum(before) FILTER (WHERE takings IS NOT NULL)) / "
     "nullif(sum(before) FILTER (WHERE takings IS NOT NULL), 0), 1) "
     "FROM (SELECT shop, day, sum(takings) AS takings, sum(before) AS before FROM "
     "(SELECT shop, day, takings, NULL::numeric AS before FROM published_days "
     "WHERE day >= date_trunc('month', $2::timestamp) - interval '11 months' AND day <= $2::date "
     "UNION ALL SELECT shop, (day + interval '1 year')::date, NULL, takings FROM published_days "
     "WHERE day >= date_trunc('month', $2::timestamp) - interval '23 months' "
     "AND day <= $2::timestamp - interval '1 year') u "
     "WHERE $1::date <= $2::date GROUP BY shop, day) d "
     "GROUP BY GROUPING SETS ((shop, to_char(day, 'YYYY-MM')), (to_char(day, 'YYYY-MM'))) "
     "HAVING sum(takings) IS NOT NULL ORDER BY 2",
     monthHeadings, true, monthNote},
    {"Groups, the last 30 days",
     "SELECT shop, coalesce(group_name, 'Without a group'), round(sum(takings), 2), sum(quantity), "
     "round(100 * sum(takings) / nullif(sum(sum(takings)) OVER (PARTITION BY shop, grouping(shop)), 0), 1) "
     "FROM group_takings($1, $2) GROUP BY GROUPING SETS ((shop, 2), (2)) ORDER BY 3 DESC, 2",
     groupHeadings, false, noNote},
    {"Best sellers of the last 30 days",
     "SELECT shop, description, takings, quantity, plu FROM best_sellers "
     "WHERE rank <= 20 AND $1::date <= $2::date ORDER BY rank, plu",
     pluHeadings, false, noNote},
    {"Best sellers of the last 30 days",
     "SELECT NULL::integer, description, sum(takings), sum(quantity), plu FROM best_sellers "
     "WHERE $1::date <= $2::date GROUP BY plu, description ORDER BY 3 DESC, plu LIMIT 20",
     pluHeadings, false, noNote},
});

} // namespace

std::span<const PageSection> pageSections()
{
    return sections;
}

} // namespace norvane::chain
