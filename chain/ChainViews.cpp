// See ChainViews.h.
#include "chain/ChainViews.h"

#include <array>

namespace norvane::chain
{
namespace
{

struct View {
    const char* name;
    const char* select;
};

/// A view may read those before it. Money is added up exactly and rounded at the end, halves away from zero,
/// as reports show it.
constexpr auto views = std::to_array<View>({
    {"plu_lines", "SELECT t.shop, s.name AS shop_name, t.day, t.plu, p.description, p.group_no, "
                  "g.description AS group_name, "
                  "t.count1 + t.count2 + t.count3 + t.count4 + t.count5 AS quantity, "
                  "t.value1 + t.value2 + t.value3 + t.value4 + t.value5 AS takings "
                  "FROM plu_sales t JOIN shops s ON s.shop = t.shop "
                  "LEFT JOIN plus p ON p.shop = t.shop AND p.plu = t.plu "
                  "LEFT JOIN groups g ON g.shop = t.shop AND g.group_no = p.group_no"},
    {"takings_by_plu", "SELECT shop, shop_name, day, plu, description, group_no, group_name, quantity, "
                       "round(takings, 2) AS takings FROM plu_lines WHERE quantity <> 0 OR takings <> 0"},
    {"takings_by_group", "SELECT shop, shop_name, day, group_no, group_name, sum(quantity) AS quantity, "
                         "round(sum(takings), 2) AS takings FROM plu_lines "
                         "GROUP BY shop, shop_name, day, group_no, group_name"},
    // A day that was only partly collected is included, with null for what is missing.
    {"day_lines",
     "SELECT t.shop, s.name AS shop_name, t.day, t.quantity, t.takings, t.net_sales "
     "FROM (SELECT shop, day, sum(quantity) AS quantity, sum(takings) AS takings, sum(net_sales) AS "
     "net_sales "
     "FROM (SELECT shop, day, count1 + count2 + count3 + count4 + count5 AS quantity, "
     "value1 + value2 + value3 + value4 + value5 AS takings, NULL::numeric AS net_sales FROM plu_sales "
     "UNION ALL SELECT shop, day, NULL, NULL, value FROM financial_sales WHERE line = 2 "
     "UNION ALL SELECT shop, day, NULL, NULL, NULL FROM published_days) u GROUP BY shop, day) t "
     "JOIN shops s ON s.shop = t.shop"},
    {"takings_by_day", "SELECT shop, shop_name, day, quantity, round(takings, 2) AS takings, "
                       "round(net_sales, 2) AS net_sales FROM day_lines"},
    {"takings_by_shop",
     "SELECT s.shop, s.name AS shop_name, min(d.day) AS first_day, max(d.day) AS last_day, "
     "count(d.day) AS days, sum(d.quantity) AS quantity, round(sum(d.takings), 2) AS takings, "
     "round(sum(d.net_sales), 2) AS net_sales FROM shops s LEFT JOIN day_lines d ON d.shop = s.shop "
     "GROUP BY s.shop, s.name"},
    {"best_sellers",
     "SELECT shop, shop_name, rank() OVER (PARTITION BY shop ORDER BY sum(takings) DESC) AS rank, "
     "plu, description, sum(quantity) AS quantity, round(sum(takings), 2) AS takings "
     "FROM plu_lines WHERE day BETWEEN current_date - 29 AND current_date "
     "GROUP BY shop, shop_name, plu, description HAVING sum(takings) <> 0"},
    {"shops_without_collection_yesterday",
     "SELECT s.shop, s.name AS shop_name, max(d.day) AS last_day, current_date - max(d.day) AS days_ago "
     "FROM shops s LEFT JOIN published_days d ON d.shop = s.shop GROUP BY s.shop, s.name "
     "HAVING coalesce(bool_or(d.day = current_date - 1), false) = false"},
});

} // namespace

std::vector<std::string> viewStatements()
{
    std::vector<std::string> all;
    all.reserve(views.size());
    for (const auto& [name, select] : views)
        all.push_back(std::string("CREATE VIEW ") + name + " AS " + select);
    return all;
}

} // namespace norvane::chain
