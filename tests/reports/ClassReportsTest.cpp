// Articles by their takings, in classes by cumulated share.
#include "platform/FilePaths.h"
#include "reports/data/ReportError.h"
#include "tests/reports/ReportShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

using test::ReportShop;

constexpr auto articleFields = "ID|SALESDATE|COUNT1|VALUE1|COUNT2|VALUE2|PROMO|WASTE";

class ClassReports : public testing::Test
{
protected:
    ClassReports()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {"3|COLA|1", "5|JUICE|1", "7|WATER|1", "9|TEA|8", "20|CRISPS|0"});
    }

    void sell(std::initializer_list<const char*> rows) const { shop.add("PLUSALES", articleFields, rows); }
    [[nodiscard]] ReportData run(ComparedWith with = ComparedWith::Nothing) const
    {
        auto request =
            shop.request(ReportShop::installed("abc.rpt"), u"{PLUSALES.SALESDATE} in monthtodate"_s);
        request.comparedWith = with;
        return runReport(request);
    }
    /// A layout with these classes and their letters.
    [[nodiscard]] QString layout(const char* classes) const
    {
        shop.folder().write("own.rpt",
                            QByteArray("[Report]\r\nTitle=Own\r\nTable=PLUSALES\r\nLines={ID}\r\n"
                                       "[Classes]\r\n") +
                                classes +
                                "\r\n[Column1]\r\nValue={ID}\r\nWidth=20\r\n"
                                "[Column2]\r\nClass=Letter\r\nWidth=20\r\n[Sort]\r\nKey1={ID}\r\n");
        return shop.folder().path("own.rpt");
    }

    ReportShop shop;
};

TEST_F(ClassReports, HaveArticlesWithEqualTakingsTogether)
{
    sell({"9|2026-11-02|1|0.1|0|0|0|0", "3|2026-11-02|2|0.3|1|0.2|0|0", "5|2026-11-03|1|0.2|0|0|0|0",
          "7|2026-11-04|1|0.1|0|0|0|0", "20|2026-11-04|1|0.1|0|0|0|0", "999|2026-11-05|2|0|0|0|0|0",
          "20|2026-10-31|1|50|0|0|0|0"});
    const auto data = run();
    EXPECT_EQ(test::headingsOf(data), "PLU|Description|Group|Quantity|Value|Share %|Cumulated %|Class");
    EXPECT_EQ(test::linesOf(data), "> Class A, articles: 5\n"
                                   "3|COLA|DRINKS|3|0.50|50.0|50.0|A\n"
                                   "5|JUICE|DRINKS|1|0.20|20.0|70.0|A\n"
                                   "7|WATER|DRINKS|1|0.10|10.0|80.0|A\n"
                                   "9|TEA||1|0.10|10.0|90.0|A\n" // as much as water
                                   "20|CRISPS||1|0.10|10.0|100.0|A\n"
                                   "= |Total Class A, articles: 5||7|1.00|100.0|100.0\n"
                                   "> Class C, articles: 1\n"
                                   "999|||2|0.00|0.0|100.0|C\n"
                                   "= |Total Class C, articles: 1||2|0.00|0.0|100.0\n"
                                   "# |Total||9|1.00|100.0|100.0");
    ASSERT_EQ(data.charts.size(), 1U);
    EXPECT_EQ(data.charts[0].points.front().label, u"Class A, articles: 5"_s);
}

// These numbers have no exact binary form: the first line has exactly 80 per cent.
TEST_F(ClassReports, HaveRefundsInTheLastAndOthersAfterTheLimit)
{
    sell({"3|2026-11-02|8|0.8|0|0|0|0", "5|2026-11-02|1|0.15|0|0|0|0", "7|2026-11-02|1|0.06|0|0|0|0",
          "9|2026-11-02|-1|-0.01|0|0|0|0"});
    EXPECT_EQ(test::linesOf(run()), "> Class A, articles: 1\n"
                                    "3|COLA|DRINKS|8|0.80|80.0|80.0|A\n"
                                    "= |Total Class A, articles: 1||8|0.80|80.0|80.0\n"
                                    "> Class B, articles: 1\n"
                                    "5|JUICE|DRINKS|1|0.15|15.0|95.0|B\n"
                                    "= |Total Class B, articles: 1||1|0.15|15.0|95.0\n"
                                    "> Class C, articles: 2\n"
                                    "7|WATER|DRINKS|1|0.06|6.0|101.0|C\n"
                                    "9|TEA||-1|-0.01|-1.0|100.0|C\n"
                                    "= |Total Class C, articles: 2||0|0.05|5.0|100.0\n"
                                    "# |Total||9|1.00|100.0|100.0");
}

TEST_F(ClassReports, HaveDashesWhereTheSumIsNotAboveZero)
{
    sell({"3|2026-11-02|1|2|0|0|0|0", "5|2026-11-02|-1|-2|0|0|0|0"});
    EXPECT_EQ(test::linesOf(run()),
              "> Class –, articles: 2\n3|COLA|DRINKS|1|2.00|–|–|–\n"
              "5|JUICE|DRINKS|-1|-2.00|–|–|–\n= |Total Class –, articles: 2||0|0.00|–|–\n"
              "# |Total||0|0.00|–|–");
    sell({"7|2026-11-02|1|1e300|0|0|0|0"});
    EXPECT_NE(test::linesOf(run()).find("3|COLA|DRINKS|1|2.00|–|–|–"), std::string::npos);
}

// What was sold in the other period only comes last, whatever it sold there.
TEST_F(ClassReports, HaveTheLettersOfBothPeriodsButNoHeadings)
{
    sell({"3|2026-11-02|1|9|0|0|0|0", "5|2026-11-02|1|1|0|0|0|0", "5|2026-10-02|1|8|0|0|0|0",
          "20|2026-10-02|1|20|0|0|0|0"});
    const auto data = run(ComparedWith::PeriodBefore);
    EXPECT_TRUE(test::headingsOf(data).ends_with("|Value %|Class|Class before"));
    EXPECT_TRUE(test::linesOf(data).starts_with("3|COLA|DRINKS|1|0|1|–|9.00|0.00|9.00|–|A|–\n"
                                                "5|JUICE|DRINKS|1|1|0|0.0|1.00|8.00|-7.00|-87.5|B|A\n"
                                                "20|CRISPS||0|1|-1|-100.0|0.00|20.00|-20.00|-100.0|–|A\n# |"))
        << test::linesOf(data);
}

TEST_F(ClassReports, TakeLimitsOfALayoutAndNameItsMistakes)
{
    sell({"1|2026-11-02|1|50|0|0|0|0", "2|2026-11-02|1|30|0|0|0|0", "3|2026-11-02|1|20|0|0|0|0"});
    EXPECT_EQ(test::linesOf(runReport(shop.request(layout("By={VALUE1}\r\nLimits=12.5,50.5,81")))),
              "1|A\n2|B\n3|C");
    const auto mistake = [this](const char* classes) {
        return test::errorOf(shop.request(layout(classes)));
    };
    for (const char* const limits : {"80,70", "0,80", "80,100.1", "80,,90", "many"}) {
        EXPECT_NE(mistake(QByteArray("By={VALUE1}\r\nLimits=") + limits)
                      .find("section [Classes], key Limits: expected per cents in ascending order"),
                  std::string::npos)
            << limits;
    }
    EXPECT_NE(mistake("By={VALUE1}").find("key Limits: it is missing"), std::string::npos);
    EXPECT_NE(mistake("By={VALUE1}\r\nLimits=80\r\n[Group]\r\nBy={ID}\r\nHeading={ID}")
                  .find("either groups or classes"),
              std::string::npos);
}

} // namespace
} // namespace norvane::reports
