// Articles of the programme that were not sold, with their keys.
#include "platform/FilePaths.h"
#include "tests/reports/ReportShop.h"
#include "tests/store/Elsewhere.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

using test::ReportShop;

class UnsoldReport : public testing::Test
{
protected:
    UnsoldReport()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO|PRICE1|INactive",
                 {"000000000000000003|COLA|1|1.45|0", "000000000000000005|JUICE|1|2|0",
                  "000000000000000007|WATER|1|0.9|1", "000000000000000020|CRISPS|2|1.1|0",
                  "000000000000000021|||0|0", "000000000000000000|NO NUMBER|1|9|0"});
        shop.add("PLUSALES", "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1|COUNT5",
                 {"000000000000000003|2026-10-02|0|0|4|5.8|0", "3|2026-10-05|0|0|-4|-5.8|0", // taken back
                  "5|2026-10-02|0|0|0|0|1", "5|2026-11-02|0|0|0|0|0", "7|2026-09-30|0|0|1|0.9|0",
                  "20|2026-10-02|0|2|0|0|0", "999|2026-10-02|0|0|0|0|0", "998|2026-10-02|0|0|1|1|0"});
    }

    /// The lines but that with the days without a collection.
    [[nodiscard]] std::string linesOf(const QString& formula) const
    {
        const std::string lines = test::linesOf(run(formula));
        return lines.substr(0, lines.find("\n; Without a collection"));
    }
    [[nodiscard]] ReportData run(const QString& formula) const
    {
        return runReport(shop.request(ReportShop::installed("unsold.rpt"), formula));
    }

    ReportShop shop;
};

constexpr const char* unsoldOfOctober = "> 1 DRINKS\n3|COLA||1.45|0\n7|WATER||0.90|0|inactive\n"
                                        "> 2 FOOD\n20|CRISPS||1.10|2";

// October has totals, as the month is over; a condition beside the period makes the report read the rows.
TEST_F(UnsoldReport, ListsTheProgrammeWithoutWhatWasSoldOrIsGone)
{
    const auto data = run(u"{PLUSALES.SALESDATE} in lastmonth"_s);
    EXPECT_EQ(test::headingsOf(data), "PLU|Description|Keys|Price|Waste|Inactive");
    EXPECT_EQ(linesOf(u"{PLUSALES.SALESDATE} in lastmonth"_s), unsoldOfOctober);
    EXPECT_EQ(linesOf(u"{PLUSALES.SALESDATE} in lastmonth and {PLUSALES.ID} <> \"x\""_s), unsoldOfOctober);
    EXPECT_EQ(linesOf(u"{PLUSALES.SALESDATE} in lastmonth and {PLUDATA.GROUPNO} = 2"_s),
              "> 2 FOOD\n20|CRISPS||1.10|2");
    EXPECT_EQ(linesOf(u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s),
              "> 1 DRINKS\n3|COLA||1.45\n5|JUICE||2.00\n7|WATER||0.90|inactive\n"
              "> 2 FOOD\n20|CRISPS||1.10");
}

TEST_F(UnsoldReport, NamesTheKeysByTheKeyboardOfTheShop)
{
    norvane::test::runElsewhere(
        shop.path(), "with recursive n(i) as (select 1 union all select i + 1 from n where i < 900) "
                     "insert into KEYLINK (ID, KEYLINK) select 901 - i, case when i in (1, 2) then '' "
                     "else '0' end from n; "
                     "with recursive n(i) as (select 1 union all select i + 1 from n where i < 900) "
                     "insert into NLU (ID, NLU) select 901 - i, case i when 899 then '000000000000000003' "
                     "when 897 then '3' when 730 then '3' when 3 then '7' end from n");
    shop.add("WLU", "WLUno|wlutype1|codenumber1|wlutype2|codenumber2|wlutype50|codenumber50",
             {"1|0|0|0|3|1|000000000000000003", "12|2|5|1|7|0|3"}); // line 1 of the second is function key 5
    const auto day = u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s;
    shop.folder().write("setup.ini", "[SetupOption]\r\nECRModel=0\r\n");
    EXPECT_TRUE(linesOf(day).starts_with(
        "> 1 DRINKS\n3|COLA|Level 1 keys 2, 4, Level 2 key 2, look-ups 1, 12|1.45\n5|JUICE||2.00\n"
        "7|WATER|look-up 12|0.90|inactive"))
        << linesOf(day);
    shop.folder().write("setup.ini", "[SetupOption]\r\nECRModel=5\r\n");
    EXPECT_NE(linesOf(day).find("Level 1 keys 2, 4, Level 2 key 13"), std::string::npos);
}

} // namespace
} // namespace norvane::reports
