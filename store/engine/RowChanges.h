// What rows were before a piece of work, so that the work can be taken back.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <QStringList>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::store
{

/// What taking back would change in one field, for the user.
struct FieldDifference {
    QString table;
    QString record; ///< the value of the table's first index
    QString field;  ///< empty if the whole record is added or deleted
    QString now;    ///< empty for a record that is added
    QString then;   ///< empty for a record that is deleted
    /// Numbers that were never set and are 0, which looks the same on screens: so many of the record's, in
    /// place of a field.
    int unset = 0;
};

/// A record, for the user.
struct RecordName {
    QString table;
    QString key; ///< the value of the table's first index
};

/// The changed rows of one piece of work. ChangeRecorder makes it. The values are kept as bytes: as objects,
/// 100,000 rows would take ten times the memory.
class RowChanges
{
public:
    [[nodiscard]] std::size_t count() const { return m_rows.size(); }
    [[nodiscard]] bool isEmpty() const { return m_rows.empty(); }
    /// Bytes of memory.
    [[nodiscard]] std::size_t size() const;

    /// How many of the rows have changed again since the work, or were deleted or replaced.
    /// @throws RuntimeFailure as the database reports.
    [[nodiscard]] std::size_t changedSince(Database& database) const;
    /// The first such rows. @throws RuntimeFailure as the database reports.
    [[nodiscard]] std::vector<RecordName> rowsChangedSince(Database& database, std::size_t most) const;
    /// What takeBack() would change: the first @p most differences, in the order of the work.
    /// @throws RuntimeFailure as the database reports.
    [[nodiscard]] std::vector<FieldDifference> differences(Database& database, std::size_t most) const;
    /// Makes the rows what they were, except those that changed again since. All of them or none; no
    /// transaction may be open. A deleted record gets its row id back.
    /// @return how many rows it restored. @throws RuntimeFailure with Failure::DuplicateKey if another record
    /// has taken the key of a deleted one, Failure::DiskFull and so on as the database reports.
    std::size_t takeBack(Database& database) const;

private:
    friend class ChangeRecorder;

    /// The rows of one table have the fields that it had during the work.
    struct Table {
        QString name;
        QStringList fields;
    };
    struct Row {
        std::size_t table;
        std::int64_t rowId;
        std::size_t from;        ///< of its values before the work in m_images
        std::size_t length;      ///< 0 for a record that the work added
        std::uint64_t after = 0; ///< digest of the values; 0 for a record that the work deleted
    };

    [[nodiscard]] std::string_view before(const Row& row) const
    {
        return std::string_view(m_images).substr(row.from, row.length);
    }

    /// Calls @p take with each row, its values now (empty if it is gone) and whether they are as the work
    /// left them, until it returns false.
    template <typename Take>
    void walk(Database& database, Take take) const;

    std::vector<Table> m_tables;
    std::vector<Row> m_rows; ///< in the order of their first change
    std::string m_images;    ///< all values of the rows
};

} // namespace norvane::store
