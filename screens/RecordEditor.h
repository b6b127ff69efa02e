// What the buttons of a screen do to its table, without the screen: move, add, save, delete, find.
#pragma once

#include "screens/ScreenDefinition.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <memory>

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

using BoundFields = QVector<BoundField>;

enum class SaveOutcome {
    Stored,
    DuplicateKey, ///< the user can correct the key and save again
    Gone,         ///< the record was deleted meanwhile, on another screen or by an upload
    Refused,      ///< any other failure
};

/// Of the failures only a duplicate key has a box. Of the others the user has to learn that nothing was
/// stored.
struct SaveResult {
    SaveOutcome outcome = SaveOutcome::Stored;
    QString reason{}; ///< the failure's text, for the user; empty when the record was stored
};

/// One place in one table. What the user typed is known to the controls alone until it is saved; a move drops
/// it, and a record being added or changed with it. Failures other than those of save() end the program.
class RecordEditor
{
public:
    /// Opens the table in the order of its first index, on the first record.
    /// @param screenFile named in the failures. @throws RuntimeFailure 3265 for an unknown table or index.
    RecordEditor(std::shared_ptr<store::Database> database, ScreenTable table, QString screenFile);

    /// Puts the current record into @p fields. @throws RuntimeFailure 3021 without a current record, 3265 for
    /// a field that the table does not have, 13 for a whole-number box whose field is null.
    void showFields(BoundFields& fields) const;

    /// Blanks @p fields and starts a new record, which is stored by save() only.
    void add(BoundFields& fields);
    /// Stores @p fields into the current record, or into the new one. A record that was refused stays open
    /// for the next attempt. PLU numbers are filled with zeros to their full width, in @p fields as well.
    [[nodiscard]] SaveResult save(BoundFields& fields);
    /// Deletes the current record and goes to the first one, also when somebody else has deleted it already;
    /// drops a new record that is not stored yet.
    void deleteRecord();

    /// @return false past the last record: the place is the last record then.
    [[nodiscard]] bool next();
    /// @return false before the first record: the place is the first record then.
    [[nodiscard]] bool previous();
    /// Goes to the first record at or after @p text. The index stays chosen for the moves that follow.
    /// @param button 2 searches by the second index, any other by the first.
    /// @return false when there is no such record, or @p text cannot be a key. The place stays then, and with
    /// it a record being added or changed, so that a save goes where the user expects it.
    [[nodiscard]] bool find(int button, const QString& text);
    /// The field that find() searches.
    [[nodiscard]] const store::FieldDefinition& searchedField(int button) const;
    /// What find() by the first index would find the current record by; empty for a new record.
    [[nodiscard]] QString key() const;

private:
    void storeField(BoundField& field);
    void deleteCurrent();
    [[nodiscard]] const QString& indexOf(int button) const;
    [[nodiscard]] bool hasRecord(const store::Value& key) const;

    std::shared_ptr<store::Database> m_database;
    ScreenTable m_table;
    QString m_screenFile;
    store::Recordset m_records;
};

} // namespace norvane::screens
