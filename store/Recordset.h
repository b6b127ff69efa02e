// A walk over the records of one table in the order of a named index, or over the rows of a query.
#pragma once

#include "store/Definitions.h"
#include "store/Value.h"

#include <QString>

#include <memory>
#include <vector>

namespace norvane::store
{

class Database;

enum class EditMode { None, Editing, Adding };
enum class Seek { Equal, AtOrAfter };

/// Holds its own place by key and row, so that other recordsets may add and delete records meanwhile. Reading
/// or storing without a current record is failure 3021, on a record that was deleted 3167. Such a record
/// never becomes another one that came later, and a move leads to its neighbours. A move abandons an edit or
/// a new record.
class Recordset
{
public:
    Recordset(Recordset&& other) noexcept;
    Recordset& operator=(Recordset&& other) noexcept;
    ~Recordset();

    /// Chooses the order and places the recordset on the first record. @throws 3265 for an unknown index.
    void setIndex(const QString& name);
    /// Chooses the order of the moves that follow. The place and an edit or new record that is open stay.
    /// @throws 3265 for an unknown index.
    void changeOrder(const QString& name);
    [[nodiscard]] QString index() const;
    /// For walks over many records of a table: from now on only the fields of these ordinals are read, all
    /// others show null, and the records cannot be changed. Places the recordset on the first record.
    /// @throws RuntimeFailure 3000 on a query.
    void readOnly(const std::vector<int>& fields);

    /// @throws RuntimeFailure 3021 on an empty table.
    void moveFirst();
    void moveLast();
    /// Past the last record the recordset is at its end. @throws 3021 when it is there already.
    void moveNext();
    void movePrevious();
    [[nodiscard]] bool atEnd() const;
    [[nodiscard]] bool atBeginning() const;
    [[nodiscard]] bool hasCurrent() const;
    [[nodiscard]] qint64 recordCount() const;
    /// Places a recordset on a query's rows on the row at @p position, counted from 0 in the order of the
    /// query as it was run. @return false when there is no such row (any more); there is no current record
    /// then.
    /// @throws 3000 on a recordset that walks a table by index.
    bool moveTo(qint64 position);
    /// Whether records can be changed: those of a table, and those of a query that takes fields of one table
    /// as they are.
    [[nodiscard]] bool isUpdatable() const;

    /// Places the recordset by the current index. @return false when nothing was found; there is no current
    /// record then. @throws 3421 when a text that is no number is sought on a number index; empty text lies
    /// before every key, and 3000 on a query or a table without an index. After a failed seek only
    /// moveFirst(), moveLast() and another seek lead to a record; moveNext() and movePrevious() fail with
    /// 3021.
    bool seek(Seek comparison, const Value& key);

    /// Starts a new record with the fields' defaults; one that was open is abandoned.
    /// @throws 3027 on a query.
    void addNew();
    /// Starts changing the current record as it now stands in the file; on an edit already open it goes on. A
    /// new record that was open is abandoned. @throws 3167 when the record was deleted, 3027 when the query's
    /// rows cannot be changed.
    void edit();
    /// Stores the new or changed record, which is the current one then, at the place where the index has it.
    /// Only fields with another value than before are written.
    /// @throws 3022 duplicate key, 3314 required field is null, 3167 record deleted; the record stays open
    /// then.
    void update();
    void cancelUpdate();
    /// Deletes the current record; there is no current record until the next move. @throws 3167 when it was
    /// deleted before.
    void deleteRecord();
    [[nodiscard]] EditMode editMode() const;

    [[nodiscard]] int fieldCount() const;
    [[nodiscard]] const FieldDefinition& field(int ordinal) const;
    /// Ordinal from 0. @throws RuntimeFailure 3265 for an unknown field.
    [[nodiscard]] int fieldOrdinal(const QString& name) const;

    /// The value in the record being edited or added, else in the current one. @throws 3265, 3021,
    /// 3167 after its own deletion.
    [[nodiscard]] const Value& value(int ordinal) const;
    [[nodiscard]] const Value& value(const QString& name) const { return value(fieldOrdinal(name)); }
    /// Converts to the field's type. @throws 3421 when the value does not convert, 3163 when a text is too
    /// long, 3265, and 3021 outside edit() and addNew().
    void setValue(int ordinal, Value&& value);
    void setValue(const QString& name, Value value) { setValue(fieldOrdinal(name), std::move(value)); }

    class Private;

private:
    friend class Database;
    explicit Recordset(std::unique_ptr<Private> d);
    std::unique_ptr<Private> d;
};

} // namespace norvane::store
