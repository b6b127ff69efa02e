// What the buttons of a screen do to its table, without the screen: move, add, save, delete, find.
#pragma once

#include "platform/RuntimeFailure.h"
#include "screens/ScreenDefinition.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <memory>
#include <optional>
#include <vector>

namespace norvane::screens
{

/// A control bound to a field, as the editor sees it.
struct BoundField {
    ControlKind kind = ControlKind::Text;
    QString dataField;
    bool readOnly = false; ///< shown, never written
    /// What the control shows: the text of a text box, the number text of a number box, the value of a combo
    /// (or null), 1 or 0 of a check box.
    store::Value content;
};

/// All bound controls of a screen, in the order of its file.
using BoundFields = QVector<BoundField>;

/// The number of a stored record, and the one that it is about to get.
struct NewNumber {
    store::Value before;
    store::Value after;
};

/// The result of a search. Next: the first record after the sought one, which is missing.
enum class FindOutcome { Found, Next, Nothing };

/// One place in one table. What the user typed is known to the controls alone until it is saved; a move drops
/// it, and a record being added or changed with it. Failures other than those of save() close the screen.
class RecordEditor
{
public:
    /// Opens the table in the order of its first index, on the first record.
    /// @param screenFile named in the failures. @throws RuntimeFailure with Failure::UnknownName for an
    /// unknown table or index.
    RecordEditor(std::shared_ptr<store::Database> database, ScreenTable table, QString screenFile);

    /// Copies the current record to @p fields. @throws RuntimeFailure with Failure::NoCurrentRecord without a
    /// current record, Failure::UnknownName for a field that the table does not have, Failure::TypeMismatch
    /// for a whole-number box whose field is null.
    void showFields(BoundFields& fields);

    /// Whether the table has no record, and none is being added. showFields(), deleteRecord() and the moves
    /// fail with Failure::NoCurrentRecord then; add() leads on.
    [[nodiscard]] bool isEmpty() const;
    /// Blanks @p fields, for a table that is empty. Until a record is shown or added, nothing can be saved.
    void showNothing(BoundFields& fields);
    /// Blanks @p fields and starts a new record, which is stored by save() only.
    void add(BoundFields& fields);
    /// Copies from @p record, all fields of a record of this table, to the new record what no control of
    /// @p shown is bound to. The number of the record is not copied. The new record counts as seen in the
    /// state of @p record, of which an empty one copies nothing.
    void copyUnshown(const std::vector<store::Value>& record, const BoundFields& shown);
    /// Whether a save of @p fields would write over values that another screen or program has stored since
    /// showFields().
    [[nodiscard]] bool wouldOverwrite(const BoundFields& fields);
    /// The new number that a save of @p fields would give to a stored record; nothing if the number is
    /// unchanged, or if another record has it, so that the save would be refused.
    [[nodiscard]] std::optional<NewNumber> newNumber(const BoundFields& fields);
    /// Puts the number of the record as it was shown back into @p fields.
    void restoreNumber(BoundFields& fields) const;
    /// Stores @p fields into the current record, or into the new one. A refused record remains open for the
    /// next attempt. PLU numbers are filled with zeros to their full width, in @p fields as well. Waits less
    /// than a second for a file locked by another program.
    /// @return why nothing was stored; nothing on success.
    [[nodiscard]] std::optional<RuntimeFailure> save(BoundFields& fields);
    /// Deletes the current record and goes to the first one, also when somebody else has deleted it already;
    /// drops a new record that is not stored yet.
    void deleteRecord();
    /// Reads the current record again from the file. A deleted record is replaced by the record with the same
    /// key, as after an upload, and no record by the first one. Drops unsaved changes.
    /// @return false if there is no such record either, or the file cannot be read.
    [[nodiscard]] bool reread();
    /// @throws RuntimeFailure with Failure::NoCurrentRecord if the table is empty.
    void goToFirst();
    /// All fields of the record as last shown or stored; empty while there is none.
    [[nodiscard]] const std::vector<store::Value>& seen() const { return m_seen; }
    /// Goes to the record with the number of @p seen; the chosen index is kept.
    /// @return false if there is none any more. The position, and a record being added or changed, are then
    /// kept.
    [[nodiscard]] bool goBackTo(const std::vector<store::Value>& seen);
    /// From now on, the current record counts as shown in the state @p seen: wouldOverwrite() reports what
    /// others have stored since.
    void setSeen(std::vector<store::Value> seen) { m_seen = std::move(seen); }

    /// @return false past the last record: the place is the last record then.
    [[nodiscard]] bool next();
    /// @return false before the first record: the place is the first record then.
    [[nodiscard]] bool previous();
    /// Goes to the first record at or after @p text. The index remains chosen for later moves.
    /// @param button 2 searches by the second index, any other by the first.
    /// A text that begins with @p text counts as found, and so does any record for an empty @p text.
    /// @return Nothing if there is no such record, or @p text cannot be a key. The position, and a record
    /// being added or changed, are then kept, so that a save stores the record that the user expects.
    [[nodiscard]] FindOutcome find(int button, const QString& text);
    /// The field that find() searches.
    [[nodiscard]] const store::FieldDefinition& searchedField(int button) const;
    /// What find() by the first index would find the current record by; empty for a new record.
    [[nodiscard]] QString key() const;
    [[nodiscard]] bool isAdding() const { return m_records.editMode() == store::EditMode::Adding; }

private:
    template <typename Act>
    decltype(auto) needingRecords(Act act);
    void storeFields(BoundFields& fields);
    void storeField(BoundField& field);
    void deleteCurrent();
    void beginEdit();
    void remember();
    [[nodiscard]] bool isOverwritten(const BoundField& field) const;
    [[nodiscard]] bool isStillThere();
    [[nodiscard]] const QString& indexOf(int button) const;
    [[nodiscard]] bool isAt(const store::FieldDefinition& field, const store::Value& key) const;
    [[nodiscard]] bool isNumber(const BoundField& field) const;
    [[nodiscard]] const store::Value& numberIn(const std::vector<store::Value>& record) const;
    [[nodiscard]] bool hasRecord(const QString& index, store::Seek comparison, const store::Value& key) const;

    std::shared_ptr<store::Database> m_database;
    ScreenTable m_table;
    QString m_screenFile;
    store::Recordset m_records;
    std::vector<store::Value> m_seen; ///< all fields of the record as it was shown or stored last
};

} // namespace norvane::screens
