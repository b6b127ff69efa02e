// See ChainViews.h.
#include "chain/ChainViews.h"

#include "chain/RangeTotals.h"

namespace norvane::chain
{
namespace
{

struct View {
    const char* name;
    std::string select;
};

/// A view may read those before it. Money is added up exactly and rounded at the end, halves away from zero,
/// as reports show it. Columns keep their order and types: views of others may read these.
std::vector<View> views()
{
    // A register with a wrong clock may have sold after today.
    const std::string lastDay = "max(least(m.last_day, current_date)) FILTER (WHERE m.shop IS NOT NULL)";
    return {
        {"plu_lines", "SELECT t.shop, s.name AS shop_name, t.day, t.plu, p.description, p.group_no, "
                      "g.description AS group_name, "
                      "t.count1 + t.count2 + t.count3 + t.count4 + t.count5 AS quantity, "
                      "t.value1 + t.value2 + t.value3 + t.value4 + t.value5 AS takings "
                      "FROM plu_sales t JOIN shops s ON s.shop = t.shop "
                      "LEFT JOIN plus p ON p.shop = t.shop AND p.plu = t.plu "
                      "LEFT JOIN groups g ON g.shop = t.shop AND g.group_no = p.group_no"},
        {"takings_by_plu", "SELECT shop, shop_name, day, plu, description, group_no, group_name, quantity, "
                           "round(takings, 2) AS takings FROM plu_lines WHERE quantity <> 0 OR takings <> 0"},
        // Grouped by numbers; each has one name, and a condition on it still reaches the sales.
        {"takings_by_group",
         "SELECT s.shop, s.name AS shop_name, t.day, p.group_no, g.description AS group_name, "
         "sum(t.count1 + t.count2 + t.count3 + t.count4 + t.count5) AS quantity, "
         "round(sum(t.value1 + t.value2 + t.value3 + t.value4 + t.value5), 2) AS takings "
         "FROM plu_sales t JOIN shops s ON s.shop = t.shop "
         "LEFT JOIN plus p ON p.shop = t.shop AND p.plu = t.plu "
         "LEFT JOIN groups g ON g.shop = t.shop AND g.group_no = p.group_no "
         "GROUP BY s.shop, t.day, p.group_no, g.shop, g.group_no"},
        // A day that was only partly collected is included, with null for what is missing.
        {"day_lines", "SELECT d.shop, s.name AS shop_name, d.day, d.quantity, d.takings, d.net_sales "
                      "FROM published_days d JOIN shops s ON s.shop = d.shop"},
        {"takings_by_day", "SELECT shop, shop_name, day, quantity, round(takings, 2) AS takings, "
                           "round(net_sales, 2) AS net_sales FROM day_lines"},
        {"takings_by_shop",
         "SELECT s.shop, s.name AS shop_name, min(m.first_day) AS first_day, max(m.last_day) AS last_day, "
         "coalesce(sum(m.days), 0) AS days, sum(m.quantity) AS quantity, "
         "round(sum(m.takings), 2) AS takings, round(sum(m.net_sales), 2) AS net_sales "
         "FROM shops s LEFT JOIN shop_months m ON m.shop = s.shop GROUP BY s.shop, s.name"},
        {"best_sellers",
         "SELECT shop, shop_name, rank() OVER (PARTITION BY shop ORDER BY takings DESC) AS rank, "
         "plu, description, quantity, round(takings, 2) AS takings FROM (" +
             recentPluTotals() + ") b WHERE takings <> 0"},
        {"shops_without_collection_yesterday",
         "SELECT s.shop, s.name AS shop_name, " + lastDay + " AS last_day, current_date - " + lastDay +
             " AS days_ago "
             "FROM shops s LEFT JOIN shop_months m ON m.shop = s.shop AND m.month <= current_date "
             "LEFT JOIN published_days d ON d.shop = s.shop AND d.day = current_date - 1 "
             "WHERE d.day IS NULL GROUP BY s.shop, s.name"},
    };
}

} // namespace

std::vector<std::string> viewStatements()
{
    std::vector<std::string> all;
    for (const auto& [name, select] : views())
        all.push_back(std::string("CREATE OR REPLACE VIEW ") + name + " AS " + select);
    return all;
}

} // namespace norvane::chain
