// Databases of older layouts, made by leaving the later fields and tables out, and what the start makes of
// them.
#include "store/Upgrade.h"

#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/platform/TestFolder.h"
#include "tests/store/Words.h"

#include <algorithm>

namespace norvane::store
{
namespace
{

struct LaterField {
    QString table;
    FieldDefinition field;
};

FieldDefinition flag(const char* name)
{
    return {QLatin1String(name), FieldType::YesNo, 0, QString(), false};
}

FieldDefinition startingAtZero(const QString& name, FieldType type)
{
    return {name, type, 0, QStringLiteral("0"), true};
}

/// What the layout got after the first databases were made, as their register files need it.
QVector<LaterField> laterFields()
{
    QVector<LaterField> later;
    for (const char* name : {"DISALLOWADDINX", "DISALLOWOVERRIDEINX", "DISALLOWSUBTRACTINX"}) {
        later.append({QStringLiteral("AUTHORITYLEVEL"), flag(name)});
    }
    later.append(
        {QStringLiteral("EMPLOYEE"), {QStringLiteral("dallaskey"), FieldType::Text, 14, QString(), true}});
    later.append({QStringLiteral("KITCHENPRINTOPTIONS"), flag("REDIRECTTORCPT")});
    later.append({QStringLiteral("PLUDATA"), flag("printNV")});
    later.append({QStringLiteral("PLUSTATUS"), flag("LINKEDNVIMAGE")});
    QStringList redeem{QStringLiteral("REDEEMCASH"), QStringLiteral("REDEEMCHECK")};
    for (int number = 1; number <= 16; ++number) {
        redeem.append(QStringLiteral("REDEEMMISC%1").arg(number));
    }
    for (const QString& name : redeem) {
        later.append({QStringLiteral("GENERALFUNCTIONS"), startingAtZero(name, FieldType::Double)});
    }
    for (const char* name : {"TURNOFFAUTOCUTTER", "prelogoimagercpt", "postlogoimagercpt", "prelogoimagegc",
                             "postlogoimagegc"}) {
        later.append(
            {QStringLiteral("GENERALPRINTOPTION"), startingAtZero(QLatin1String(name), FieldType::Long)});
    }
    later.append({QStringLiteral("GENERALPRINTOPTION"),
                  startingAtZero(QStringLiteral("STOPINTERNALPRINT"), FieldType::YesNo)});
    for (const char* name :
         {"EJPOINTPAYMENT", "EJSUBTRACTPOINT", "EJADDPOINT", "EJSUBTRACTVALUE", "EJREDEEM", "EJPRINTCARD",
          "EJCARDSALE", "EJHOTLIST", "EJREMOVECARD", "CONDENSEDPRINT", "PRINTNEGLINES", "DISABLEREGDETAIL"}) {
        later.append({QStringLiteral("EJDETAILPRINT"), flag(name)});
    }
    later.append({QStringLiteral("TRACKINGFILEOPTIONS"), flag("DISABLEGCONRECEIPT")});
    return later;
}

bool same(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

const FieldDefinition* find(const TableDefinition& table, const QString& name)
{
    const auto found = std::find_if(table.fields.begin(), table.fields.end(),
                                    [&name](const FieldDefinition& field) { return same(field.name, name); });
    return found == table.fields.end() ? nullptr : &*found;
}

/// The current layout without what came later, but with the names in @p kept ("table" or "table.field").
QVector<TableDefinition> oldLayout(const QStringList& kept = {})
{
    QVector<TableDefinition> tables;
    const QVector<LaterField> later = laterFields();
    for (TableDefinition table : catalogue()) {
        if (table.name.endsWith(QStringLiteral("SALES")) && !kept.contains(table.name)) {
            continue;
        }
        table.fields.removeIf([&](const FieldDefinition& field) {
            return !kept.contains(table.name + QLatin1Char('.') + field.name) &&
                   std::any_of(later.begin(), later.end(), [&](const LaterField& each) {
                       return same(each.table, table.name) && same(each.field.name, field.name);
                   });
        });
        tables.append(table);
    }
    return tables;
}

/// @p place is "table" or "table.field".
bool has(const Database& database, const QString& place)
{
    const QStringList names = place.split(QLatin1Char('.'));
    return database.hasTable(names[0]) &&
           (names.size() == 1 || find(database.table(names[0]), names[1]) != nullptr);
}

class Upgrade : public ::testing::Test
{
protected:
    QString make(const QVector<TableDefinition>& tables) const
    {
        Database::create(m_folder.path("velmar.mdb"), tables);
        return m_folder.path("velmar.mdb");
    }
    test::TestFolder m_folder;
};

TEST_F(Upgrade, BringsAnOldDatabaseToTheCurrentLayout)
{
    const QString path = make(oldLayout());
    UpgradeDatabase(path);

    const Database database(path);
    EXPECT_EQ(database.tableNames().size(), catalogue().size());
    for (const LaterField& later : laterFields()) {
        const TableDefinition table = database.table(later.table);
        const FieldDefinition* field = find(table, later.field.name);
        ASSERT_NE(field, nullptr) << qPrintable(later.field.name);
        EXPECT_EQ(field->type, later.field.type) << qPrintable(later.field.name);
        EXPECT_EQ(field->size, later.field.size) << qPrintable(later.field.name);
        EXPECT_EQ(field->defaultText, later.field.defaultText) << qPrintable(later.field.name);
        EXPECT_EQ(field->required, later.field.required) << qPrintable(later.field.name);
    }
}

TEST_F(Upgrade, LeavesTheSameFieldsAsTheTemplateExceptTheLinkedImage)
{
    const QString path = make(oldLayout());
    UpgradeDatabase(path);

    const Database database(path);
    for (const TableDefinition& expected : catalogue()) {
        const TableDefinition table = database.table(expected.name);
        EXPECT_EQ(table.fields.size(), expected.fields.size()) << qPrintable(expected.name);
        EXPECT_EQ(table.indexes.size(), expected.indexes.size()) << qPrintable(expected.name);
        for (const FieldDefinition& wanted : expected.fields) {
            const FieldDefinition* field = find(table, wanted.name);
            ASSERT_NE(field, nullptr) << qPrintable(wanted.name);
            const bool linkedImage = wanted.name == QStringLiteral("LINKEDNVIMAGE");
            EXPECT_EQ(field->type, linkedImage ? FieldType::YesNo : wanted.type) << qPrintable(wanted.name);
            EXPECT_EQ(field->size, wanted.size) << qPrintable(wanted.name);
            EXPECT_EQ(field->required, wanted.required) << qPrintable(wanted.name);
        }
    }
}

TEST_F(Upgrade, ChangesNothingInACurrentDatabase)
{
    const QString path = make(catalogue());
    const QByteArray before = m_folder.read("velmar.mdb");
    UpgradeDatabase(path);
    UpgradeUnitDescription(path);
    EXPECT_EQ(m_folder.read("velmar.mdb"), before);
}

TEST_F(Upgrade, StopsWhereALaterFieldStandsAlreadyAndIsNeverCompleted)
{
    const struct {
        const char* standing;
        QStringList done;
        QStringList missing;
    } cases[] = {
        {"AUTHORITYLEVEL.DISALLOWADDINX",
         {},
         test::words("AUTHORITYLEVEL.DISALLOWOVERRIDEINX EMPLOYEE.dallaskey")},
        {"KITCHENPRINTOPTIONS.REDIRECTTORCPT", test::words("EMPLOYEE.dallaskey"),
         test::words("PLUDATA.printNV TIMESALES")},
        {"GENERALPRINTOPTION.prelogoimagegc",
         test::words("GENERALFUNCTIONS.REDEEMMISC16 GENERALPRINTOPTION.postlogoimagercpt"),
         test::words("GENERALPRINTOPTION.postlogoimagegc GENERALPRINTOPTION.STOPINTERNALPRINT TIMESALES")},
        {"PLUSALES", test::words("TIMESALES CLERKSALES"),
         test::words("MIXSALES EJDETAILPRINT.EJPOINTPAYMENT")},
        {"TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT",
         test::words("FINANCIALSALES EJDETAILPRINT.DISABLEREGDETAIL"),
         {}},
    };
    for (const auto& each : cases) {
        const QString path = make(oldLayout({QLatin1String(each.standing)}));
        for (int start = 1; start <= 2; ++start) {
            UpgradeDatabase(path);
            const Database database(path);
            for (const QString& place : each.done) {
                EXPECT_TRUE(has(database, place)) << each.standing << ": " << qPrintable(place);
            }
            for (const QString& place : each.missing) {
                EXPECT_FALSE(has(database, place)) << each.standing << ": " << qPrintable(place);
            }
        }
    }
}

TEST_F(Upgrade, StopsAtATableThatIsNotThere)
{
    QVector<TableDefinition> tables = oldLayout();
    tables.removeIf([](const TableDefinition& table) { return table.name == QStringLiteral("PLUSTATUS"); });
    const QString path = make(tables);
    UpgradeDatabase(path);
    const Database database(path);
    EXPECT_TRUE(has(database, QStringLiteral("PLUDATA.PRINTNV")));
    EXPECT_FALSE(has(database, QStringLiteral("GENERALFUNCTIONS.redeemcash")));
}

TEST_F(Upgrade, LeavesOldRowsNullUntilTheyAreNextStored)
{
    const QString path = make(oldLayout());
    {
        Database database(path);
        for (const char* table : {"EMPLOYEE", "GENERALFUNCTIONS"}) {
            Recordset records = database.openTable(QLatin1String(table));
            records.addNew();
            records.setValue(QStringLiteral("ID"), Value::whole(1));
            records.update();
        }
    }
    UpgradeDatabase(path);

    Database database(path);
    const struct {
        const char* table;
        const char* field;
        const char* given;
    } cases[] = {{"EMPLOYEE", "dallaskey", "0A0000000000FF"}, {"GENERALFUNCTIONS", "REDEEMMISC16", "1.25"}};
    for (const auto& each : cases) {
        Recordset records = database.openTable(QLatin1String(each.table));
        ASSERT_EQ(records.recordCount(), 1);
        EXPECT_TRUE(records.value(QLatin1String(each.field)).isNull()) << each.table;
        records.edit();
        EXPECT_EQ(test::failureOf([&] { records.update(); }), 3314) << each.table;
    }
    Recordset employee = database.openTable(QStringLiteral("EMPLOYEE"));
    employee.edit();
    employee.setValue(QStringLiteral("dallaskey"), Value::text(QStringLiteral("0A0000000000FF")));
    EXPECT_EQ(test::failureOf([&] { employee.update(); }), 0);

    Recordset functions = database.openTable(QStringLiteral("GENERALFUNCTIONS"));
    functions.addNew();
    functions.setValue(QStringLiteral("ID"), Value::whole(2));
    functions.update();
    functions.moveLast();
    EXPECT_EQ(functions.value(QStringLiteral("REDEEMMISC16")).toText(), QStringLiteral("0"));
}

TEST_F(Upgrade, AddsTheUnitDescriptionOnceAtTheFirstStart)
{
    QVector<TableDefinition> tables = oldLayout();
    for (TableDefinition& table : tables) {
        table.fields.removeIf(
            [](const FieldDefinition& field) { return same(field.name, QStringLiteral("unitdescription")); });
    }
    const QString path = make(tables);
    UpgradeUnitDescription(path);
    const QByteArray first = m_folder.read("velmar.mdb");
    UpgradeUnitDescription(path);
    EXPECT_EQ(m_folder.read("velmar.mdb"), first);

    const TableDefinition table = Database(path).table(QStringLiteral("PRODUCTMIX"));
    const FieldDefinition* field = find(table, QStringLiteral("unitDESCRIPTION"));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->type, FieldType::Text);
    EXPECT_EQ(field->size, 10);
    EXPECT_FALSE(field->required);
}

TEST_F(Upgrade, PassesOverFilesThatAreNoDatabase)
{
    m_folder.write("foreign.mdb", QByteArray("Standard Jet DB", 15) + QByteArray(4000, '\x01'));
    const QByteArray before = m_folder.read("foreign.mdb");
    for (const char* name : {"missing.mdb", "foreign.mdb"}) {
        EXPECT_NO_THROW(UpgradeDatabase(m_folder.path(name)));
        EXPECT_NO_THROW(UpgradeUnitDescription(m_folder.path(name)));
    }
    EXPECT_EQ(m_folder.names(), QStringList{QStringLiteral("foreign.mdb")});
    EXPECT_EQ(m_folder.read("foreign.mdb"), before);
}

} // namespace
} // namespace norvane::store
