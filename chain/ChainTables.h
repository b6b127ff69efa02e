// The parts of a customer's database that are published, and their names there.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace norvane::chain
{

/// What a column holds there.
enum class Content {
    Text,
    Key, ///< a text compared byte by byte, such as the number of a PLU
    Whole,
    Number, ///< an exact decimal; money and quantities
    Time    ///< "0930" of a register, as "09:30"
};

/// A column of a published table.
struct ChainColumn {
    const char* field; ///< in the customer's database
    const char* name;  ///< in PostgreSQL
    Content content;
};

/// The rows of a day that make its takings and quantity, or its net sales.
enum class Totalled {
    No,
    EveryRow,
    NetSales ///< the line of the financial report
};

/// Sales by day: one row for each item and day of a shop, with the sum of its collections. Beside the columns
/// that name the item it has every field of the catalogue's table that rows are added up by.
struct SalesTable {
    const char* source; ///< in the customer's database
    const char* name;   ///< in PostgreSQL
    std::span<const ChainColumn> items;
    int places; ///< the shop's database stores the sums multiplied by ten to this power, as the register
                ///< sends them
    Totalled totalled;
};

/// What the numbers of sales mean now. The first column is the key.
struct NameTable {
    const char* source;
    const char* name;
    std::span<const ChainColumn> columns;
};

[[nodiscard]] std::span<const SalesTable> salesTables();
[[nodiscard]] std::span<const NameTable> nameTables();

/// The items' columns, then those that are added up: "VALUE1" as "value1".
[[nodiscard]] std::vector<std::string> columnsOf(const SalesTable& table);
[[nodiscard]] std::vector<std::string> columnsOf(const NameTable& table);
/// Those that are added up: "value1".
[[nodiscard]] std::vector<std::string> summedColumnsOf(const SalesTable& table);
/// The fields of the source that are added up. @pre the catalogue has the source.
[[nodiscard]] std::vector<std::string> addedFields(const SalesTable& table);

/// PostgreSQL's type for a content.
[[nodiscard]] const char* typeOf(Content content);

} // namespace norvane::chain
