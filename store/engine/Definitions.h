// Definitions of tables, fields and indexes, as listed in the catalogue and as read from a database file.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace norvane::store
{

/// Types of fields.
enum class FieldType {
    YesNo,   ///< holds -1 or 0; anything not zero becomes true
    Long,    ///< whole number of 32 bits
    Double,  ///< number
    Digits,  ///< whole number of any length, kept digit for digit, ordered and compared by value
    Text,    ///< at most size characters
    Date,    ///< a day
    Counter, ///< whole number that the store counts up for each new record
};

/// A field of a table.
struct FieldDefinition {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;          ///< characters of a text field, digits of a digits field, 0 otherwise
    QString defaultText;   ///< what a new record holds; empty for null
    bool required = false; ///< may not be null when a record is stored
};

/// An index over one field. One index may have several names.
struct IndexDefinition {
    QStringList names;
    QString field;
    bool unique = true;
};

/// A table with its fields and indexes.
struct TableDefinition {
    QString name;
    QVector<FieldDefinition> fields;
    QVector<IndexDefinition> indexes;
    /// A field by which queries choose records of an ever-growing table: the file finds them quickly, though
    /// recordsets cannot use it as an index. Only used to create a table; not filled for existing ones.
    QString searchedField = {};
};

/// The field of that name, in any case; nullptr if the table has none.
[[nodiscard]] inline const FieldDefinition* fieldNamed(const TableDefinition& table, QStringView name)
{
    const auto isIt = [name](const FieldDefinition& field) {
        return name.compare(field.name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(table.fields.cbegin(), table.fields.cend(), isIt);
    return found == table.fields.cend() ? nullptr : &*found;
}

} // namespace norvane::store
