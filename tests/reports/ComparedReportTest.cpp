// A report beside the same report of another period.
#include "reports/data/ReportError.h"
#include "tests/reports/ReportShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

using test::ReportShop;

constexpr auto soldFields = "ID|SALESDATE|COUNT1|VALUE1|PROMO|WASTE";

class ComparedReport : public testing::Test
{
protected:
    ComparedReport()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {"3|COLA|1", "5|JUICE|1", "7|WATER|1", "9|TEA|1", "20|CRISPS|2"});
    }

    ReportData run(const QString& formula, ComparedWith with, const char* layout = "plusales.rpt")
    {
        auto request = shop.request(ReportShop::installed(layout), formula);
        request.comparedWith = with;
        return runReport(request);
    }

    ReportShop shop;
};

TEST_F(ComparedReport, HasBothPeriodsWithChangeAndPerCent)
{
    shop.add("PLUSALES", soldFields,
             {"3|2026-11-25|3|4.35|0|0", "7|2026-11-25|1|0.1|0|0", "9|2026-11-25|2|-1|0|0", // today
              "3|2026-11-24|2|2.9|0|0", "5|2026-11-24|4|8|0|0", "9|2026-11-24|1|-2|0|0",
              "20|2026-11-24|1|1|0|0", "3|2025-11-26|1|100|0|0"}); // the same weekday a year earlier
    const auto data = run(u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s, ComparedWith::PeriodBefore);
    EXPECT_EQ(test::headingsOf(data), "PLU|Description|Quantity|Quantity before|Quantity change|Quantity "
                                      "%|Value|Value before|Value change|Value %");
    EXPECT_EQ(test::linesOf(data), "> 1 DRINKS\n"
                                   "3|COLA|3|2|1|50.0|4.35|2.90|1.45|50.0\n"
                                   "5|JUICE|0|4|-4|-100.0|0.00|8.00|-8.00|-100.0\n"
                                   "7|WATER|1|0|1|–|0.10|0.00|0.10|–\n"
                                   "9|TEA|2|1|1|100.0|-1.00|-2.00|1.00|50.0\n"
                                   "= |Total 1 DRINKS|6|7|-1|-14.3|3.45|8.90|-5.45|-61.2\n"
                                   "> 2 FOOD\n"
                                   "20|CRISPS|0|1|-1|-100.0|0.00|1.00|-1.00|-100.0\n"
                                   "= |Total 2 FOOD|0|1|-1|-100.0|0.00|1.00|-1.00|-100.0\n"
                                   "# |Total|6|8|-2|-25.0|3.45|9.90|-6.45|-65.2");
    EXPECT_EQ(data.heading.subtitle, u"Wednesday, 25/11/2026; before: Tuesday, 24/11/2026"_s);
    EXPECT_TRUE(data.page.isLandscape);
    const auto earlier = run(u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s, ComparedWith::YearEarlier);
    EXPECT_NE(test::linesOf(earlier).find("# |Total|6|1|5|500.0|3.45|100.00|-96.55|-96.6"),
              std::string::npos);
}

TEST_F(ComparedReport, HasOnePeriodWithoutSales)
{
    shop.add("PLUSALES", soldFields, {"3|2026-11-24|2|2.9|0|0"});
    const auto today = run(u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s, ComparedWith::PeriodBefore);
    EXPECT_TRUE(test::linesOf(today).starts_with("> 1 DRINKS\n3|COLA|0|2|-2|-100.0|0.00|2.90|-2.90|-100.0"));
    EXPECT_TRUE(today.heading.notice.isEmpty());
    const auto first = run(u"{PLUSALES.SALESDATE} = date(2026,11,24)"_s, ComparedWith::PeriodBefore);
    EXPECT_TRUE(test::linesOf(first).starts_with("> 1 DRINKS\n3|COLA|2|0|2|–|2.90|0.00|2.90|–"));
    const auto none = run(u"{PLUSALES.SALESDATE} = date(2026,11,20)"_s, ComparedWith::PeriodBefore);
    EXPECT_EQ(none.lineCount(), 0);
    EXPECT_FALSE(none.heading.notice.isEmpty());
}

/// Lines are placed by what both periods have, even where their order depends on the amounts.
TEST_F(ComparedReport, KeepsEveryLineOfALayoutInAnyOrder)
{
    const QString layout = shop.folder().path("best.rpt");
    shop.folder().write("best.rpt", "[Report]\r\nTitle=Best\r\nTable=PLUSALES\r\nLines={ID}\r\n"
                                    "[Column1]\r\nValue={ID}\r\nWidth=20\r\n[Column2]\r\nHeading=Value\r\n"
                                    "Format=Money\r\nValue={VALUE1}\r\nWidth=20\r\nCompare=YES\r\n"
                                    "[Sort]\r\nKey1={VALUE1} descending\r\n");
    shop.add("PLUSALES", soldFields,
             {"1|2026-11-25|1|9|0|0", "2|2026-11-25|1|8|0|0", "3|2026-11-25|1|7|0|0", "3|2026-11-24|1|5|0|0",
              "4|2026-11-24|1|4|0|0", "2|2026-11-24|1|3|0|0", "5|2026-11-24|1|2|0|0",
              "1|2026-11-24|1|1|0|0"});
    auto request = shop.request(layout, u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s);
    request.comparedWith = ComparedWith::PeriodBefore;
    EXPECT_EQ(test::linesOf(runReport(request)),
              "1|9.00|1.00|8.00|800.0\n2|8.00|3.00|5.00|166.7\n3|7.00|5.00|2.00|40.0\n"
              "4|0.00|4.00|-4.00|-100.0\n5|0.00|2.00|-2.00|-100.0");
}

TEST_F(ComparedReport, RefusesWhatHasNoPeriodOrNoNumber)
{
    const auto errorOf = [this](const QString& formula, const char* layout) {
        try {
            (void)run(formula, ComparedWith::PeriodBefore, layout);
        } catch (const ReportError& error) {
            return error.text();
        }
        return QString();
    };
    EXPECT_TRUE(errorOf({}, "plusales.rpt").endsWith(u"its selection is not a period."_s));
    EXPECT_TRUE(
        errorOf(u"{PLUSALES.SALESDATE} > date(2026,1,1)"_s, "plusales.rpt").contains(u"not a period"_s));
    EXPECT_TRUE(errorOf(u"{PLUSALES.SALESDATE} in monthtodate and {PLUSALES.ID} = 3"_s, "plusales.rpt")
                    .contains(u"not a period"_s));
    EXPECT_TRUE(errorOf({}, "pluprice.rpt").endsWith(u"no column of the layout has Compare=YES."_s));
}

} // namespace
} // namespace norvane::reports
