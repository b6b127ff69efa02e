// One level of a keyboard, from its tables to its tables.
#pragma once

#include "keys/KeyGeometry.h"
#include "keys/KeyItems.h"

#include <memory>
#include <vector>

namespace norvane::store
{
class Database;
}

namespace norvane::keys
{

/// Holds what every cell of the shown level does and says. Nothing is stored before save().
class KeyLevel
{
public:
    KeyLevel(const KeyGeometry& geometry, std::shared_ptr<store::Database> database);

    [[nodiscard]] const KeyGeometry& geometry() const { return m_geometry; }
    /// From 1; 0 before the first read().
    [[nodiscard]] int level() const { return m_level; }
    [[nodiscard]] KeyItems& items() { return m_items; }

    /// Reads @p level again; unsaved changes are lost.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord if a table has fewer rows than the level needs,
    /// Failure::Conversion for a code that is not a number; the level shown before is then kept.
    void read(int level);
    /// Reads the texts of all keys again: the items may have other names now, or be gone.
    /// @throws RuntimeFailure with Failure::Conversion for a code that is not a number.
    void readItems();
    /// Stores every key of the level in one transaction, also unchanged ones: a function key's row of NLU
    /// gets its key number whatever it had before, and so does the row of a look-up after its four digits.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord, Failure::TypeMismatch, Failure::DatabaseLocked
    /// and others as Recordset does; its text names the level and its rows. Both tables are then unchanged,
    /// and the changes can still be saved.
    void save();
    /// Whether a save would store another PLU, function or look-up for any key.
    [[nodiscard]] bool differs() const;

    [[nodiscard]] const Key& key(KeyCell cell) const { return m_keys[indexOf(cell)]; }
    void setKey(KeyCell cell, const Key& key) { m_keys[indexOf(cell)] = key; }

private:
    [[nodiscard]] std::size_t indexOf(KeyCell cell) const
    {
        const int index = cell.row * m_geometry.columns + cell.column;
        return static_cast<std::size_t>(index);
    }
    [[nodiscard]] std::vector<Key> readKeys(int level);
    [[nodiscard]] QString notSaved(const QString& failure) const;
    void saveFunctions();
    void saveLookUps();

    const KeyGeometry& m_geometry;
    std::shared_ptr<store::Database> m_database;
    KeyItems m_items;
    int m_level = 0;
    std::vector<Key> m_keys;   ///< row by row
    std::vector<Key> m_stored; ///< as the tables have them
};

} // namespace norvane::keys
