// A shop's small database and screen files for the tests of screens.
#pragma once

#include "shell/ApplicationValues.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"

namespace norvane::test
{

/// Two tables: GROUPS with its number as key and an index over the names, PLUDATA with 18-digit keys.
inline QVector<store::TableDefinition> shopTables()
{
    using store::FieldType;
    const auto text = [](const char* name) {
        return QString::fromLatin1(name);
    };
    const store::TableDefinition groups{
        text("GROUPS"),
        {{text("GROUPNO"), FieldType::Long, 0, {}, false},
         {text("DESCRIPTION"), FieldType::Text, 12, {}, false},
         {text("RATE"), FieldType::Double, 0, {}, false},
         {text("PRICE"), FieldType::Text, 12, {}, false},
         {text("LINK"), FieldType::Long, 0, {}, false},
         {text("LONGLINK"), FieldType::Digits, 18, {}, false},
         {text("TAX1"), FieldType::YesNo, 0, {}, false},
         {text("FLAG"), FieldType::Long, 0, {}, false}},
        {{{text("groupno")}, text("GROUPNO"), true}, {{text("byname")}, text("DESCRIPTION"), false}}};
    const store::TableDefinition plus{text("PLUDATA"),
                                      {{text("PLUNUMBER"), FieldType::Text, 18, {}, false},
                                       {text("DESCRIPTION"), FieldType::Text, 16, {}, false},
                                       {text("PRICE1"), FieldType::Text, 12, {}, false},
                                       {text("GROUPNO"), FieldType::Long, 0, {}, false}},
                                      {{{text("plunumber")}, text("PLUNUMBER"), true}}};
    return {groups, plus};
}

/// A folder with such a database and with screen files as the tests write them.
class ScreenFixture
{
public:
    ScreenFixture()
    {
        values.appPath = folder.path();
        values.databasePath = folder.path("velmar.mdb");
        values.screenFilePath = folder.path("test.scn");
        store::Database::create(values.databasePath, shopTables());
        addGroup(1, "Wines", 3);
        addGroup(2, "Beers", 1);
        addGroup(3, "Food", 2);
        addPlu("000000000000000005", "Lager");
        addPlu("000000000000000123", "Claret");
    }

    void addGroup(int number, const char* name, int link) const
    {
        store::Database database(values.databasePath);
        store::Recordset records = database.openTable(QStringLiteral("GROUPS"));
        records.addNew();
        records.setValue(QStringLiteral("GROUPNO"), store::Value::whole(number));
        records.setValue(QStringLiteral("DESCRIPTION"), store::Value::text(std::string(name)));
        records.setValue(QStringLiteral("RATE"), store::Value::number(1.5));
        records.setValue(QStringLiteral("PRICE"), store::Value::text(std::string("12.34")));
        records.setValue(QStringLiteral("LINK"), store::Value::whole(link));
        records.setValue(QStringLiteral("TAX1"), store::Value::yesNo(number == 1));
        records.setValue(QStringLiteral("FLAG"), store::Value::whole(number == 1 ? 1 : -1));
        records.update();
    }

    void addPlu(const char* number, const char* name) const
    {
        store::Database database(values.databasePath);
        store::Recordset records = database.openTable(QStringLiteral("PLUDATA"));
        records.addNew();
        records.setValue(QStringLiteral("PLUNUMBER"), store::Value::text(std::string(number)));
        records.setValue(QStringLiteral("DESCRIPTION"), store::Value::text(std::string(name)));
        records.setValue(QStringLiteral("PRICE1"), store::Value::text(std::string("2.5")));
        records.setValue(QStringLiteral("GROUPNO"), store::Value::whole(1));
        records.update();
    }

    /// All rows of a query as another program would read them: columns joined by "|", null as "null".
    [[nodiscard]] QStringList rows(const char* sql) const
    {
        store::Database database(values.databasePath);
        store::Recordset records = database.openQuery(QString::fromUtf8(sql));
        QStringList rows;
        for (; !records.atEnd(); records.moveNext()) {
            QStringList columns;
            for (int field = 0; field < records.fieldCount(); ++field) {
                columns +=
                    records.value(field).isNull() ? QStringLiteral("null") : records.value(field).toText();
            }
            rows += columns.join(u'|');
        }
        return rows;
    }

    void execute(const char* sql) const
    {
        store::Database(values.databasePath).execute(QString::fromUtf8(sql));
    }

    /// Writes the screen file; lines are given with "\n".
    void screen(QByteArray text) const { folder.write("test.scn", text.replace("\n", "\r\n")); }

    TestFolder folder;
    ApplicationValues values;
};

} // namespace norvane::test
