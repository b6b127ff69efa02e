// Reads what is published out of a customer's database.
#pragma once

#include "chain/ChainTables.h"
#include "store/engine/Database.h"

#include <QDate>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace norvane::chain
{

/// Takes a row as PostgreSQL's COPY reads it, without its line end: the values in the order of the table's
/// columns, with tabs between.
using RowSink = std::function<void(const std::string& line)>;

/// Exact sums of a day, as texts.
struct DayTotals {
    std::string quantity;
    std::string value;
};

/// What was read, to be compared with what was read another time.
struct RowsDigest {
    std::string digest;
    qint64 rows = 0; ///< that were passed on
    /// Of the rows that SalesTable::totalled says; nothing if the day has no row at all.
    std::optional<DayTotals> totals{};
};

/// All days of which the table holds sales, without reading the rows of them.
[[nodiscard]] std::set<QDate> daysOf(store::Database& database, const SalesTable& table);

/// Reads the items of a day in the order of their numbers, the collections of the day added exactly. Rows of
/// nothing but zeros belong to the digest, but are not passed on: most PLUs are not sold on most days.
/// @throws ChainError BadRows, naming day and item, for rows that PostgreSQL cannot take: without an item,
/// with one that is not a number, with an infinite sum. @throws RuntimeFailure as the database reports.
RowsDigest readDay(store::Database& database, const SalesTable& table, QDate day, const RowSink& sink = {});

/// The exact sums of each day, in the order of the table's columns that are added up.
using DaySums = std::map<QDate, std::vector<std::string>>;
/// Reads all days of a table. @throws RuntimeFailure as readDay() does.
[[nodiscard]] DaySums sumsByDay(store::Database& database, const SalesTable& table);

/// Reads the names in the order of their numbers.
RowsDigest readNames(store::Database& database, const NameTable& table, const RowSink& sink = {});

/// Whether @p digest is of rows as they are read now; an earlier program may have read them otherwise.
[[nodiscard]] bool isCurrentDigest(const std::string& digest);

} // namespace norvane::chain
