// A folder of a test's own with a database in it, and short ways to fill and read a table.
#pragma once

#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

namespace norvane::store::test
{

using norvane::test::failureOf;
using norvane::test::TestFolder;

inline Value text(const char* utf8)
{
    return Value::text(std::string(utf8));
}

/// A table such as a register's price look-ups, with every type and with names that hold punctuation.
inline TableDefinition itemTable()
{
    return {QStringLiteral("Items"),
            {{QStringLiteral("NUMBER"), FieldType::Text, 18, {}, false},
             {QStringLiteral("DESCRIPTION"), FieldType::Text, 16, {}, false},
             {QStringLiteral("GROUPNO"), FieldType::Long, 0, {}, false},
             {QStringLiteral("ROUNDON%"), FieldType::Double, 0, {}, false},
             {QStringLiteral("#OfCondiments"), FieldType::Digits, 18, {}, false},
             {QStringLiteral("TAX/x"), FieldType::YesNo, 0, {}, false},
             {QStringLiteral("OPENEURO&LOCALDRAWER"), FieldType::Date, 0, {}, false},
             {QStringLiteral("COUNT1"), FieldType::Double, 0, QStringLiteral("0"), true}},
            {{{QStringLiteral("plunumber"), QStringLiteral("primarykey")}, QStringLiteral("NUMBER"), true},
             {{QStringLiteral("bygroup")}, QStringLiteral("GROUPNO"), false},
             {{QStringLiteral("bylink")}, QStringLiteral("#OfCondiments"), false}}};
}

/// Whether two tables have the same fields and indexes in the same order.
inline bool same(const TableDefinition& left, const TableDefinition& right)
{
    const auto ofField = [](const FieldDefinition& it) {
        return std::tie(it.name, it.type, it.size, it.defaultText, it.required);
    };
    const auto ofIndex = [](const IndexDefinition& it) {
        return std::tie(it.names, it.field, it.unique);
    };
    return left.name == right.name && std::ranges::equal(left.fields, right.fields, {}, ofField, ofField) &&
           std::ranges::equal(left.indexes, right.indexes, {}, ofIndex, ofIndex);
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

inline void addItem(Recordset& items, const char* number, const Value& group = {})
{
    items.addNew();
    items.setValue(QStringLiteral("NUMBER"), text(number));
    items.setValue(QStringLiteral("GROUPNO"), group);
    items.update();
}

/// The numbers of the items from the first to the last in the current order.
inline std::string numbersOf(Recordset& items)
{
    std::string numbers;
    if (items.recordCount() > 0)
        items.moveFirst();
    for (; !items.atEnd(); items.moveNext())
        numbers += (numbers.empty() ? "" : " ") + items.value(QStringLiteral("NUMBER")).toUtf8();
    return numbers;
}

} // namespace norvane::store::test
