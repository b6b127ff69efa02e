// Databases that hold what no program of ours would leave there, and runs that are given up.
#include "tests/reports/ReportShop.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace norvane::reports::test
{
namespace
{

/// Does to a database what another program could.
void meddle(const ReportShop& shop, const char* sql)
{
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(shop.path().toUtf8().constData(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

TEST(BadInput, ADatabaseThatLacksATableIsTold)
{
    const ReportShop shop;
    meddle(shop, "delete from norvane_field where table_name = 'GROUPS'");
    const auto request = shop.request(ReportShop::installed("plusales.rpt"));
    EXPECT_NE(errorOf(request).find("the database has no table GROUPS"), std::string::npos)
        << errorOf(request);
    EXPECT_EQ(errorOf(shop.request(ReportShop::installed("mixsales.rpt"))), "");
}

TEST(BadInput, ADamagedOrMissingDatabaseIsTold)
{
    const ReportShop shop;
    QByteArray content = shop.folder().read("velmar.mdb");
    content.replace(8192, content.size() - 8192, QByteArray(content.size() - 8192, '\x5A'));
    shop.folder().write("velmar.mdb", content);
    auto request = shop.request(ReportShop::installed("plusales.rpt"));
    EXPECT_NE(errorOf(request).find("velmar.mdb"), std::string::npos);
    request.dataFile += u".none"_s;
    EXPECT_NE(errorOf(request).find("File not found"), std::string::npos);
}

TEST(BadInput, NullAndTextInNumbersCountAsZero)
{
    const ReportShop shop;
    meddle(shop, "drop table MIXSALES; create table MIXSALES (ID, SALESDATE, QUANTITY, VALUE);"
                 "insert into MIXSALES values (1, '2026-11-25', null, 0), (1, '2026-11-25', 'three', 0),"
                 "(1, '2026-11-25', 150, 0), (null, '2026-11-25', 100, 0), (2, 'no day', 100, 0)");
    const auto data = runReport(shop.request(ReportShop::installed("mixsales.rpt")));
    EXPECT_EQ(linesOf(data), "1|Offer 1|1.5\n2|Offer 2|1\n|Offer|1\n# |Total|3.5");
}

TEST(BadInput, ANumberTooLargeToShowIsTold)
{
    const ReportShop shop;
    shop.add("MIXSALES", "ID|SALESDATE|QUANTITY", {"1|2026-11-25|1e300"});
    EXPECT_NE(errorOf(shop.request(ReportShop::installed("mixsales.rpt"))).find("18 digits"),
              std::string::npos);
}

TEST(BadInput, ALongRunIsGivenUpWithoutAReport)
{
    const ReportShop shop;
    meddle(shop, "insert into MIXSALES (ID, SALESDATE, QUANTITY, VALUE) "
                 "with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000000) "
                 "select i, '2026-11-25', 1, 0 from n");
    int asked = 0;
    const auto giveUp = [&asked] {
        return ++asked < 2;
    };
    EXPECT_THROW((void)runReport(shop.request(ReportShop::installed("mixsales.rpt")), giveUp),
                 ReportCancelled);
    EXPECT_EQ(asked, 2);
}

} // namespace
} // namespace norvane::reports::test
