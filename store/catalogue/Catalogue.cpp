// Makes the definitions of the catalogue from its rows.
//
// Every table is in the Catalogue*.cpp file of its subject. Its fields have the order and the spelling of the
// register's record, odd spellings included, so that the two can be compared line by line.
//
// clang-format off
//   Content of a field                   Type      Why
//   yes or no                            YesNo
//   whole number of up to 9 digits       Long      the range of a number box on a screen
//   whole number of 10 to 15 digits      Double    exact up to there: sign-on codes, check numbers
//   whole number of more digits          Digits    kept digit for digit: PLU links, reserved tax columns
//   number with decimal places           Double    amounts, rates, factors
//   price of a PLU                       Text      see price()
//   text, PLU numbers among them         Text      leading zeros of a PLU number count
//   memory data of a register            Text      stored unchanged
//   day                                  Date
// clang-format on
//
// A table whose record has no number of its own has a counter as its key. Each index is unique and covers the
// key field. The sales tables have no key, since collections only append to them; an index of the engine lets
// reports find a day (docs/decisions/).
#include "store/catalogue/Catalogue.h"

#include "store/catalogue/CatalogueRows.h"

#include <algorithm>

namespace norvane::store
{
namespace
{

FieldDefinition fieldFrom(const rows::CatalogueField& row, const QString& name)
{
    return {name, row.type, row.size, QLatin1StringView(row.defaultText), row.required};
}

void appendFields(QVector<FieldDefinition>& fields, const rows::FieldRow& row)
{
    if (row.times == 0) {
        fields.append(fieldFrom(row.fields[0], QLatin1StringView(row.fields[0].name)));
        return;
    }
    for (int number = 1; number <= row.times; ++number) {
        for (const rows::CatalogueField& field : row.fields) {
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
    for (const rows::FieldRow& fields : row.fields)
        appendFields(table.fields, fields);
    if (row.indexField != nullptr) {
        IndexDefinition index{{}, QLatin1StringView(row.indexField)};
        for (const char* name : row.indexNames) {
            if (name != nullptr)
                index.names.append(QLatin1StringView(name));
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
