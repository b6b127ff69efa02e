// Walks through a table of two shops side by side, by the keys of the records, and stops where they differ.
#pragma once

#include "platform/KeepGoing.h"
#include "register/RegisterModel.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace norvane::programme
{

/// A shop's database, with the register model of its settings. Both must outlive what uses them.
struct ShopData {
    store::Database& database;
    const RegisterModel& model;
};

/// Whether the two values of a field are the same, as PartWalk compares them.
[[nodiscard]] bool isSameValue(const QString& table, const store::FieldDefinition& field,
                               const store::Value& one, const store::Value& other);

/// A value as a list of differences shows it.
[[nodiscard]] QString shownField(const QString& table, const store::FieldDefinition& field,
                                 const store::Value& value);

/// A field of a changed record that is different, while the walk is there.
struct DifferentField {
    const QString& table;
    const QString& field;
    const store::Value& key;  ///< of the record at the other shop
    const store::Value& from; ///< what would be copied
    const store::Value& to;   ///< what the other shop has
};

/// What a user chose to copy or to compare.
struct ChosenParts {
    QStringList tables; ///< spelled as in the catalogue
    /// Keys of records of the only table, as stored. Empty for whole tables: records that only the other shop
    /// has are then removed there.
    QStringList records{};
    /// Both are one shop at two times: what belongs to a shop is compared too, except for what its registers
    /// count.
    bool isOneShop = false;
    /// Why a field of a changed record is not copied, beside the rules of the models; empty text if it is.
    std::function<QString(const DifferentField& field)> refusal{};
};

enum class ChangeKind {
    New,     ///< the other shop has no such record
    Changed, ///< it has other values
    Gone,    ///< only the other shop has it
};

/// A field that is different.
struct FieldChange {
    QString field;
    QString before; ///< at the other shop, as a list shows it
    QString after;
    QString refusal; ///< why the field is not copied; empty if it is
};

/// A record that is different.
struct RecordChange {
    QString table;
    QString record; ///< its key as users know it
    ChangeKind kind = ChangeKind::Changed;
    QString refusal;           ///< why the whole record is not copied; empty if it is
    QString text;              ///< by which users know it, such as a description; may be empty
    QList<FieldChange> fields; ///< of a changed one those that differ, of a new one those that are not copied

    /// Whether copying changes anything at the other shop.
    [[nodiscard]] bool isCopied() const;
};

/// Texts that differ only in blanks at their end are the same, since registers fill them up; so are 0 and
/// what was never set, and prices of the same amount. Records without a key are passed over. Records whose
/// key is a counter are matched by their order.
class PartWalk
{
public:
    /// @param parts must outlive this. @throws RuntimeFailure as the databases report, with
    /// Failure::UnknownName for a table that one of them lacks.
    PartWalk(const ShopData& from, const ShopData& to, const QString& table, const ChosenParts& parts);

    /// Goes to the next difference. @return false if there is none.
    /// @throws RuntimeFailure with Failure::UserInterrupt when @p keepGoing returns false, with
    /// Failure::RecordDeleted if one of the chosen records is no longer there.
    bool next(const KeepGoing& keepGoing);
    [[nodiscard]] const RecordChange& change() const { return m_change; }

    /// The record's key at the other shop, for one that it has.
    [[nodiscard]] const store::Value& targetKey() const { return m_target.value(m_targetKey); }
    /// The record's key at the shop that is copied, for one that it has.
    [[nodiscard]] const store::Value& sourceKey() const { return m_source.value(m_sourceKey); }
    /// Gives each field that is to be stored for a new or changed record to @p take: its name at the other
    /// shop and its new value.
    void forEachCopiedField(
        const std::function<void(const QString& field, const store::Value& value)>& take) const;

private:
    /// A field that both shops have.
    struct Column {
        QString name;
        store::FieldType type;
        bool isPrice;
        int source; ///< ordinals
        int target;
    };

    [[nodiscard]] bool isCompared(const QString& field) const;
    void chooseColumns();
    void skipKeyless();
    [[nodiscard]] bool advance();
    [[nodiscard]] bool takeNextRecord();
    void leave();
    [[nodiscard]] int order() const;
    [[nodiscard]] bool describe();
    void compareFields();
    void listRefused();
    [[nodiscard]] bool isSame(const Column& column) const;
    [[nodiscard]] QString refusalOf(const Column& column) const;
    [[nodiscard]] QString refusalOfDifferent(const Column& column) const;
    [[nodiscard]] const store::Value& key() const;
    [[nodiscard]] QString text() const;

    ShopData m_from;
    ShopData m_to;
    QString m_table;
    const ChosenParts& m_parts;
    qsizetype m_nextRecord = 0;
    store::Recordset m_source;
    store::Recordset m_target;
    int m_sourceKey = 0; ///< ordinals
    int m_targetKey = 0;
    bool m_isCounted = false;      ///< the key is a counter
    std::vector<Column> m_columns; ///< without the key
    bool m_isStarted = false;
    bool m_hasSource = false; ///< what the current step is about
    bool m_hasTarget = false;
    int m_position = 0;
    int m_number = 0; ///< of the record, for the rules of the models
    RecordChange m_change;
};

} // namespace norvane::programme
