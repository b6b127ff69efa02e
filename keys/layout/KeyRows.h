// The rows of the two tables that say what every key does.
#pragma once

#include "store/engine/Recordset.h"

#include <QLatin1StringView>
#include <QString>

namespace norvane::keys
{

/// A key of a level is one row in each of the two tables, at the same position in the order of their index.
struct KeyTable {
    QLatin1StringView table;
    QLatin1StringView field;
    QLatin1StringView upload; ///< its upload from a register, as named in the exchange dialog
};

/// What a key does: "0" for a PLU, "271" for a window look-up, else the id of a function key. Empty for an
/// unprogrammed key.
[[nodiscard]] const KeyTable& keyLinkTable();
/// Which PLU or look-up it is, in 18 digits; the key's number for a function.
[[nodiscard]] const KeyTable& nluTable();

/// A walk over one of the tables. Every failure names table and row, counted from 1, and how to repair the
/// table. Moving past its end fails with Failure::NoCurrentRecord: registers have all rows of all levels.
class KeyRows
{
public:
    /// Starts at the row after the first @p rowsAhead.
    KeyRows(store::Database& database, const KeyTable& table, int rowsAhead = 0);

    void next();
    [[nodiscard]] bool atEnd() const { return !m_rows.hasCurrent(); }
    [[nodiscard]] store::Value value() const;
    /// What the row holds; null as empty text.
    [[nodiscard]] QString text() const { return value().toText(); }
    void store(const store::Value& value);
    /// Stores another text. A row that already has it is unchanged, null included.
    void store(const QString& text);
    /// Adds table, row and remedy to what went wrong with the row's text.
    [[nodiscard]] QString explained(const QString& failure) const;

private:
    template <typename Work>
    decltype(auto) explaining(Work work) const;
    [[nodiscard]] QString placed(const QString& failure) const;

    const KeyTable& m_table;
    store::Recordset m_rows;
    int m_field;
    int m_row = 1;
};

} // namespace norvane::keys
