// What the start makes of a current database, and of older ones made by leaving the later fields and tables
// out.
#include "store/catalogue/Upgrade.h"

#include "store/catalogue/Catalogue.h"
#include "tests/platform/FullDisk.h"
#include "tests/store/StoreFolder.h"

#include <QRegularExpression>

#include <algorithm>

namespace norvane::store
{
namespace
{

using test::rowsOf, test::StoreFolder;

/// Whether a table or "TABLE.FIELD" came after the first databases were made.
bool cameLater(const QString& place)
{
    static const QRegularExpression later(
        QRegularExpression::anchoredPattern(
            u"AUTHORITYLEVEL.DISALLOW.*|EMPLOYEE.DALLASKEY|KITCHENPRINTOPTIONS.REDIRECTTORCPT|PLUDATA."
            u"PRINTNV|"
            "PLUSTATUS.LINKEDNVIMAGE|GENERALFUNCTIONS.REDEEM.*|"
            "GENERALPRINTOPTION.(TURNOFFAUTOCUTTER|(PRE|POST)LOGOIMAGE.*|STOPINTERNALPRINT)|"
            "EJDETAILPRINT.(EJ(POINTPAYMENT|(SUBTRACT|ADD)(POINT|VALUE)|REDEEM|PRINTCARD|CARDSALE|HOTLIST|"
            "REMOVECARD)|CONDENSEDPRINT|PRINTNEGLINES|DISABLEREGDETAIL)|"
            "TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT|PRODUCTMIX.UNITDESCRIPTION|[A-Z]*SALES"_s),
        QRegularExpression::CaseInsensitiveOption);
    return later.match(place).hasMatch();
}

/// The current layout without what came later, but with @p kept (a table or "TABLE.FIELD").
QVector<TableDefinition> oldLayout(const QString& kept = {})
{
    QVector<TableDefinition> tables;
    for (TableDefinition table : catalogue()) {
        const auto isMissing = [&kept](const QString& place) {
            return cameLater(place) && place != kept;
        };
        table.fields.removeIf([&](const auto& field) { return isMissing(table.name + u'.' + field.name); });
        if (!isMissing(table.name))
            tables.append(table);
    }
    return tables;
}

/// Each table, field and index on a line. Spelling and order differ between an old and a new database.
std::string layoutOf(const QVector<TableDefinition>& tables)
{
    QStringList lines;
    for (const TableDefinition& table : tables)
        lines << test::linesOf(table);
    lines = lines.join(u'\n').toUpper().split(u'\n');
    lines.sort();
    return lines.join(u'\n').toStdString();
}

std::string layoutIn(const StoreFolder& folder)
{
    const Database database(folder.path());
    QVector<TableDefinition> tables;
    for (const QString& name : database.tableNames())
        tables << database.table(name);
    return layoutOf(tables);
}

/// The upgrade makes a flag of a field that the current layout has as a number.
std::string beforeCompletion(const std::string& layout)
{
    return QString::fromStdString(layout)
        .replace(u"LINKEDNVIMAGE TYPE 1"_s, u"LINKEDNVIMAGE TYPE 0"_s)
        .toStdString();
}

TEST(Upgrade, UpgradesAnOldDatabaseToTheCurrentLayout)
{
    const StoreFolder folder(oldLayout());
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    EXPECT_EQ(layoutIn(folder), beforeCompletion(layoutOf(catalogue())));
    const auto addStatus = [&folder](int status, const Value& image) {
        Database database(folder.path());
        Recordset statuses = database.openTable(u"PLUSTATUS"_s);
        test::add(statuses, {{"STATUSNO", Value::whole(status)}, {"LINKEDNVIMAGE", image}});
    };
    addStatus(1, Value());
    addStatus(2, Value::whole(12));
    completeDatabase(folder.path());
    addStatus(3, Value::whole(12));
    EXPECT_EQ(layoutIn(folder), layoutOf(catalogue()));
    EXPECT_EQ(rowsOf(folder.path(), u"select LINKEDNVIMAGE from PLUSTATUS order by STATUSNO"_s),
              "null -1 12");
}

TEST(Upgrade, WritesNothingIntoACurrentDatabase)
{
    const StoreFolder folder(catalogue());
    const QByteArray before = folder.folder().read("velmar.mdb");
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    {
        Database database(folder.folder().path("VELMAR.mdb"));
        EXPECT_EQ(database.openTable(u"pludata"_s).recordCount(), 0);
        EXPECT_EQ(database.tableNames().size(), catalogue().size());
        for (const TableDefinition& expected : catalogue()) {
            EXPECT_TRUE(test::linesOf(database.table(expected.name.toLower())) == test::linesOf(expected))
                << qPrintable(expected.name);
        }
    }
    EXPECT_TRUE(folder.folder().read("velmar.mdb") == before);
    EXPECT_EQ(folder.folder().names(), QStringList{u"velmar.mdb"_s});
}

// The existing field, the last one added before it and the first one not added after it.
constexpr const char* partlyUpgraded[][3] = {
    {"AUTHORITYLEVEL.DISALLOWADDINX", "", "AUTHORITYLEVEL.DISALLOWOVERRIDEINX"},
    {"KITCHENPRINTOPTIONS.REDIRECTTORCPT", "EMPLOYEE.DALLASKEY", "PLUDATA.PRINTNV"},
    {"GENERALPRINTOPTION.prelogoimagegc", "GENERALPRINTOPTION.POSTLOGOIMAGERCPT",
     "GENERALPRINTOPTION.POSTLOGOIMAGEGC"},
    {"PLUSALES", "CLERKSALES", "MIXSALES"},
    {"TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT", "EJDETAILPRINT.DISABLEREGDETAIL", ""},
};

TEST(Upgrade, StopsWhereALaterFieldExistsAndIsNeverCompleted)
{
    for (const auto& [existing, done, missing] : partlyUpgraded) {
        const StoreFolder folder(oldLayout(QLatin1StringView(existing)));
        for (int start = 1; start <= 2; ++start) {
            UpgradeDatabase(folder.path());
            const std::string layout = '\n' + layoutIn(folder);
            EXPECT_NE(layout.find('\n' + std::string(done)), std::string::npos) << existing;
            EXPECT_TRUE(*missing == '\0' || layout.find('\n' + std::string(missing)) == std::string::npos)
                << existing << ", start " << start;
        }
    }
}

/// The current layout as the first build with sales tables made it: without what is kept beside the tables.
QVector<TableDefinition> withoutCompanions()
{
    QVector<TableDefinition> tables = catalogue();
    for (TableDefinition& table : tables)
        table.searchedField.clear();
    return tables;
}

/// The whole contents of a file as the engine sees it, except what the first row adds.
std::string engineLayoutOf(const StoreFolder& folder)
{
    return rowsOf(folder.path(),
                  u"select type, name, sql from sqlite_schema where tbl_name <> 'norvane_retired' "
                  "order by name"_s);
}

TEST(Completion, GivesAnEarlierDatabaseWhatANewOneHas)
{
    const StoreFolder folder(withoutCompanions());
    {
        Database database(folder.path());
        Recordset sales = database.openTable(u"mixsales"_s);
        test::add(sales, {{"ID", Value::whole(7)}, {"SALESDATE", Value::date({2026, 11, 24})}});
    }
    const QString aDay = u"from mixsales where SALESDATE = #11/24/2026#"_s;
    const QString plan = u"explain query plan select * "_s + aDay;
    EXPECT_EQ(rowsOf(folder.path(), plan).find("USING INDEX"), std::string::npos);
    const std::string tables = layoutIn(folder);
    completeDatabase(folder.path());
    EXPECT_EQ(engineLayoutOf(folder), engineLayoutOf(StoreFolder(catalogue())));
    EXPECT_NE(rowsOf(folder.path(), plan).find("USING INDEX"), std::string::npos);
    EXPECT_EQ(layoutIn(folder), tables);
    EXPECT_EQ(rowsOf(folder.path(), u"select ID "_s + aDay), "7");

    const QByteArray before = folder.folder().read("velmar.mdb");
    completeDatabase(folder.path());
    EXPECT_TRUE(folder.folder().read("velmar.mdb") == before) << "a second run writes nothing";
}

TEST(Completion, GivesFieldsOfAnEarlierBuildRoomForLongNumbers)
{
    QVector<TableDefinition> tables = catalogue();
    for (FieldDefinition& field : std::ranges::find(tables, u"TAXRATES"_s, &TableDefinition::name)->fields) {
        if (field.name == u"repeatbreak"_s)
            field = {field.name, FieldType::Long, 0, {}, false};
        if (field.name == u"highhold"_s)
            field = {field.name, FieldType::Double, 0, {}, false};
    }
    const StoreFolder folder(tables);
    {
        Database database(folder.path());
        Recordset rates = database.openTable(u"taxrates"_s);
        test::add(rates,
                  {{"ID", Value::whole(1)}, {"repeatbreak", Value::whole(99)}, {"dummy1", test::text("5")}});
        test::add(rates, {{"ID", Value::whole(2)}, {"highhold", Value::number(9876543210.0)}});
    }
    for (int start = 1; start <= 2; ++start) {
        completeDatabase(folder.path());
        EXPECT_EQ(layoutIn(folder), layoutOf(catalogue()));
        EXPECT_EQ(rowsOf(folder.path(), u"select repeatbreak, dummy1, highhold from taxrates order by ID"_s),
                  "99|5|null null|null|9876543210");
    }
    Database database(folder.path());
    Recordset rates = database.openTable(u"taxrates"_s);
    rates.edit();
    rates.setValue(u"repeatbreak"_s, test::text("12345678901234567890"));
    rates.update();
    EXPECT_EQ(rowsOf(folder.path(), u"select repeatbreak from taxrates where ID = 1"_s),
              "12345678901234567890");
}

TEST(Completion, AddsNothingThatTheUpgradeLeftOut)
{
    const StoreFolder folder(oldLayout(u"PLUSALES"_s));
    UpgradeDatabase(folder.path());
    const std::string tables = layoutIn(folder);
    completeDatabase(folder.path());
    EXPECT_EQ(beforeCompletion(layoutIn(folder)), tables);
    // The upgrade makes the three tables with their indexes; the fourth already existed.
    EXPECT_EQ(rowsOf(folder.path(),
                     u"select upper(tbl_name) from sqlite_schema where name like '*sales search' "
                     "and name not like 'norvane*' order by 1"_s),
              "CLERKSALES PLUSALES TIMESALES");
}

TEST(Completion, IgnoresEveryFailureAndLeavesTheFileIntact)
{
    const StoreFolder folder(withoutCompanions());
    completeDatabase(folder.folder().path("none.mdb"));
    folder.folder().write("other.mdb", "no database");
    completeDatabase(folder.folder().path("other.mdb"));
    EXPECT_EQ(folder.folder().read("other.mdb"), "no database");
    EXPECT_EQ(folder.folder().names(), (QStringList{u"other.mdb"_s, u"velmar.mdb"_s}));
    const std::string tables = layoutIn(folder);
    {
        const norvane::test::FullDisk disk(4096);
        completeDatabase(folder.path());
    }
    EXPECT_EQ(layoutIn(folder), tables);
    completeDatabase(folder.path());
    EXPECT_EQ(engineLayoutOf(folder), engineLayoutOf(StoreFolder(catalogue())));
}

} // namespace
} // namespace norvane::store
