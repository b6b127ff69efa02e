// See PageSections.h.
//
// A day is compared with that of 52 weeks earlier, the same weekday. A change is that of the days, or months,
// that have sales in both years, in per cent; there is none without such days.
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
constexpr auto shopNameHeading = PageHeading{"Shop", PageColumn::Text};

constexpr std::array dayHeadings{dayHeading, takingsHeading, beforeHeading};
constexpr std::array monthHeadings{PageHeading{"Month", PageColumn::Text}, takingsHeading, beforeHeading,
                                   changeHeading};
constexpr std::array groupHeadings{PageHeading{"Group", PageColumn::Text}, takingsHeading, quantityHeading,
                                   PageHeading{"Share %", PageColumn::Number}};
constexpr std::array pluHeadings{PageHeading{"PLU", PageColumn::Text},
                                 PageHeading{"Description", PageColumn::Text}, takingsHeading,
                                 quantityHeading};
constexpr std::array shopHeadings{shopNumberHeading, shopNameHeading, takingsHeading,
                                  beforeHeading,     changeHeading,   lastDayHeading};
constexpr std::array missingHeadings{shopNumberHeading, shopNameHeading, lastDayHeading,
                                     PageHeading{"Days ago", PageColumn::Number}};

constexpr auto sections = std::to_array<PageSection>({
    {"Shops without a collection yesterday",
     "SELECT NULL::integer, shop, shop_name, last_day, days_ago FROM shops_without_collection_yesterday "
     "WHERE $1::date <= $2::date ORDER BY days_ago DESC NULLS FIRST, shop_name",
     missingHeadings, false},
    {"Shops, the last 30 days",
     "SELECT NULL::integer, s.shop, s.name, round(sum(d.takings), 2), round(sum(b.takings), 2), "
     "round(100 * (sum(d.takings) FILTER (WHERE b.takings IS NOT NULL) - "
     "sum(b.takings) FILTER (WHERE d.takings IS NOT NULL)) / "
     "nullif(sum(b.takings) FILTER (WHERE d.takings IS NOT NULL), 0), 1), "
     "(SELECT max(m.last_day) FROM shop_months m WHERE m.shop = s.shop) "
     "FROM generate_series($1::date, $2::date, '1 day') g(day) CROSS JOIN shops s "
     "LEFT JOIN published_days d ON d.shop = s.shop AND d.day = g.day::date "
     "LEFT JOIN published_days b ON b.shop = s.shop AND b.day = g.day::date - 364 "
     "GROUP BY s.shop, s.name ORDER BY sum(d.takings) DESC NULLS LAST, s.name",
     shopHeadings, false},
    {"The last 30 days",
     "SELECT s.shop, g.day::date, round(sum(d.takings), 2), round(sum(b.takings), 2) "
     "FROM generate_series($1::date, $2::date, '1 day') g(day) CROSS JOIN shops s "
     "LEFT JOIN published_days d ON d.shop = s.shop AND d.day = g.day::date "
     "LEFT JOIN published_days b ON b.shop = s.shop AND b.day = g.day::date - 364 "
     "GROUP BY GROUPING SETS ((s.shop, g.day), (g.day)) ORDER BY g.day",
     dayHeadings, true},
    {"Months",
     "SELECT m.shop, to_char(m.month, 'YYYY-MM'), round(sum(m.takings), 2), round(sum(b.takings), 2), "
     "round(100 * (sum(m.takings) FILTER (WHERE b.takings IS NOT NULL) - sum(b.takings)) "
     "/ nullif(sum(b.takings), 0), 1) "
     "FROM shop_months m "
     "LEFT JOIN shop_months b ON b.shop = m.shop AND b.month = (m.month - interval '1 year')::date "
     "WHERE m.month > ($2::date - interval '12 months') AND $1::date <= $2::date "
     "GROUP BY GROUPING SETS ((m.shop, m.month), (m.month)) ORDER BY m.month",
     monthHeadings, true},
    {"Groups, the last 30 days",
     "SELECT shop, coalesce(group_name, 'Without a group'), round(sum(takings), 2), sum(quantity), "
     "round(100 * sum(takings) / nullif(sum(sum(takings)) OVER (PARTITION BY shop, grouping(shop)), 0), 1) "
     "FROM group_takings($1, $2) GROUP BY GROUPING SETS ((shop, 2), (2)) ORDER BY 3 DESC, 2",
     groupHeadings, true},
    {"Best sellers of the last 30 days",
     "SELECT shop, plu, description, takings, quantity FROM best_sellers "
     "WHERE rank <= 20 AND $1::date <= $2::date ORDER BY rank, plu",
     pluHeadings, false},
    {"Best sellers of the last 30 days",
     "SELECT NULL::integer, plu, description, sum(takings), sum(quantity) FROM best_sellers "
     "WHERE $1::date <= $2::date GROUP BY plu, description ORDER BY 4 DESC, 2 LIMIT 20",
     pluHeadings, false},
});

} // namespace

std::span<const PageSection> pageSections()
{
    return sections;
}

} // namespace norvane::chain
