// The text of a query that reads totals in place of rows.
#pragma once

#include "store/engine/Companions.h"

#include <QDate>
#include <QStringList>
#include <QVector>

#include <span>

namespace norvane::store
{

/// The days from @p first to @p last, both included and both valid.
struct DayRange {
    QDate first;
    QDate last;
    bool operator==(const DayRange&) const = default;
};

/// The months or years that are completely inside, in their order.
[[nodiscard]] QVector<DayRange> wholeTimes(const TotalsLevel& level, const DayRange& days);

/// The entry of a time in the list of its level.
[[nodiscard]] QString keyOfTotals(QDate first);

/// Writes sources of rows for one table. A query looks itself which times have totals, in the same statement
/// that reads them, so it never reads a day twice or not at all.
class TotalsQuery
{
public:
    /// @p levels are those that the file has, the longest times first. @p fields: all if it is empty.
    TotalsQuery(const TableDefinition& table, std::span<const TotalsLevel> levels, const QStringList& fields);

    /// In brackets, to be used after "from". See SalesTotals::rows().
    [[nodiscard]] QString rows(const DayRange& days) const;

private:
    /// Days to be read from one table, depending on which of the times that they are in have totals.
    struct Piece {
        DayRange days;
        QStringList keys; ///< of these times, by level; an empty text for none
    };
    [[nodiscard]] static std::vector<Piece> takeWhole(const TotalsLevel& level, std::vector<Piece>& pieces);
    [[nodiscard]] QString part(const QString& table, const std::vector<Piece>& pieces,
                               const QString& isListed) const;

    std::span<const TotalsLevel> m_levels;
    QString m_table;
    QString m_columns;
    QString m_day;
};

} // namespace norvane::store
