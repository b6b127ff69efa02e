// The definitions of tables in a database file, and the creation of tables and fields.
#pragma once

#include "store/engine/Companions.h"
#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <QHash>

#include <memory>
#include <optional>
#include <vector>

struct sqlite3;

namespace norvane::store
{

/// A table's definition with what recordsets look up in it, made once and shared by them.
class TableShape
{
public:
    explicit TableShape(TableDefinition definition);

    [[nodiscard]] const TableDefinition& definition() const { return m_definition; }
    [[nodiscard]] const QString& name() const { return m_definition.name; }
    [[nodiscard]] std::optional<int> ordinal(const QString& field) const;
    /// Makes @p values those of a new record, by ordinal.
    void fillNew(std::vector<Value>& values) const;
    /// The index named @p name, nullptr if there is none.
    [[nodiscard]] const IndexDefinition* index(const QString& name) const;

private:
    TableDefinition m_definition;
    QHash<QString, int> m_ordinals;
    std::vector<Value> m_defaults;
    std::vector<std::size_t> m_withDefault; ///< ordinals; few fields have one
};

/// Reads and writes definitions. They are stored in two tables beside the tables that they describe: SQLite's
/// declared types are free text that knows nothing of required fields, defaults or two names of one index,
/// and a declaration can hardly be changed after a field was added.
class Schema
{
public:
    explicit Schema(sqlite3* handle) : m_handle(handle) {}

    /// Makes the two tables of definitions in an empty file.
    void prepareFile();
    [[nodiscard]] QStringList tableNames() const;
    /// The table's definition, nothing if there is none of that name.
    [[nodiscard]] std::optional<TableDefinition> read(const QString& table) const;
    /// Both are done completely or not at all.
    void addTable(const TableDefinition& table);
    void addField(const TableDefinition& table, const FieldDefinition& field);
    /// Makes what the file keeps beside @p table and still lacks, and gives fields the room that @p table
    /// has. Writes nothing when the table is missing or nothing is lacking.
    void completeTable(const TableDefinition& table);
    /// The engine's statement that created the object of that name, nothing if there is none.
    [[nodiscard]] std::optional<QString> declarationOf(const QString& name) const;
    /// Whether the file keeps all of them, just as they would be made.
    [[nodiscard]] bool hasAll(const std::vector<Companion>& companions) const;

private:
    void makeAnew(const std::vector<Companion>& companions);
    void run(const std::string& sql, const QString& what);
    void writeField(const QString& table, int ordinal, const FieldDefinition& field);
    void writeIndex(const QString& table, int number, const IndexDefinition& index);
    void addCompanions(const TableDefinition& table);
    void widenFields(const TableDefinition& table);
    void widenField(const QString& table, const FieldDefinition& former, const FieldDefinition& wanted);
    void replaceColumn(const QString& table, const FieldDefinition& field);
    [[nodiscard]] QVector<FieldDefinition> readFields(const QString& table, QString& storedName) const;
    [[nodiscard]] QVector<IndexDefinition> readIndexes(const QString& table) const;

    sqlite3* m_handle;
};

/// Marks a file in its header as a database of this program.
inline constexpr std::uint32_t applicationId = 0x4E765631;
/// The layout of the definitions; a file with a higher one was made by a later program.
inline constexpr int formatVersion = 1;

/// The collation under which digit texts compare by value; to be registered on every connection.
inline constexpr const char* digitsCollation = "norvane_digits";

} // namespace norvane::store
