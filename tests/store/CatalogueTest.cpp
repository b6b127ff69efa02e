// The catalogue as a template database: every table opens in the order of each of its indexes, and every
// field keeps what a register or a screen puts into it.
#include "store/Catalogue.h"

#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Words.h"

#include <QSet>

namespace norvane::store
{
namespace
{

class TemplateDatabase : public ::testing::Test
{
protected:
    TemplateDatabase() { Database::create(m_folder.path("velmar.mdb"), catalogue()); }
    test::TestFolder m_folder;
};

TEST(Catalogue, NamesEveryTableAndFieldOnce)
{
    QSet<QString> tables;
    for (const TableDefinition& table : catalogue()) {
        EXPECT_FALSE(tables.contains(table.name.toUpper())) << qPrintable(table.name);
        tables.insert(table.name.toUpper());
        QSet<QString> fields;
        for (const FieldDefinition& field : table.fields) {
            EXPECT_FALSE(fields.contains(field.name.toUpper())) << qPrintable(table.name + field.name);
            EXPECT_FALSE(field.name.contains(QLatin1Char('*'))) << qPrintable(table.name + field.name);
            fields.insert(field.name.toUpper());
        }
    }
}

TEST(Catalogue, CountsNumberedFieldsInTheOrderOfTheRecord)
{
    const struct {
        const char* table;
        qsizetype ordinal;
        QStringList names;
        qsizetype fields;
    } groups[] = {
        {"PLUDATA", 16, test::words("PRICE1 PRICELEVEL1 PRICE2 PRICELEVEL2"), 36},
        {"WLU", 107, test::words("wlutype49 codenumber49 wlutype50 codenumber50"), 111},
        {"RECIPE", 2, test::words("item1 recipe1 qty1 item2"), 62},
        {"GENERALFUNCTIONS", 55, test::words("ROUNDINGSTART1 ROUNDINGEND1 ROUNDINGVALUE1 ROUNDINGSTART2"),
         106},
        {"TRACKINGFILEOPTIONS", 12, test::words("RESETCHECK4 STARTCHECK1 STARTCHECK2 STARTCHECK3"), 23},
        {"PLUSALES", 12, test::words("COUNT5 VALUE5"), 14},
        {"memoryallocation", 37, test::words("Z1GROUPTIME Z2GROUPTIME"), 81},
    };
    for (const auto& group : groups) {
        const TableDefinition* table = catalogueTable(QLatin1String(group.table));
        ASSERT_NE(table, nullptr);
        EXPECT_EQ(table->fields.size(), group.fields) << group.table;
        for (qsizetype place = 0; place < group.names.size(); ++place) {
            EXPECT_EQ(table->fields.value(group.ordinal + place).name, group.names[place]) << group.table;
        }
    }
}

TEST_F(TemplateDatabase, HoldsTheLayoutThatTheCatalogueTells)
{
    Database database(m_folder.path("velmar.mdb"));
    ASSERT_EQ(database.tableNames().size(), catalogue().size());
    for (const TableDefinition& expected : catalogue()) {
        const TableDefinition stored = database.table(expected.name);
        ASSERT_EQ(stored.fields.size(), expected.fields.size()) << qPrintable(expected.name);
        for (qsizetype place = 0; place < expected.fields.size(); ++place) {
            const FieldDefinition& field = stored.fields[place];
            const FieldDefinition& wanted = expected.fields[place];
            EXPECT_EQ(field.name, wanted.name);
            EXPECT_EQ(field.type, wanted.type) << qPrintable(wanted.name);
            EXPECT_EQ(field.size, wanted.size) << qPrintable(wanted.name);
            EXPECT_EQ(field.defaultText, wanted.defaultText) << qPrintable(wanted.name);
            EXPECT_EQ(field.required, wanted.required) << qPrintable(wanted.name);
        }
    }
}

TEST_F(TemplateDatabase, OpensEveryTableEmptyInTheOrderOfItsIndex)
{
    const struct {
        QStringList tables;
        QStringList indexes;
    } others[] = {
        {test::words("PLUDATA"), test::words("plunumber PrimaryKey")},
        {test::words("PRODUCTMIX"), test::words("primarykeys")},
        {test::words("GROUPS"), test::words("groupno")},
        {test::words("RECIPE"), test::words("recipeno")},
        {test::words("TIMEPERIOD"), test::words("id")},
        {test::words("TIMESALES CLERKSALES PLUSALES MIXSALES GROUPSALES FINANCIALSALES"), {}},
    };
    Database database(m_folder.path("velmar.mdb"));
    for (const QString& table : database.tableNames()) {
        QStringList indexes{QStringLiteral("primarykey")};
        for (const auto& other : others) {
            indexes = other.tables.contains(table) ? other.indexes : indexes;
        }
        Recordset records = database.openTable(table);
        EXPECT_EQ(records.recordCount(), 0) << qPrintable(table);
        for (const QString& index : indexes) {
            EXPECT_EQ(test::failureOf([&] { records.setIndex(index); }), 0) << qPrintable(table + index);
        }
        EXPECT_EQ(test::failureOf([&] { records.setIndex(QStringLiteral("nosuchindex")); }), 3265);
    }
}

struct StoredCase {
    const char* table;
    const char* field;
    Value given;
    const char* kept;
};

TEST_F(TemplateDatabase, KeepsWhatRegistersAndScreensStore)
{
    const auto text = [](const char* given) {
        return Value::text(QString::fromUtf8(given));
    };
    const StoredCase cases[] = {
        {"PLUDATA", "PLUNUMBER", text("000000000000000123"), "000000000000000123"},
        {"PLUDATA", "STOCKLINK", text("999999999999999999"), "999999999999999999"},
        {"PLUDATA", "PRICE1", text("12.34"), "12.34"},
        {"PLUDATA", "EuroPrice5", text(" 1.5"), " 1.5"},
        {"PLUDATA", "GROUPNO", text("07"), "7"},
        {"PLUSTATUS", "LINKEDPLU", text("123456789012345678"), "123456789012345678"},
        {"PLUSTATUS", "LINKEDNVIMAGE", text("12"), "12"},
        {"PLUSTATUS", "AUTOGRILL", text("12"), "True"},
        {"PRODUCTMIX", "unitDESCRIPTION", text("Kilogramme"), "Kilogramme"},
        {"WLU", "codenumber50", text("999999999999999998"), "999999999999999998"},
        {"FUNCTIONKEY", "flag2", text("0012.50"), "12.5"},
        {"FUNCTIONKEY", "HALO", text("99999999"), "99999999"},
        {"KEYLINK", "KEYLINK", text(""), ""},
        {"TAXRATES", "dummy20", text("12345678901234567890"), "12345678901234567890"},
        {"TAXRATES", "highhold", text("9999999999"), "9999999999"},
        {"TAXRATES", "taxrate", Value::number(17.5), "17.5"},
        {"TRACKINGFILEOPTIONS", "LIMITCHECK4", text("9999999999"), "9999999999"},
        {"EMPLOYEE", "SOCIAL", text("999999999999"), "999999999999"},
        {"EMPLOYEE", "SIGNONCODE", Value::number(4294967297.0), "4294967297"},
        {"TIMEPERIOD", "STARTTIME", text("0005"), "0005"},
        {"GENERALPRINTOPTION", "TURNOFFAUTOCUTTER", Value::yesNo(true), "-1"},
        {"GENERALFUNCTIONS", "GELDKARTE", text("999999"), "999999"},
        {"TIMEKEEPING", "TIPREPORTING", Value::number(0.125), "0.125"},
        {"memoryallocation", "PLU", text("500"), "500"},
        {"memoryallocation", "reporttotals", text(""), ""},
    };
    Database database(m_folder.path("velmar.mdb"));
    for (const StoredCase& each : cases) {
        Recordset records = database.openTable(QLatin1String(each.table));
        records.addNew();
        records.setValue(QLatin1String(each.field), each.given);
        if (QLatin1String(each.table) == QLatin1String("EMPLOYEE")) {
            records.setValue(QStringLiteral("dallaskey"), text("00000000000000"));
        }
        records.update();
        records.moveLast();
        EXPECT_EQ(records.value(QLatin1String(each.field)).toText(), QString::fromUtf8(each.kept))
            << each.table << '.' << each.field;
        database.execute(QStringLiteral("delete * from ") + QLatin1String(each.table));
    }
}

TEST_F(TemplateDatabase, CountsTheKeysThatNoRecordHolds)
{
    Database database(m_folder.path("velmar.mdb"));
    for (const char* table : {"smode", "memoryallocation"}) {
        Recordset records = database.openTable(QLatin1String(table));
        records.setIndex(QStringLiteral("primarykey"));
        for (int record = 0; record < 2; ++record) {
            records.addNew();
            records.update();
        }
        records.moveFirst();
        const Value first = records.value(QStringLiteral("ID"));
        records.moveNext();
        EXPECT_GT(records.value(QStringLiteral("ID")).toNumber(), first.toNumber()) << table;
    }
}

TEST_F(TemplateDatabase, AsksForWhatASaleAndAnEmployeeMustHave)
{
    const struct {
        const char* table;
        QStringList given;
        int failure;
    } cases[] = {
        {"PLUSALES", test::words("SALESDATE PROMO WASTE"), 3314},
        {"PLUSALES", test::words("ID SALESDATE WASTE"), 3314},
        {"PLUSALES", test::words("ID SALESDATE PROMO WASTE"), 0},
        {"MIXSALES", test::words("ID"), 3314},
        {"MIXSALES", test::words("ID SALESDATE"), 0},
        {"CLERKSALES", test::words("ID SALESDATE"), 3314},
        {"EMPLOYEE", test::words("ID"), 3314},
        {"GENERALFUNCTIONS", test::words("ID"), 0},
    };
    Database database(m_folder.path("velmar.mdb"));
    for (const auto& each : cases) {
        Recordset records = database.openTable(QLatin1String(each.table));
        records.addNew();
        for (const QString& field : each.given) {
            records.setValue(field, field == QStringLiteral("SALESDATE") ? Value::date(QDate(2026, 3, 1))
                                                                         : Value::text(QStringLiteral("1")));
        }
        EXPECT_EQ(test::failureOf([&] { records.update(); }), each.failure)
            << each.table << qPrintable(each.given.join(QLatin1Char(' ')));
    }
}

} // namespace
} // namespace norvane::store
