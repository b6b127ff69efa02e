// Totals of whole months beside a sales table, so that a year is not added up from every row of it.
#pragma once

#include "store/Database.h"

#include <QDate>

#include <functional>

namespace norvane::store
{

/// The days from @p first to @p last, both included and both valid.
struct DayRange {
    QDate first;
    QDate last;
};

/// The totals of one sales table. A month has totals only once it was added up. Triggers of the file drop
/// them as soon as a row of that month is added, changed, deleted or replaced, whoever does it, so a total
/// that is there is right. Recordsets, screens and the list of tables do not know them.
class MonthTotals
{
public:
    /// @p table is one that the catalogue finds by a day (TableDefinition::searchedField). The database must
    /// outlive this. @throws RuntimeFailure 3265 when the file has no such table.
    MonthTotals(Database& database, const QString& table);

    /// Whether the file has room and triggers for totals of this table; otherwise rows() reads the rows.
    [[nodiscard]] bool available() const { return m_available; }

    /// The first days of the months that lie wholly inside @p days, ended before @p today, hold rows and have
    /// no totals. The running month never counts: the next collection would drop its totals again.
    [[nodiscard]] QVector<QDate> missing(const DayRange& days, QDate today) const;
    /// Adds up the month of which @p month is the first day, in the open transaction or in one of its own;
    /// after a failure the month is as it was.
    /// @throws RuntimeFailure what the database reports, 3061 for a row that holds an infinite number.
    void addUp(QDate month);
    /// Adds up all that are missing(), the earliest first. @p step is called before each with its first day;
    /// returning false ends it. A month takes a quarter of a second with 5,000 PLUs.
    /// @return false when some are still missing: the file cannot be written, or @p step ended it. That is no
    /// reason to give up, since rows() then reads the rows of these months.
    bool addUpMissing(const DayRange& days, QDate today, const std::function<bool(QDate)>& step = {});

    /// A source of rows for a query, in brackets, ready to stand behind "from": the totals of the months
    /// inside
    /// @p days that have them, and the rows of all other days. A row of totals has the names of the fields
    /// too, and carries the first day of its month. @p fields names the fields wanted, all when it is empty;
    /// fewer are quicker. Numbers are doubles in rows and texts of decimals in totals, so they may go into
    /// exact_sum() only. A condition of the query may name neither numbers nor the day. What the query finds
    /// stays right when months gain or lose totals after the text was made.
    [[nodiscard]] QString rows(const DayRange& days, const QStringList& fields = {}) const;

private:
    Database::Private& m_database;
    TableDefinition m_table;
    bool m_available;
};

} // namespace norvane::store
