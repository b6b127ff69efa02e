// Databases with contents that this program never stores, and runs that are cancelled.
#include "tests/reports/ReportShop.h"
#include "tests/store/Elsewhere.h"

namespace norvane::reports::test
{
namespace
{

using norvane::test::runElsewhere;

class BadInput : public testing::Test
{
protected:
    [[nodiscard]] ReportRequest request(const char* layout) const
    {
        return shop.request(ReportShop::installed(layout));
    }
    /// Whether the report's error names @p part.
    [[nodiscard]] static testing::AssertionResult reports(const ReportRequest& request, const char* part)
    {
        const std::string error = errorOf(request);
        return error.find(part) == std::string::npos ? testing::AssertionFailure() << error
                                                     : testing::AssertionSuccess();
    }

    ReportShop shop;
};

TEST_F(BadInput, AMissingTableIsReported)
{
    runElsewhere(shop.path(), "delete from norvane_field where table_name = 'GROUPS'");
    EXPECT_TRUE(reports(request("plusales.rpt"), "the database has no table GROUPS"));
    EXPECT_EQ(errorOf(request("mixsales.rpt")), "");
}

TEST_F(BadInput, ADamagedOrMissingDatabaseIsReported)
{
    QByteArray content = shop.folder().read("velmar.mdb");
    content.replace(8192, content.size() - 8192, QByteArray(content.size() - 8192, '\x5A'));
    shop.folder().write("velmar.mdb", content);
    auto sales = request("plusales.rpt");
    EXPECT_TRUE(reports(sales, "velmar.mdb"));
    sales.dataFile += u".none"_s;
    EXPECT_TRUE(reports(sales, "File not found"));
}

TEST_F(BadInput, NullAndTextInNumbersCountAsZero)
{
    runElsewhere(shop.path(),
                 "drop table MIXSALES; create table MIXSALES (ID, SALESDATE, QUANTITY, VALUE);"
                 "insert into MIXSALES values (1, '2026-11-25', null, 0), (1, '2026-11-25', 'three', 0),"
                 "(1, '2026-11-25', 150, 0), (null, '2026-11-25', 100, 0), (2, 'no day', 100, 0)");
    const auto data = runReport(request("mixsales.rpt"));
    EXPECT_EQ(linesOf(data), "1|Offer 1|1.5\n2|Offer 2|1\n|Offer|1\n# |Total|3.5");
}

TEST_F(BadInput, ALongRunIsStoppedWithoutAReport)
{
    runElsewhere(shop.path(),
                 "insert into MIXSALES (ID, SALESDATE, QUANTITY, VALUE) "
                 "with recursive n(i) as (select 1 union all select i + 1 from n where i < 1000000) "
                 "select i, '2026-11-25', 1, 0 from n");
    int asked = 0;
    const auto giveUp = [&asked] {
        return ++asked < 2;
    };
    EXPECT_THROW((void)runReport(request("mixsales.rpt"), giveUp), ReportCancelled);
    EXPECT_EQ(asked, 2);
}

} // namespace
} // namespace norvane::reports::test
