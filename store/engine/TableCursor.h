// A walk over a table in the order of an index.
#pragma once

#include "store/engine/Connection.h"
#include "store/engine/Cursor.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Recordset.h"

#include <array>
#include <chrono>
#include <memory>
#include <optional>

namespace norvane::store
{

/// Its place is the key and the row id of a record, not a row's number, so records may be added and deleted
/// around it, its current record included.
///
/// Rows are read ahead, more of them as a walk continues, and no statement remains open between two moves: an
/// open one would keep every other connection from storing. Rows read ahead are discarded when this
/// connection changes anything and, outside a transaction, when they are too old to show to a user who may
/// have stored something on another screen.
class TableCursor : public Cursor
{
public:
    TableCursor(Connection& connection, std::shared_ptr<const TableShape> shape);

    /// Chooses the order; nullptr for the order in which records were added. The place is lost.
    void setIndex(const IndexDefinition* index);
    /// Chooses the order of later moves, from the current place.
    void changeOrder(const IndexDefinition& index);
    [[nodiscard]] const IndexDefinition* index() const { return m_index; }
    bool seek(Seek comparison, const Value& key);
    /// Moves to a row that this recordset has added. Moves from @p values, whose content is then undefined.
    /// Reads nothing: an import adds many rows and does not need them again.
    void rowAdded(std::vector<Value>& values, std::int64_t rowId);
    /// Reads these fields and the key alone from now on; all others are null. The place is lost.
    void limitTo(const std::vector<int>& fields);

    bool first() override;
    bool last() override;
    bool next() override;
    bool previous() override;
    [[nodiscard]] qint64 count() override;
    [[nodiscard]] const StoredRow& row() const override { return m_rows.at(m_at); }
    bool reread() override;
    void rowStored(std::vector<Value>& values) override;
    void rowDeleted() override;

private:
    enum Access {
        First,
        Last,
        Next,
        Previous,
        NextNull,
        PreviousNull,
        FirstKey,
        LastNull,
        SeekEqual,
        SeekAtOrAfter,
        ByRowId,
        AccessCount
    };
    struct AccessSql {
        const char* withKey;
        const char* withoutKey; ///< of a table without an index
    };
    /// When the rows were read, and what had changed by then.
    struct Stamp {
        std::int64_t changes = -1;
        std::int64_t transaction = 0;
        std::chrono::steady_clock::time_point time;
    };

    static const std::array<AccessSql, AccessCount> accesses;

    PreparedStatement& statement(Access access);
    void chooseFields();
    bool read(Access access, const Value& key, std::int64_t rowId, std::size_t most = 1);
    [[nodiscard]] bool isFresh() const;
    [[nodiscard]] bool placeHasNoKey() const;
    [[nodiscard]] bool wasCounted(const std::vector<Value>& values) const;
    [[nodiscard]] const Value& placeKey() const;
    void keepReadAhead();
    void stampNow();

    Connection& m_connection;
    std::shared_ptr<const TableShape> m_shape;
    const IndexDefinition* m_index = nullptr;
    int m_keyOrdinal = -1;
    int m_counterOrdinal = -1;
    std::vector<int> m_onlyFields; ///< asked for; empty: all
    std::vector<int> m_fields;     ///< read
    std::array<std::unique_ptr<PreparedStatement>, AccessCount> m_statements;

    std::vector<StoredRow> m_rows;  ///< the first m_filled of them are the rows read, m_at is the place
    std::vector<StoredRow> m_spare; ///< read into first, so that a move without a record changes nothing
    std::size_t m_filled = 0;
    std::size_t m_at = 0;
    Stamp m_stamp;
    int m_steps = 0;
    std::size_t m_ahead = 1;
};

} // namespace norvane::store
