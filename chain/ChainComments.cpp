// See ChainComments.h.
#include "chain/ChainComments.h"

#include <array>

namespace norvane::chain
{
namespace
{

struct Comment {
    const char* name;
    const char* text;
};

constexpr auto relationComments = std::to_array<Comment>({
    {"TABLE chain_version", "Version of this schema"},
    {"TABLE shops", "The shops of the chain"},
    {"TABLE published_days", "Each day that a shop published, with its totals"},
    {"TABLE published_names", "Which names of a shop are published"},
    {"TABLE plu_sales", "Sales of PLUs by day; a PLU that sold nothing has no row"},
    {"TABLE financial_sales", "Lines of the financial report by day; line 2 is net sales"},
    {"TABLE employee_sales", "Lines of the report of each employee by day"},
    {"TABLE time_sales", "Sales of time periods by day"},
    {"TABLE mix_sales", "Mix and match by day"},
    {"TABLE plus", "PLUs as they are now"},
    {"TABLE groups", "Groups as they are now"},
    {"TABLE employees", "Employees as they are now, names only"},
    {"TABLE time_periods", "Time periods as they are now"},
    {"TABLE mixes", "Mix and match promotions as they are now"},
    {"TABLE financial_lines", "Names of the lines of the financial report"},
    {"TABLE employee_lines", "Names of the lines of an employee''s report"},
    {"TABLE shop_months", "Totals of each shop and month, always those of its days"},
    {"TABLE plu_months", "Totals of each PLU and month, always those of its days"},
    {"TABLE group_months",
     "Totals of each group and month by the present groups of the PLUs; group -1 is none"},
    {"TABLE time_months", "Totals of each time period and month, always those of its days"},
    {"VIEW plu_lines", "Sales of PLUs by day with names, not rounded"},
    {"VIEW day_lines", "Totals by day, not rounded"},
    {"VIEW takings_by_shop", "Days, quantity, takings and net sales of each shop"},
    {"VIEW takings_by_day", "Quantity, takings and net sales of each shop and day"},
    {"VIEW takings_by_group", "Quantity and takings of each group and day"},
    {"VIEW takings_by_plu", "Quantity and takings of each PLU and day"},
    {"VIEW best_sellers", "PLUs of the last 30 days by takings, with their rank in each shop"},
    {"VIEW shops_without_collection_yesterday", "Shops that published no sales of yesterday"},
    {"FUNCTION plu_takings(date, date)", "Quantity and takings of each PLU from a day to a day"},
    {"FUNCTION group_takings(date, date)", "Quantity and takings of each group from a day to a day"},
    {"FUNCTION time_takings(date, date)", "Quantity and takings of each time period from a day to a day"},
    {"FUNCTION make_month(date)", "Makes the partitions of a month"},
});

/// A column means the same in every table.
constexpr auto columnComments = std::to_array<Comment>({
    {"shop", "Number of the shop"},
    {"day", "Day of the collection"},
    {"month", "First day of the month"},
    {"plu", "Number of the PLU, with its leading zeros"},
    {"line", "Number of the line of the report"},
    {"employee", "Number of the employee"},
    {"period", "Number of the time period"},
    {"mix", "Number of the mix and match"},
    {"group_no", "Number of the group"},
    {"promo", "Quantity sold in promotions"},
    {"waste", "Quantity wasted"},
    {"count1", "Quantity sold at price level 1"},
    {"count2", "Quantity sold at price level 2"},
    {"count3", "Quantity sold at price level 3"},
    {"count4", "Quantity sold at price level 4"},
    {"count5", "Quantity sold at price level 5"},
    {"value1", "Money taken at price level 1"},
    {"value2", "Money taken at price level 2"},
    {"value3", "Money taken at price level 3"},
    {"value4", "Money taken at price level 4"},
    {"value5", "Money taken at price level 5"},
    {"quantity", "Quantity"},
    {"value", "Money"},
    {"takings", "Money taken for PLUs; empty if none were collected"},
    {"net_sales", "Net sales of the financial report; empty if none was collected"},
    {"name", "Name"},
    {"shop_name", "Name of the shop"},
    {"group_name", "Name of the group now"},
    {"folded_name", "Name without regard to case, by which a shop is found"},
    {"folder_id", "Id in norvane-chain.ini of the folder that may publish the shop"},
    {"first_published", "When the shop was published first"},
    {"published_at", "When this was published last"},
    {"digest", "Compared with that of the shop: unchanged days are skipped"},
    {"row_count", "Rows that were published"},
    {"kept", "The shop no longer has the day or a part of it, and it was kept"},
    {"kept_digest", "What the shop had of a kept day: when that changes, the day is published again"},
    {"rolled_up", "Totals of day and month have been made"},
    {"table_name", "Table of the names"},
    {"version", "Version"},
    {"description", "Text on register and reports"},
    {"price1", "Price of level 1"},
    {"price2", "Price of level 2"},
    {"price3", "Price of level 3"},
    {"price4", "Price of level 4"},
    {"price5", "Price of level 5"},
    {"starts_at", "Beginning, as 09:30"},
    {"ends_at", "End, as 12:00"},
    {"first_day", "First day with sales"},
    {"last_day", "Last day with sales"},
    {"days", "Number of days"},
    {"days_ago", "Days since then"},
    {"rank", "Place by takings, 1 for the best"},
});

/// The columns of all tables and views at once: one statement for each would be hundreds.
std::string columnStatement()
{
    std::string values;
    for (const auto& [name, text] : columnComments)
        values += std::string(values.empty() ? "" : ", ") + "('" + name + "', '" + text + "')";
    return "DO $$ DECLARE each record; BEGIN FOR each IN SELECT c.oid::regclass AS relation, a.attname, "
           "v.text "
           "FROM pg_catalog.pg_class c JOIN pg_catalog.pg_attribute a ON a.attrelid = c.oid AND a.attnum > 0 "
           "JOIN (VALUES " +
           values +
           ") v (name, text) ON v.name = a.attname "
           "WHERE c.relnamespace = 'norvane'::regnamespace AND c.relkind IN ('r', 'p', 'v') "
           "AND NOT c.relispartition LOOP "
           "EXECUTE format('COMMENT ON COLUMN %s.%I IS %L', each.relation, each.attname, each.text); "
           "END LOOP; END $$";
}

} // namespace

std::vector<std::string> commentStatements()
{
    std::vector<std::string> all;
    all.reserve(relationComments.size() + 1);
    for (const auto& [name, text] : relationComments)
        all.push_back(std::string("COMMENT ON ") + name + " IS '" + text + '\'');
    all.push_back(columnStatement());
    return all;
}

} // namespace norvane::chain
