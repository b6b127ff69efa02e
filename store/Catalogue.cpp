// Makes the definitions of the catalogue from its rows.
//
// Every table stands in the Catalogue*.cpp file of its subject, its fields in the order of the register's
// record, so that it can be held beside the register's file description line by line. Names keep the spelling
// of the register's own vocabulary, odd ones included. The storage types follow from what a field carries:
//
//   yes or no                            YesNo
//   whole number of up to 9 digits       Long      what a number box on a screen can hold
//   whole number of 10 to 15 digits      Double    sign-on codes, check numbers: exact there
//   whole number of more digits          Digits    PLU links, window codes, reserved tax columns: digit for
//   digit number with decimal places           Double    amounts, rates, factors the prices of a PLU Text a
//   number held as text, see price() text of a stated width               Text      PLU numbers and look-ups
//   among them: leading zeros count what the register says of its memory Text      kept as it came a day Date
//
// A table whose record has no number of its own has a counter as its key, outside the record. Each index is
// unique and stands over the key field; the sales tables have none, since each collection only appends.
// What reports choose their rows by has the engine's own index (docs/decisions/).
#include "store/Catalogue.h"

#include "store/CatalogueRows.h"

#include <algorithm>

namespace norvane::store
{
namespace
{

FieldDefinition fieldFrom(const rows::FieldRow& row, const QString& name)
{
    return {name, row.type, row.size, QLatin1StringView(row.defaultText), row.required};
}

void appendFields(QVector<FieldDefinition>& fields, const rows::Row& row)
{
    if (row.times == 0) {
        fields.append(fieldFrom(row.fields[0], QLatin1StringView(row.fields[0].name)));
        return;
    }
    for (int number = 1; number <= row.times; ++number) {
        for (const rows::FieldRow& field : row.fields) {
            if (field.name != nullptr) {
                const QString pattern = QLatin1StringView(field.name);
                fields.append(fieldFrom(field, QString(pattern).replace(u'*', QString::number(number))));
            }
        }
    }
}

TableDefinition tableFrom(const rows::TableRow& row)
{
    TableDefinition table{QLatin1StringView(row.name), {}, {}};
    for (const rows::Row& fields : row.fields) {
        appendFields(table.fields, fields);
    }
    if (row.indexField != nullptr) {
        IndexDefinition index{{}, QLatin1StringView(row.indexField)};
        for (const char* name : row.indexNames) {
            if (name != nullptr) {
                index.names.append(QLatin1StringView(name));
            }
        }
        table.indexes.append(index);
    }
    table.searchedField = QLatin1StringView(row.searchedField);
    return table;
}

QVector<TableDefinition> allTables()
{
    QVector<TableDefinition> tables;
    for (const auto& group :
         {rows::productTables(), rows::keyTables(), rows::optionTables(), rows::printOptionTables(),
          rows::messageTables(), rows::staffTables(), rows::collectedTables()}) {
        std::transform(group.begin(), group.end(), std::back_inserter(tables), tableFrom);
    }
    return tables;
}

} // namespace

const QVector<TableDefinition>& catalogue()
{
    static const QVector<TableDefinition> tables = allTables();
    return tables;
}

const TableDefinition* catalogueTable(const QString& name)
{
    const QVector<TableDefinition>& tables = catalogue();
    const auto found = std::find_if(tables.begin(), tables.end(), [&name](const TableDefinition& table) {
        return table.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == tables.end() ? nullptr : &*found;
}

} // namespace norvane::store
