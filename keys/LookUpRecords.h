// The window look-ups of a customer, one after another as their editor shows and saves them.
#pragma once

#include "keys/KeyItems.h"
#include "keys/LookUpLines.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <QVector>

#include <memory>
#include <optional>

namespace norvane::keys
{

/// What the editor's controls hold of a look-up. Numbers are texts as they are typed; a null field is an
/// empty one.
struct LookUp {
    QString number;
    QString description;
    bool allowsCondiments = false;
    bool allowsPlus = false;
    bool allowsFunctions = false;
    QString choices; ///< 0 for as many as the customer likes
    bool multiplies = false;
    bool allowsExit = false;
    QString link; ///< number of the look-up that opens behind this one, 0 for none
    LookUpLines lines;
    bool operator==(const LookUp&) const = default;
};

/// Stands on one record of table wlu. The set of records is the register's: none is added or deleted here.
class LookUpRecords
{
public:
    /// Goes to the first look-up. @throws RuntimeFailure 3021 when there are none or the register's memory
    /// allocation is not known, 13 and 9 when that tells no number of lines or more than 50.
    explicit LookUpRecords(std::shared_ptr<store::Database> database);

    /// The record on which it stands, read afresh. A line whose item is gone is empty.
    [[nodiscard]] LookUp read();
    /// Packs the lines of @p lookUp and stores all of it over the record, with the number of its used lines.
    /// @throws RuntimeFailure 3167, 3022, 3421 and so on as storing does; nothing is changed then.
    void save(LookUp& lookUp);
    /// The number of the record as it is stored.
    [[nodiscard]] QString storedNumber() const;
    /// All look-ups in their order.
    [[nodiscard]] QVector<ListedItem> readItems() const;
    /// The look-up of this number, a text of digits. @return nothing when there is none.
    [[nodiscard]] std::optional<ListedItem> find(const QString& number) const;
    /// Goes to the look-up of this number. @return false when there is none; it stays then.
    bool moveTo(const QString& number);
    /// @return false at the last record, where it stays.
    [[nodiscard]] bool next();
    /// @return false at the first record, where it stays.
    [[nodiscard]] bool previous();

    /// What a choice of PLU or function @p number makes of @p line. A PLU is never a condiment; an item that
    /// is gone leaves the line empty and keeps its word.
    void fill(LookUpLine& line, ItemKind kind, const QString& number);

private:
    [[nodiscard]] LookUpLine readLine(int line);
    [[nodiscard]] LookUpLine readPlu(LineType type, const QString& word, const QString& code);
    [[nodiscard]] LookUpLine readFunction(const QString& code);
    void store(const LookUp& lookUp);
    void storeLine(int line, const LookUpLine& from);

    std::shared_ptr<store::Database> m_database;
    int m_lineCount;
    store::Recordset m_lookUps;
    store::Recordset m_plus;
    KeyItems m_items;
};

} // namespace norvane::keys
