// A folder of a test's own with a database in it, and short ways to fill and read a table.
#pragma once

#include "tests/platform/TestFolder.h"
#include "tests/store/Rows.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace norvane::store::test
{

using norvane::test::failureOf, norvane::test::rowsOf, norvane::test::TestFolder, norvane::test::text;

/// A table such as a register's price look-ups, with every type and with names that hold punctuation.
inline TableDefinition itemTable()
{
    return {u"Items"_s,
            {{u"NUMBER"_s, FieldType::Text, 18, {}, false},
             {u"DESCRIPTION"_s, FieldType::Text, 16, {}, false},
             {u"GROUPNO"_s, FieldType::Long, 0, {}, false},
             {u"ROUNDON%"_s, FieldType::Double, 0, {}, false},
             {u"#OfCondiments"_s, FieldType::Digits, 18, {}, false},
             {u"TAX/x"_s, FieldType::YesNo, 0, {}, false},
             {u"OPENEURO&LOCALDRAWER"_s, FieldType::Date, 0, {}, false},
             {u"COUNT1"_s, FieldType::Double, 0, u"0"_s, true}},
            {{{u"plunumber"_s, u"primarykey"_s}, u"NUMBER"_s, true},
             {{u"bygroup"_s}, u"GROUPNO"_s, false},
             {{u"bylink"_s}, u"#OfCondiments"_s, false}}};
}

/// What the file says about a table: a line for the table, for each field and for each index.
inline QStringList linesOf(const TableDefinition& table)
{
    QStringList lines{table.name + u" is a table"_s};
    for (const FieldDefinition& it : table.fields) {
        lines << u"%1.%2 type %3 size %4 required %5 default %6"_s.arg(table.name, it.name)
                     .arg(static_cast<int>(it.type))
                     .arg(it.size)
                     .arg(it.required)
                     .arg(it.defaultText);
    }
    for (const IndexDefinition& it : table.indexes) {
        lines
            << u"%1 index %2 of %3 unique %4"_s.arg(table.name, it.names.join(u'/'), it.field).arg(it.unique);
    }
    return lines;
}

class StoreFolder
{
public:
    explicit StoreFolder(const QVector<TableDefinition>& tables = {itemTable()})
    {
        Database::create(path(), tables);
    }
    [[nodiscard]] QString path() const { return m_folder.path("velmar.mdb"); }
    [[nodiscard]] const TestFolder& folder() const { return m_folder; }

private:
    TestFolder m_folder;
};

inline void add(Recordset& records, std::initializer_list<std::pair<const char*, Value>> values)
{
    records.addNew();
    for (const auto& [field, value] : values)
        records.setValue(QString::fromUtf8(field), value);
    records.update();
}

/// The numbers of the items in the current order, from the first on or from the last back.
inline std::string numbersOf(Recordset& items, bool backwards = false)
{
    std::string numbers;
    backwards ? items.moveLast() : items.moveFirst();
    while (items.hasCurrent()) {
        numbers += (numbers.empty() ? "" : " ") + items.value(u"NUMBER"_s).toUtf8();
        backwards ? items.movePrevious() : items.moveNext();
    }
    return numbers;
}

} // namespace norvane::store::test
