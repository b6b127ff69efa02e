// Totals of whole months beside a sales table, so that a year is not added up from every row of it.
#pragma once

#include "store/engine/Database.h"

#include <QDate>

#include <functional>

namespace norvane::store
{

/// The days from @p first to @p last, both included and both valid.
struct DayRange {
    QDate first;
    QDate last;
};

/// The totals of one sales table. A month has totals only after it was added up. Triggers of the file drop
/// them when any program adds, changes, deletes or replaces a row of that month, so an existing total is
/// right. Recordsets, screens and the list of tables do not know them.
class MonthTotals
{
public:
    /// @p table is one that the catalogue finds by a day (TableDefinition::searchedField). The database must
    /// outlive this. @throws RuntimeFailure with Failure::UnknownName if the file has no such table.
    MonthTotals(Database& database, const QString& table);

    /// Whether the file has room and triggers for totals of this table; otherwise rows() reads the rows.
    [[nodiscard]] bool available() const { return m_available; }

    /// The first days of the months that are completely inside @p days, ended before @p today, have rows and
    /// no totals. The current month never counts: the next collection would drop its totals again.
    [[nodiscard]] QVector<QDate> missing(const DayRange& days, QDate today) const;
    /// Adds up the month of which @p month is the first day, in the open transaction or a separate one; after
    /// a failure the month is unchanged.
    /// @throws RuntimeFailure as the database reports, with Failure::UnknownNameInQuery for a row with an
    /// infinite number.
    void addUp(QDate month);
    /// Adds up all that are missing(), the earliest first. @p step is called before each with its first day;
    /// returning false ends it. A month takes a quarter of a second with 5,000 PLUs.
    /// @return false if some are still missing: the file cannot be written, or @p step ended it. rows() then
    /// reads the rows of these months.
    bool addUpMissing(const DayRange& days, QDate today, const std::function<bool(QDate)>& step = {});

    /// A source of rows for a query, in brackets, to be used after "from": the totals of the months inside
    /// @p days that have them, and the rows of all other days. A row of totals has the names of the fields
    /// too, and the first day of its month. @p fields names the fields wanted, all when it is empty; fewer
    /// are quicker. Numbers are doubles in rows and texts of decimals in totals, so use them in exact_sum()
    /// only. A condition of the query may name neither numbers nor the day. The result remains right if
    /// months gain or lose totals after the text was made.
    [[nodiscard]] QString rows(const DayRange& days, const QStringList& fields = {}) const;

private:
    Connection& m_connection;
    TableDefinition m_table;
    bool m_available;
};

} // namespace norvane::store
