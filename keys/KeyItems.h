// What keys can do: the functions, PLUs and window look-ups of the customer, and how a key shows them.
#pragma once

#include "register/PluNumber.h"
#include "store/engine/Recordset.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <vector>

namespace norvane::keys
{

/// Digits of the number that a key of the NLU file keeps, the register's width.
inline constexpr int lookUpWidth = PluNumber::digits;
/// Digits of a window look-up's number.
inline constexpr int wluDigits = 4;

/// Values of KEYLINK that are not function keys.
inline constexpr QLatin1StringView pluLink{"0"};
inline constexpr QLatin1StringView lookUpLink{"271"};

/// What a key can hold.
enum class ItemKind { Function, Plu, LookUp };

/// A record as a list of its table shows it.
struct ListedItem {
    QString number;
    QString description;
};

/// What a cell of the grid says about its key.
enum class KeyState {
    Unprogrammed,
    Function,
    Plu,
    LookUp,
    Missing, ///< its item is in no table
    Fixed,   ///< the same on every register
};

/// One key of a level as the editor holds it.
struct Key {
    QString function; ///< the value of KEYLINK
    QString lookUp;   ///< the text of NLU
    QString text;     ///< what the cell shows
    KeyState state = KeyState::Unprogrammed;
    bool operator==(const Key&) const = default;
};

/// A table whose records can be put on keys.
struct ItemTable {
    QLatin1StringView table;
    QLatin1StringView number;       ///< field
    QLatin1StringView mark;         ///< before the number in a cell; a function shows no number
    QLatin1StringView missingKey;   ///< the cell of a key whose item does not exist
    QLatin1StringView missingEntry; ///< the cell after the choice of an item that does not exist
    KeyState state;
};
[[nodiscard]] const ItemTable& itemTable(ItemKind kind);

/// By the value of KEYLINK.
[[nodiscard]] ItemKind kindOf(const QString& function);
/// The part of the look-up code that names the key's item: all of it for a PLU, four digits for a window
/// look-up, nothing for a function.
[[nodiscard]] QString itemNumber(const QString& function, const QString& lookUp);
/// Whether both keys do the same for a customer.
[[nodiscard]] bool doTheSame(const Key& one, const Key& other);
/// Codes of a key that does nothing.
[[nodiscard]] Key unprogrammedKey();
/// The function key that comes back from a register as a PLU key.
inline constexpr QLatin1StringView pluFunction{"200"};

/// Looks items up in the current tables.
class KeyItems
{
public:
    explicit KeyItems(store::Database& database);

    /// A key of these codes with its text. @throws RuntimeFailure with Failure::Conversion when a code is not
    /// a number.
    [[nodiscard]] Key keyOf(const QString& function, const QString& lookUp);
    /// The key that opens the item with @p number. @return nothing if there is no such item.
    [[nodiscard]] std::optional<Key> keyFor(ItemKind kind, const QString& number);
    /// The key of an item with @p number that is in no table.
    [[nodiscard]] static Key missingKey(ItemKind kind, const QString& number);

private:
    [[nodiscard]] store::Recordset& records(ItemKind kind)
    {
        return m_records[static_cast<std::size_t>(kind)];
    }
    [[nodiscard]] QString textOf(ItemKind kind);

    std::vector<store::Recordset> m_records; ///< by kind
};

} // namespace norvane::keys
