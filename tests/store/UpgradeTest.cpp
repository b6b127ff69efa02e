// Databases of older layouts, made by leaving the later fields and tables out, and what the start makes of
// them.
#include "store/Upgrade.h"

#include "store/Catalogue.h"
#include "tests/store/StoreFolder.h"

#include <algorithm>

namespace norvane::store
{
namespace
{

QStringList words(const char* names)
{
    return QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts);
}

/// What the layout got after the first databases were made, as their register files need it.
const std::pair<const char*, const char*> laterFields[] = {
    {"AUTHORITYLEVEL", "DISALLOWADDINX DISALLOWOVERRIDEINX DISALLOWSUBTRACTINX"},
    {"EMPLOYEE", "dallaskey"},
    {"KITCHENPRINTOPTIONS", "REDIRECTTORCPT"},
    {"PLUDATA", "printNV"},
    {"PLUSTATUS", "LINKEDNVIMAGE"},
    {"GENERALFUNCTIONS",
     "REDEEMCASH REDEEMCHECK REDEEMMISC1 REDEEMMISC2 REDEEMMISC3 REDEEMMISC4 REDEEMMISC5 REDEEMMISC6 "
     "REDEEMMISC7 REDEEMMISC8 REDEEMMISC9 REDEEMMISC10 REDEEMMISC11 REDEEMMISC12 REDEEMMISC13 REDEEMMISC14 "
     "REDEEMMISC15 REDEEMMISC16"},
    {"GENERALPRINTOPTION",
     "TURNOFFAUTOCUTTER prelogoimagercpt postlogoimagercpt prelogoimagegc postlogoimagegc "
     "STOPINTERNALPRINT"},
    {"EJDETAILPRINT",
     "EJPOINTPAYMENT EJSUBTRACTPOINT EJADDPOINT EJSUBTRACTVALUE EJREDEEM EJPRINTCARD EJCARDSALE "
     "EJHOTLIST EJREMOVECARD CONDENSEDPRINT PRINTNEGLINES DISABLEREGDETAIL"},
    {"TRACKINGFILEOPTIONS", "DISABLEGCONRECEIPT"},
    {"PRODUCTMIX", "unitDESCRIPTION"},
};

/// Whether a field came later; with an empty name, whether a table did.
bool cameLater(const QString& table, const QString& field)
{
    if (field.isEmpty())
        return table.endsWith(QStringLiteral("SALES"));
    return std::any_of(std::begin(laterFields), std::end(laterFields), [&](const auto& each) {
        return table == QLatin1String(each.first) && words(each.second).contains(field, Qt::CaseInsensitive);
    });
}

/// The current layout without what came later, but with @p kept ("table" or "table.field").
QVector<TableDefinition> oldLayout(const QString& kept = {})
{
    QVector<TableDefinition> tables;
    for (TableDefinition table : catalogue()) {
        if (cameLater(table.name, {}) && table.name != kept)
            continue;
        table.fields.removeIf([&](const FieldDefinition& field) {
            return cameLater(table.name, field.name) && kept != table.name + u'.' + field.name;
        });
        tables.append(table);
    }
    return tables;
}

/// @p place is "table" or "table.field".
bool has(const Database& database, const QString& place)
{
    const QStringList names = place.split(u'.');
    if (!database.hasTable(names[0]) || names.size() == 1)
        return database.hasTable(names[0]);
    const auto fields = database.table(names[0]).fields;
    return std::any_of(fields.begin(), fields.end(), [&](const FieldDefinition& field) {
        return field.name.compare(names[1], Qt::CaseInsensitive) == 0;
    });
}

/// Names in one spelling and fields in one order: both differ between an old and a new database.
TableDefinition comparable(TableDefinition table)
{
    table.name = table.name.toUpper();
    for (FieldDefinition& field : table.fields) {
        field.name = field.name.toUpper();
        // The number of the current layout came too late for databases that have the flag.
        if (field.name == QStringLiteral("LINKEDNVIMAGE"))
            field.type = FieldType::YesNo;
    }
    std::sort(table.fields.begin(), table.fields.end(),
              [](const auto& left, const auto& right) { return left.name < right.name; });
    return table;
}

TEST(Upgrade, BringsAnOldDatabaseToTheCurrentLayout)
{
    const test::StoreFolder folder(oldLayout());
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    const Database database(folder.path());
    EXPECT_EQ(database.tableNames().size(), catalogue().size());
    for (const TableDefinition& expected : catalogue()) {
        EXPECT_TRUE(test::same(comparable(database.table(expected.name)), comparable(expected)))
            << qPrintable(expected.name);
    }
    EXPECT_EQ(database.table(QStringLiteral("PLUSTATUS")).fields.last().type, FieldType::YesNo);
}

TEST(Upgrade, ChangesNothingInACurrentDatabase)
{
    const test::StoreFolder folder(catalogue());
    const QByteArray before = folder.folder().read("velmar.mdb");
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    EXPECT_TRUE(folder.folder().read("velmar.mdb") == before);
}

TEST(Upgrade, StopsWhereALaterFieldStandsAlreadyAndIsNeverCompleted)
{
    const struct {
        const char* standing;
        const char* done;
        const char* missing;
    } cases[] = {
        {"AUTHORITYLEVEL.DISALLOWADDINX", "", "AUTHORITYLEVEL.DISALLOWOVERRIDEINX EMPLOYEE.dallaskey"},
        {"KITCHENPRINTOPTIONS.REDIRECTTORCPT", "EMPLOYEE.dallaskey", "PLUDATA.printNV TIMESALES"},
        {"GENERALPRINTOPTION.prelogoimagegc",
         "GENERALFUNCTIONS.REDEEMMISC16 GENERALPRINTOPTION.postlogoimagercpt",
         "GENERALPRINTOPTION.postlogoimagegc GENERALPRINTOPTION.STOPINTERNALPRINT TIMESALES"},
        {"PLUSALES", "TIMESALES CLERKSALES", "MIXSALES EJDETAILPRINT.EJPOINTPAYMENT"},
        {"TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT", "FINANCIALSALES EJDETAILPRINT.DISABLEREGDETAIL", ""},
    };
    for (const auto& [standing, done, missing] : cases) {
        const test::StoreFolder folder(oldLayout(QLatin1String(standing)));
        for (int start = 1; start <= 2; ++start) {
            UpgradeDatabase(folder.path());
            const Database database(folder.path());
            for (const QString& place : words(done))
                EXPECT_TRUE(has(database, place)) << standing << ": " << qPrintable(place);
            for (const QString& place : words(missing))
                EXPECT_FALSE(has(database, place)) << standing << ": " << qPrintable(place);
        }
    }
}

TEST(Upgrade, PassesOverFilesThatAreNoDatabase)
{
    const norvane::test::TestFolder folder;
    const QByteArray foreign = "Standard Jet DB" + QByteArray(4000, '\x01');
    folder.write("foreign.mdb", foreign);
    for (const char* name : {"missing.mdb", "foreign.mdb"}) {
        EXPECT_NO_THROW(UpgradeDatabase(folder.path(name)));
        EXPECT_NO_THROW(UpgradeUnitDescription(folder.path(name)));
    }
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("foreign.mdb")});
    EXPECT_EQ(folder.read("foreign.mdb"), foreign);
}

} // namespace
} // namespace norvane::store
