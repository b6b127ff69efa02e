// The window look-ups of a customer, one after another as their editor shows and saves them.
#pragma once

#include "keys/KeyItems.h"
#include "keys/lookups/LookUpLines.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

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
    QString link; ///< number of the look-up that opens after this one, 0 for none
    LookUpLines lines;
    bool operator==(const LookUp&) const = default;
};

/// Has one current record of table wlu. The register defines the set of records: none is added or deleted
/// here.
class LookUpRecords
{
public:
    /// Goes to the first look-up. @throws RuntimeFailure with Failure::NoCurrentRecord if there are none or
    /// the register's memory allocation is not known, Failure::TypeMismatch if the allocation has no number
    /// of lines, Failure::SubscriptOutOfRange if it has more than 50.
    explicit LookUpRecords(std::shared_ptr<store::Database> database);

    /// Reads the current record again. A line whose item does not exist is empty.
    [[nodiscard]] LookUp read();
    /// Packs the lines of @p lookUp and stores all of it over the record, with the number of its used lines.
    /// @throws RuntimeFailure with Failure::RecordDeleted, Failure::DuplicateKey, Failure::Conversion and so
    /// on as storing does; nothing is changed then.
    void save(LookUp& lookUp);
    /// The number of the record as it is stored.
    [[nodiscard]] QString storedNumber() const;
    /// All look-ups in their order.
    [[nodiscard]] QVector<ListedItem> readItems() const;
    /// The look-up of this number, a text of digits. @return nothing if there is none.
    [[nodiscard]] std::optional<ListedItem> find(const QString& number) const;
    /// Goes to the look-up of this number. @return false if there is none; the current record is then kept.
    bool moveTo(const QString& number);
    /// @return false at the last record, which remains current.
    [[nodiscard]] bool next();
    /// @return false at the first record, which remains current.
    [[nodiscard]] bool previous();

    /// Sets @p line to PLU or function @p number. A PLU is never a condiment; if the item does not exist, the
    /// line is empty but keeps its text.
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
