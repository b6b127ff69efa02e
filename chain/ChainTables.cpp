// The tables of what is published; see ChainTables.h.
#include "chain/ChainTables.h"

#include "store/catalogue/Catalogue.h"
#include "store/catalogue/SalesTables.h"

#include <array>

namespace norvane::chain
{
namespace
{

using namespace store::salestable;

// clang-format off
constexpr ChainColumn pluItems[] = {{"ID", "plu", Content::Key}};
constexpr ChainColumn timeItems[] = {{"ID", "period", Content::Whole}};
constexpr ChainColumn employeeItems[] = {{"CLERKID", "employee", Content::Whole},
                                         {"ID", "line", Content::Whole}};
constexpr ChainColumn mixItems[] = {{"ID", "mix", Content::Whole}};
constexpr ChainColumn financialItems[] = {{"ID", "line", Content::Whole}};

/// No poll file fills the sales by group: they are those of the PLUs.
constexpr auto sales = std::to_array<SalesTable>({
    {plus,       "plu_sales",       pluItems, 0, Totalled::EveryRow},
    {times,      "time_sales",      timeItems, 0, Totalled::No},
    {clerks,     "employee_sales",  employeeItems, 0, Totalled::No},
    {mixes,      "mix_sales",       mixItems, 2, Totalled::No},
    {financials, "financial_sales", financialItems, 0, Totalled::NetSales},
});

constexpr ChainColumn pluNames[] = {
    {"PLUNUMBER", "plu", Content::Key},
    {"DESCRIPTION", "description", Content::Text},
    {"GROUPNO", "group_no", Content::Whole},
    {"PRICE1", "price1", Content::Number},
    {"PRICE2", "price2", Content::Number},
    {"PRICE3", "price3", Content::Number},
    {"PRICE4", "price4", Content::Number},
    {"PRICE5", "price5", Content::Number},
};
constexpr ChainColumn groupNames[] = {{"GROUPNO", "group_no", Content::Whole},
                                      {"DESCRIPTION", "description", Content::Text}};
/// Only their names: codes and pay rates remain in the shop.
constexpr ChainColumn employeeNames[] = {{"ID", "employee", Content::Whole},
                                         {"DESCRIPTION", "name", Content::Text}};
constexpr ChainColumn timeNames[] = {{"id", "period", Content::Whole},
                                     {"STARTTIME", "starts_at", Content::Time},
                                     {"ENDTIME", "ends_at", Content::Time}};
constexpr ChainColumn mixNames[] = {{"MixNo", "mix", Content::Whole},
                                    {"DESCRIPTION", "description", Content::Text}};
constexpr ChainColumn financialNames[] = {{"ID", "line", Content::Whole},
                                          {"financialreport", "description", Content::Text}};
constexpr ChainColumn employeeLineNames[] = {{"ID", "line", Content::Whole},
                                             {"Employeereport", "description", Content::Text}};

constexpr auto names = std::to_array<NameTable>({
    {"PLUDATA",                    "plus",            pluNames},
    {"GROUPS",                     "groups",          groupNames},
    {"EMPLOYEE",                   "employees",       employeeNames},
    {"TIMEPERIOD",                 "time_periods",    timeNames},
    {"MIXNMATCH",                  "mixes",           mixNames},
    {"FINANCIALREPORTDESCRIPTORS", "financial_lines", financialNames},
    {"EMPLOYEEREPORTDESCRIPTORS",  "employee_lines",  employeeLineNames},
});
// clang-format on

std::vector<std::string> namesOf(std::span<const ChainColumn> columns)
{
    std::vector<std::string> all;
    for (const auto& column : columns)
        all.emplace_back(column.name);
    return all;
}

} // namespace

std::span<const SalesTable> salesTables()
{
    return sales;
}

std::span<const NameTable> nameTables()
{
    return names;
}

std::vector<std::string> addedFields(const SalesTable& table)
{
    std::vector<std::string> all;
    for (const auto& field : store::catalogueTable(QLatin1StringView(table.source))->fields) {
        if (field.type == store::FieldType::Double)
            all.push_back(field.name.toStdString());
    }
    return all;
}

std::vector<std::string> summedColumnsOf(const SalesTable& table)
{
    std::vector<std::string> all;
    for (const std::string& field : addedFields(table))
        all.push_back(QString::fromStdString(field).toLower().toStdString());
    return all;
}

std::vector<std::string> columnsOf(const SalesTable& table)
{
    auto all = namesOf(table.items);
    for (const std::string& column : summedColumnsOf(table))
        all.push_back(column);
    return all;
}

std::vector<std::string> columnsOf(const NameTable& table)
{
    return namesOf(table.columns);
}

const char* typeOf(Content content)
{
    switch (content) {
    case Content::Key:
        return "text COLLATE \"C\"";
    case Content::Whole:
        return "integer";
    case Content::Number:
        return "numeric";
    case Content::Text:
    case Content::Time:
        break;
    }
    return "text";
}

} // namespace norvane::chain
