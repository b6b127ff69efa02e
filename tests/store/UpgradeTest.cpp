// What the start makes of a current database, and of older ones made by leaving the later fields and tables
// out.
#include "store/Upgrade.h"

#include "store/Catalogue.h"
#include "tests/store/StoreFolder.h"

#include <QRegularExpression>

namespace norvane::store
{
namespace
{

using test::StoreFolder;

/// Whether a table or "TABLE.FIELD" came after the first databases were made.
bool cameLater(const QString& place)
{
    static const QRegularExpression later(
        QRegularExpression::anchoredPattern(QStringLiteral(
            "AUTHORITYLEVEL.DISALLOW.*|EMPLOYEE.DALLASKEY|KITCHENPRINTOPTIONS.REDIRECTTORCPT|PLUDATA.PRINTNV|"
            "PLUSTATUS.LINKEDNVIMAGE|GENERALFUNCTIONS.REDEEM.*|"
            "GENERALPRINTOPTION.(TURNOFFAUTOCUTTER|(PRE|POST)LOGOIMAGE.*|STOPINTERNALPRINT)|"
            "EJDETAILPRINT.(EJ(POINTPAYMENT|(SUBTRACT|ADD)(POINT|VALUE)|REDEEM|PRINTCARD|CARDSALE|HOTLIST|"
            "REMOVECARD)|CONDENSEDPRINT|PRINTNEGLINES|DISABLEREGDETAIL)|"
            "TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT|PRODUCTMIX.UNITDESCRIPTION|[A-Z]*SALES")),
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

TEST(Upgrade, BringsAnOldDatabaseToTheCurrentLayout)
{
    const StoreFolder folder(oldLayout());
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    QVector<TableDefinition> wanted = catalogue();
    for (TableDefinition& table : wanted) {
        for (FieldDefinition& field : table.fields) {
            // The number of the current layout came too late for databases that have the flag.
            if (field.name == QStringLiteral("LINKEDNVIMAGE"))
                field.type = FieldType::YesNo;
        }
    }
    EXPECT_EQ(layoutIn(folder), layoutOf(wanted));
}

TEST(Upgrade, WritesNothingIntoACurrentDatabaseWhichTellsTheCatalogue)
{
    const StoreFolder folder(catalogue());
    const QByteArray before = folder.folder().read("velmar.mdb");
    UpgradeDatabase(folder.path());
    UpgradeUnitDescription(folder.path());
    {
        Database database(folder.folder().path("VELMAR.mdb"));
        EXPECT_EQ(database.openTable(QStringLiteral("pludata")).recordCount(), 0);
        EXPECT_EQ(database.tableNames().size(), catalogue().size());
        for (const TableDefinition& expected : catalogue()) {
            EXPECT_TRUE(test::linesOf(database.table(expected.name.toLower())) == test::linesOf(expected))
                << qPrintable(expected.name);
        }
    }
    EXPECT_TRUE(folder.folder().read("velmar.mdb") == before);
    EXPECT_EQ(folder.folder().names(), QStringList{QStringLiteral("velmar.mdb")});
}

TEST(Upgrade, StopsWhereALaterFieldStandsAlreadyAndIsNeverCompleted)
{
    // What stands, the last that is added before it and the first that is not added behind it.
    constexpr const char* cases[][3] = {
        {"AUTHORITYLEVEL.DISALLOWADDINX", "", "AUTHORITYLEVEL.DISALLOWOVERRIDEINX"},
        {"KITCHENPRINTOPTIONS.REDIRECTTORCPT", "EMPLOYEE.DALLASKEY", "PLUDATA.PRINTNV"},
        {"GENERALPRINTOPTION.prelogoimagegc", "GENERALPRINTOPTION.POSTLOGOIMAGERCPT",
         "GENERALPRINTOPTION.POSTLOGOIMAGEGC"},
        {"PLUSALES", "CLERKSALES", "MIXSALES"},
        {"TRACKINGFILEOPTIONS.DISABLEGCONRECEIPT", "EJDETAILPRINT.DISABLEREGDETAIL", ""},
    };
    for (const auto& [standing, done, missing] : cases) {
        const StoreFolder folder(oldLayout(QLatin1String(standing)));
        for (int start = 1; start <= 2; ++start) {
            UpgradeDatabase(folder.path());
            const std::string layout = '\n' + layoutIn(folder);
            EXPECT_NE(layout.find('\n' + std::string(done)), std::string::npos) << standing;
            EXPECT_TRUE(*missing == '\0' || layout.find('\n' + std::string(missing)) == std::string::npos)
                << standing << ", start " << start;
        }
    }
}

} // namespace
} // namespace norvane::store
