// A walk over the records of one table in the order of a named index, or over the rows of a query.
#pragma once

#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <QString>

#include <memory>
#include <vector>

namespace norvane::store
{

class Database;

enum class EditMode { None, Editing, Adding };
enum class Seek { Equal, AtOrAfter };

/// Holds its own place by key and row, so that other recordsets may add and delete records meanwhile. Reading
/// or storing without a current record is Failure::NoCurrentRecord, on a record that was deleted 3167. Such a
/// record never becomes another one that came later, and a move leads to its neighbours. A move abandons an
/// edit or a new record.
class Recordset
{
public:
    Recordset(Recordset&& other) noexcept;
    Recordset& operator=(Recordset&& other) noexcept;
    ~Recordset();

    /// Chooses the order and places the recordset on the first record. @throws RuntimeFailure with
    /// Failure::UnknownName for an unknown index.
    void setIndex(const QString& name);
    /// Chooses the order of later moves. The position and an open edit or new record are kept.
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown index.
    void changeOrder(const QString& name);
    [[nodiscard]] QString index() const;
    /// For walks over many records of a table: from now on only the fields of these ordinals are read, all
    /// others show null, and the records cannot be changed. Places the recordset on the first record.
    /// @throws RuntimeFailure with Failure::EngineFailure on a query.
    void readOnly(const std::vector<int>& fields);

    /// @throws RuntimeFailure with Failure::NoCurrentRecord on an empty table.
    void moveFirst();
    void moveLast();
    /// Past the last record the recordset is at its end. @throws RuntimeFailure with Failure::NoCurrentRecord
    /// when it is there already.
    void moveNext();
    void movePrevious();
    [[nodiscard]] bool atEnd() const;
    [[nodiscard]] bool atBeginning() const;
    [[nodiscard]] bool hasCurrent() const;
    [[nodiscard]] qint64 recordCount() const;
    /// Places a recordset on a query's rows on the row at @p position, counted from 0 in the order of the
    /// query as it was run. @return false if there is no such row (any more); there is then no current
    /// record.
    /// @throws RuntimeFailure with Failure::EngineFailure on a recordset that walks a table by index.
    bool moveTo(qint64 position);
    /// Whether records can be changed: those of a table, and those of a query that takes fields of one table
    /// as they are.
    [[nodiscard]] bool isUpdatable() const;

    /// Places the recordset by the current index. Empty text sorts before every key. @return false if nothing
    /// was found; there is then no current record. @throws RuntimeFailure with Failure::Conversion if a text
    /// that is not a number is sought on a number index, Failure::EngineFailure on a query or a table without
    /// an index. After a failed seek only moveFirst(), moveLast() and another seek lead to a record;
    /// moveNext() and movePrevious() fail with Failure::NoCurrentRecord.
    bool seek(Seek comparison, const Value& key);

    /// Starts a new record with the fields' defaults; one that was open is abandoned.
    /// @throws RuntimeFailure with Failure::ReadOnlyRecords on a query.
    void addNew();
    /// Starts changing the current record as it now is in the file; an edit already open continues. An open
    /// new record is abandoned. @throws RuntimeFailure with Failure::RecordDeleted if the record was deleted,
    /// Failure::ReadOnlyRecords if the query's rows cannot be changed.
    void edit();
    /// Stores the new or changed record, which then is the current one at its place in the index. Only
    /// changed fields are written.
    /// @throws RuntimeFailure with Failure::DuplicateKey, Failure::RequiredFieldIsNull,
    /// Failure::RecordDeleted; the record remains open then.
    void update();
    void cancelUpdate();
    /// Deletes the current record; there is no current record until the next move. @throws RuntimeFailure
    /// with Failure::RecordDeleted if it was deleted before.
    void deleteRecord();
    [[nodiscard]] EditMode editMode() const;

    [[nodiscard]] int fieldCount() const;
    [[nodiscard]] const FieldDefinition& field(int ordinal) const;
    /// Ordinal from 0. @throws RuntimeFailure with Failure::UnknownName for an unknown field.
    [[nodiscard]] int fieldOrdinal(const QString& name) const;

    /// The value in the record being edited or added, else in the current one. @throws RuntimeFailure with
    /// Failure::UnknownName, Failure::NoCurrentRecord,
    /// Failure::RecordDeleted after its own deletion.
    [[nodiscard]] const Value& value(int ordinal) const;
    [[nodiscard]] const Value& value(const QString& name) const { return value(fieldOrdinal(name)); }
    /// Converts to the field's type. @throws RuntimeFailure with Failure::Conversion when the value does not
    /// convert, Failure::TextTooLong when a text is too long, Failure::UnknownName, and
    /// Failure::NoCurrentRecord outside edit() and addNew().
    void setValue(int ordinal, Value&& value);
    void setValue(const QString& name, Value value) { setValue(fieldOrdinal(name), std::move(value)); }

    class Private;

private:
    friend class Database;
    explicit Recordset(std::unique_ptr<Private> d);
    std::unique_ptr<Private> d;
};

} // namespace norvane::store
