// Definitions of tables, fields and indexes, as the catalogue lists them and as a database file tells them.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <algorithm>

namespace norvane::store
{

enum class FieldType {
    YesNo,   ///< holds -1 or 0; anything not zero becomes true
    Long,    ///< whole number of 32 bits
    Double,  ///< number
    Digits,  ///< whole number of any length, kept digit for digit, ordered and compared by value
    Text,    ///< at most size characters
    Date,    ///< a day
    Counter, ///< whole number that the store counts up for each new record
};

struct FieldDefinition {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;          ///< characters of a text field, digits of a digits field, 0 otherwise
    QString defaultText;   ///< what a new record holds; empty for null
    bool required = false; ///< may not be null when a record is stored
};

/// An index over one field. Several names may stand for one index.
struct IndexDefinition {
    QStringList names;
    QString field;
    bool unique = true;
};

struct TableDefinition {
    QString name;
    QVector<FieldDefinition> fields;
    QVector<IndexDefinition> indexes;
    /// A field by which queries choose records of a table that grows without end: the file finds them
    /// quickly, though no recordset can be set to it. Only for making a table, not told of one that is there.
    QString searchedField = {};
};

/// The field of that name, in any case; nullptr when the table has none.
[[nodiscard]] inline const FieldDefinition* fieldNamed(const TableDefinition& table, QStringView name)
{
    const auto isIt = [name](const FieldDefinition& field) {
        return name.compare(field.name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(table.fields.cbegin(), table.fields.cend(), isIt);
    return found == table.fields.cend() ? nullptr : &*found;
}

} // namespace norvane::store
