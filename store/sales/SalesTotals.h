// Totals of whole months and years beside a sales table, so that a year is not added up from every row of it.
#pragma once

#include "store/engine/Database.h"
#include "store/sales/TotalsQuery.h"

#include <QDate>

#include <functional>
#include <span>
#include <vector>

namespace norvane::store
{

/// The totals of one sales table. A month or year has totals only after it was added up. Triggers of the file
/// drop them when any program adds, changes, deletes or replaces a row of that month, so an existing total is
/// right. Recordsets, screens and the list of tables do not know them.
class SalesTotals
{
public:
    /// @p table is one that the catalogue finds by a day (TableDefinition::searchedField). The database must
    /// outlive this. @throws RuntimeFailure with Failure::UnknownName if the file has no such table.
    SalesTotals(Database& database, const QString& table);

    /// Whether the file has room and triggers for totals of this table; otherwise rows() reads the rows.
    [[nodiscard]] bool available() const { return !m_levels.empty(); }

    /// The months, and then the years, that are completely inside @p days, ended before @p today, have rows
    /// and no totals. The current month never counts: the next collection would drop its totals again.
    [[nodiscard]] QVector<DayRange> missing(const DayRange& days, QDate today) const;
    /// Adds up a month or a year, in the open transaction or a separate one; after a failure all totals are
    /// unchanged. A year adds up those of its months that have no totals.
    /// @throws RuntimeFailure as the database reports, with Failure::UnknownNameInQuery for a row with an
    /// infinite number.
    void addUp(const DayRange& time);
    /// Adds up all that are missing(), in their order. @p step is called before each; returning false ends
    /// it. A month takes a quarter of a second with 5,000 PLUs, and a year of such months less.
    /// @return false if some are still missing: the file cannot be written, or @p step ended it. rows() then
    /// reads the rows of these months.
    bool addUpMissing(const DayRange& days, QDate today,
                      const std::function<bool(const DayRange&)>& step = {});

    /// A source of rows for a query, in brackets, to be used after "from": the totals of the years and
    /// months inside @p days that have them, and the rows of all other days. A row of totals has the names of
    /// the fields too, and the first day of its time. @p fields names the fields wanted, all when it is
    /// empty; fewer are quicker. Numbers are doubles in rows and texts of decimals in totals, so use them in
    /// exact_sum() only. A condition of the query may name neither numbers nor the day. The result remains
    /// right if months gain or lose totals after the text was made. With Longest::Month no row of totals is
    /// of more than a month.
    enum class Longest { Year, Month };
    [[nodiscard]] QString rows(const DayRange& days, const QStringList& fields = {},
                               Longest longest = Longest::Year) const;

private:
    [[nodiscard]] QVector<DayRange> missing(const TotalsLevel& level, const DayRange& days) const;
    void addUpAbsent(const TotalsLevel& level, const DayRange& days);
    void addUp(const TotalsLevel& level, std::span<const TotalsLevel> from, const DayRange& time);

    Connection& m_connection;
    TableDefinition m_table;
    std::vector<TotalsLevel> m_levels; ///< that the file has, the longest times first
};

} // namespace norvane::store
