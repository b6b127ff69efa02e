// The reports of the sales menu over a small shop.
#include "platform/FilePaths.h"
#include "reports/lines/RecordRows.h"
#include "reports/lines/SalesDays.h"
#include "tests/reports/ReportShop.h"
#include "tests/store/Elsewhere.h"

namespace norvane::reports::test
{
namespace
{

constexpr const char* pluFields = "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1|COUNT2|VALUE2";

class SalesReports : public testing::Test
{
protected:
    SalesReports()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD", "3|UNUSED"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {"000000000000000020|CRISPS|2", "000000000000000003|COLA|1", "000000000000000100|TEA|1",
                  "000000000000000007|LOOSE|0", "000000000000000008|LOST GROUP|9"});
    }

    [[nodiscard]] ReportData run(const char* layout, const QString& formula = {}) const
    {
        return runReport(shop.request(ReportShop::installed(layout), formula));
    }

    ReportShop shop;
};

TEST_F(SalesReports, PluSalesAreGroupedWithNamesAndExactTotals)
{
    shop.add("PLUSALES", pluFields,
             {"000000000000000003|2026-11-25|1|0|2|5639.549999999998|0|0",
              "3|2026-11-25|0|2|1|0.100000000002|0|0", // a second collection, spelled without zeros
              "000000000000000100|2026-11-25|0|0|0.125|1.005|0|0",
              "000000000000000020|2026-11-25|0|0|0|0|0|0", // sold nothing
              "000000000000000007|2026-11-25|0|0|1|2|0|0", "000000000000000008|2026-11-25|0|0|1|3|0|0",
              "000000000000000999|2026-11-25|0|0|1|4|0|0", // no longer in the programme
              "000000000000000000|2026-11-25|0|0|1|0|0|0", "000000000000000003|2026-11-24|0|0|50|60|0|0"});
    const auto data = run("plusales.rpt", u"{PLUSALES.SALESDATE} = date(2026,11,25)"_s);
    EXPECT_EQ(headingsOf(data), "PLU|Description|Quantity|Value|Promotion|Waste|Share %");
    EXPECT_EQ(linesOf(data), "> 1 DRINKS\n"
                             "3|COLA|3|5,639.65|1|2|99.8\n"
                             "100|TEA|0.125|1.01|0|0|0.0\n"
                             "= |Total 1 DRINKS|3.125|5,640.66|1|2|99.8\n"
                             "> 9\n"
                             "8|LOST GROUP|1|3.00|0|0|0.1\n"
                             "= |Total 9|1|3.00|0|0|0.1\n"
                             "> No group\n"
                             "0||1|0.00|0|0|0.0\n"
                             "7|LOOSE|1|2.00|0|0|0.0\n"
                             "999||1|4.00|0|0|0.1\n"
                             "= |Total No group|3|6.00|0|0|0.1\n"
                             "# |Total|7.125|5,649.66|1|2|100.0");
    EXPECT_EQ(data.heading.subtitle, u"Wednesday, 25/11/2026"_s);
    ASSERT_EQ(data.charts.size(), 2U);
    EXPECT_EQ(data.charts[0].points.front().label, u"COLA"_s);
    EXPECT_EQ(data.charts[0].points[1].label, u"999"_s);
}

TEST_F(SalesReports, GroupsAloneHaveALineEach)
{
    shop.add("PLUSALES", pluFields,
             {"3|2026-11-25|0|0|2|5|0|0", "100|2026-11-25|0|0|1|1.5|0|0", "20|2026-11-25|0|0|0|0|0|0",
              "7|2026-11-25|0|0|1|3.5|0|0"});
    const auto data = run("groupsales.rpt");
    EXPECT_EQ(headingsOf(data), "Group|Quantity|Value|Share %");
    EXPECT_EQ(linesOf(data), "1 DRINKS|3|6.50|65.0\nNo group|1|3.50|35.0\n# Total|4|10.00|100.0");
    ASSERT_EQ(data.charts.size(), 1U) << "a course needs two days";
    EXPECT_EQ(data.charts[0].points.front().label, u"1 DRINKS"_s);
}

// Two days of three had a collection; a period's hours go over midnight, up to :59, or are not known.
TEST_F(SalesReports, TakingsPerHourAreThoseOfADay)
{
    shop.add("TIMEPERIOD", "id|STARTTIME|ENDTIME", {"1|0900|1030", "2|2200|159", "3|2400|2460"});
    shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2026-11-23|4|6", "1|2026-11-25|0|0.3", "2|2026-11-25|2|16", "3|2026-11-25|0|1",
              "4|2026-11-25|1|1", "2|2026-11-22|9|99"});
    const auto data = run("hours.rpt", u"{TIMESALES.SALESDATE} in date(2026,11,23) to date(2026,11,25)"_s);
    EXPECT_EQ(headingsOf(data), "Time|Quantity|Value|Average|Value a day|Hours|Value an hour");
    EXPECT_EQ(linesOf(data), "09:00 to 10:30|4|6.30|1.58|3.15|1.5|2.10\n"
                             "22:00 to 01:59|2|16.00|8.00|8.00|4.0|2.00\n"
                             "24:00 to 24:60|0|1.00||0.50\n"
                             "Period 4|1|1.00|1.00|0.50\n"
                             "# Total|7|24.30|3.47|12.15\n"
                             "; Without a collection: Tue 24/11/2026");
    EXPECT_TRUE(linesOf(run("hours.rpt")).starts_with("09:00 to 10:30|4|6.30|1.58||1.5\n"));
    auto request = shop.request(ReportShop::installed("hours.rpt"), u"{TIMESALES.SALESDATE} in yesterday"_s);
    request.comparedWith = ComparedWith::PeriodBefore;
    EXPECT_TRUE(linesOf(runReport(request)).ends_with("# Total|0|4|-4|-100.0|0.00|6.00|-6.00|-100.0"))
        << "nothing below columns without totals: " << linesOf(runReport(request));
}

// Names are kept between the reports of a form; sales of an article that is gone are not among them.
TEST_F(SalesReports, NextReportOfAFormHasTheNamesOfNow)
{
    shop.add("PLUSALES", pluFields, {"3|2026-11-25|0|0|2|5|0|0", "999|2026-11-25|0|0|1|1|0|0"});
    auto request = shop.request(ReportShop::installed("plusales.rpt"));
    request.records = std::make_shared<RecordCache>();
    const auto lines = [&request] {
        return linesOf(runReport(request));
    };
    const std::string first = lines();
    EXPECT_NE(first.find("3|COLA|2|5.00"), std::string::npos);
    EXPECT_EQ(lines(), first);
    norvane::test::runElsewhere(shop.path(), "update PLUDATA set DESCRIPTION = 'LEMONADE', GROUPNO = 2 where "
                                             "PLUNUMBER like '%03'");
    EXPECT_NE(lines().find("> 2 FOOD\n3|LEMONADE|2|5.00"), std::string::npos);
    shop.add("PLUSALES", pluFields, {"998|2026-11-25|0|0|1|1|0|0", "20|2026-11-24|0|0|1|1|0|0"});
    EXPECT_EQ(lines(), "> 2 FOOD\n3|LEMONADE|2|5.00|0|0|62.5\n20|CRISPS|1|1.00|0|0|12.5\n"
                       "= |Total 2 FOOD|3|6.00|0|0|75.0\n> No group\n998||1|1.00|0|0|12.5\n"
                       "999||1|1.00|0|0|12.5\n= |Total No group|2|2.00|0|0|25.0\n# |Total|5|8.00|0|0|100.0");
    auto day =
        shop.request(ReportShop::installed("plusales.rpt"), u"{PLUSALES.SALESDATE} = date(2026,11,24)"_s);
    day.records = request.records;
    EXPECT_EQ(linesOf(runReport(day)), "> 2 FOOD\n20|CRISPS|1|1.00|0|0|100.0\n"
                                       "= |Total 2 FOOD|1|1.00|0|0|100.0\n# |Total|1|1.00|0|0|100.0");
}

// The course over months comes from their totals, but not where the value of a month is not a sum of days.
TEST_F(SalesReports, CourseOverManyDaysIsTheSameFromTotalsOfMonths)
{
    norvane::test::runElsewhere(
        shop.path(), "insert into TIMESALES (ID, SALESDATE, QUANTITY, VALUE) with recursive days(day) as "
                     "(select '2026-06-14' union all select date(day, '+1 day') from days where day < "
                     "'2026-11-20') select 1, day, 2, round(0.1 * strftime('%d', day), 1) from days where "
                     "strftime('%d', day) <> '01'");
    shop.folder().write("course.rpt", readWholeFile(ReportShop::installed("timesales.rpt")) +
                                          "\r\n[Chart3]\r\nKind=Course\r\nTitle=Price\r\n"
                                          "By={TIMESALES.SALESDATE}\r\nFormat=Day\r\n"
                                          "Label={TIMESALES.SALESDATE}\r\n"
                                          "Value={TIMESALES.VALUE} / {TIMESALES.QUANTITY}\r\n");
    const QString period = u"{TIMESALES.SALESDATE} in date(2026,5,1) to date(2026,11,10)"_s;
    const auto pointsOf = [&](const QString& formula) {
        QStringList points;
        for (const auto& chart : runReport(shop.request(shop.folder().path("course.rpt"), formula)).charts) {
            for (const auto& point : chart.points)
                points << point.label + u'=' + QString::fromStdString(point.value.text());
        }
        return points.join(u' ').toStdString();
    };
    const std::string points = pointsOf(period);
    EXPECT_NE(points.find("06/2026=37.4 07/2026=49.5 08/2026=49.5 09/2026=46.4 10/2026=49.5 11/2026=5.4"),
              std::string::npos)
        << points;
    EXPECT_NE(points.find("06/2026=18.7"), std::string::npos);
    EXPECT_EQ(points, pointsOf(period + u" and {TIMESALES.ID} = 1"_s));
}

TEST_F(SalesReports, LevelsAreColumnsIfAnyButTheFirstHasSales)
{
    shop.add("PLUSALES", pluFields,
             {"3|2026-11-25|0|0|2|5|1|2.5", "20|2026-11-25|0|0|1|1|0|0", "100|2026-11-25|0|0|0|0|1|-1"});
    const auto data = run("plusales.rpt");
    EXPECT_EQ(headingsOf(data),
              "PLU|Description|Quantity|Value|Promotion|Waste|Share %|Qty 1|Value 1|Qty 2|Value 2");
    EXPECT_EQ(linesOf(data), "> 1 DRINKS\n"
                             "3|COLA|3|7.50|0|0|100.0|2|5.00|1|2.50\n"
                             "100|TEA|1|-1.00|0|0|-13.3|0|0.00|1|-1.00\n"
                             "= |Total 1 DRINKS|4|6.50|0|0|86.7|2|5.00|2|1.50\n"
                             "> 2 FOOD\n"
                             "20|CRISPS|1|1.00|0|0|13.3|1|1.00|0|0.00\n"
                             "= |Total 2 FOOD|1|1.00|0|0|13.3|1|1.00|0|0.00\n"
                             "# |Total|5|7.50|0|0|100.0|3|6.00|2|1.50");
    EXPECT_TRUE(data.page.isLandscape);
}

TEST_F(SalesReports, ItemsAndEmployeesHaveTheirNamesAndNoTotals)
{
    shop.add("FINANCIALREPORTDESCRIPTORS", "ID|financialreport", {"1|GROSS SALES", "2|NET SALES"});
    shop.add("EMPLOYEEREPORTDESCRIPTORS", "ID|Employeereport", {"1|GROSS", "2|NET"});
    shop.add("EMPLOYEE", "ID|DESCRIPTION|dallaskey", {"1|ANNE|0", "2|BERT|0"});
    shop.add("FINANCIALSALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"2|2026-11-24|1|3", "1|2026-11-25|2|9.1", "2|2026-11-25|2|8.005", "57|2026-11-25|1|0"});
    const auto financial = run("finsales.rpt");
    EXPECT_EQ(linesOf(financial), "1|GROSS SALES|2|9.10\n2|NET SALES|3|11.01\n57|Item 57|1|0.00");
    ASSERT_EQ(financial.charts.size(), 1U);
    EXPECT_EQ(financial.charts[0].points[1].label, u"25/11"_s);
    EXPECT_EQ(financial.charts[0].points[1].value, Decimal(8005, 3));

    shop.add("CLERKSALES", "ID|CLERKID|SALESDATE|QUANTITY|VALUE",
             {"2|3|2026-11-25|1|1.5", "1|2|2026-11-25|1|2", "2|1|2026-11-25|1|3", "1|1|2026-11-25|1|4",
              "1|1|2026-11-25|2|5"});
    const auto clerks = run("clerksales.rpt");
    EXPECT_EQ(linesOf(clerks),
              "> 1 ANNE\n1|GROSS|3|9.00\n2|NET|1|3.00\n> 2 BERT\n1|GROSS|1|2.00\n> 3\n2|NET|1|1.50");
    ASSERT_EQ(clerks.charts.size(), 1U);
    EXPECT_EQ(clerks.charts[0].points[1].label, u"Employee 3"_s);
}

TEST_F(SalesReports, PeriodsShowTheirTimesAndOffersWholeQuantities)
{
    shop.add("TIMEPERIOD", "id|STARTTIME|ENDTIME|ACTIVE", {"1|0900|1100|1", "2|0000|559|1"});
    shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2026-11-25|3|7.5", "2|2026-11-25|1|2.5", "9|2026-11-24|1|10"});
    const auto times = run("timesales.rpt");
    EXPECT_EQ(linesOf(times), "2|00:00 to 05:59|1|2.50|12.5\n1|09:00 to 11:00|3|7.50|37.5\n"
                              "9|Period 9|1|10.00|50.0\n# |Total|5|20.00|100.0");
    EXPECT_EQ(times.charts.size(), 2U);

    shop.add("MIXNMATCH", "MixNo|DESCRIPTION", {"1|3 FOR 2"});
    shop.add("MIXSALES", "ID|SALESDATE|QUANTITY",
             {"1|2026-11-25|300", "4|2026-11-25|12.5", "1|2026-11-24|200"});
    const auto offers = run("mixsales.rpt");
    EXPECT_EQ(headingsOf(offers), "Offer|Description|Quantity");
    EXPECT_EQ(linesOf(offers), "1|3 FOR 2|5\n4|Offer 4|0.125\n# |Total|5.125");
    EXPECT_EQ(offers.charts.at(0).mostDecimals, 3);
}

/// Collected on the 20th, 22nd (in another table only) and 24th, and not yet today, the 25th.
TEST_F(SalesReports, ACourseOverDaysShowsTheDaysWithoutSales)
{
    shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2026-10-03|1|9", "1|2026-11-20|1|2.5", "1|2026-11-24|1|4"});
    shop.add("FINANCIALSALES", "ID|SALESDATE|QUANTITY|VALUE", {"1|2026-11-22|1|1"});
    const auto course = [this](const char* period) {
        const auto data = run("timesales.rpt", u"{TIMESALES.SALESDATE} in "_s + QLatin1String(period));
        std::string text = data.heading.subtitle.toStdString() + ':';
        if (data.charts.empty())
            return text;
        for (const auto& point : data.charts.back().points)
            text += ' ' + point.label.toStdString() + '=' + point.value.text();
        return text;
    };
    EXPECT_EQ(course("WeekToDateFromSun"),
              "Week to date, 22/11/2026 to 25/11/2026; 1 day without a collection: 22/11=0 23/11=0 24/11=4");
    EXPECT_EQ(course("date(2026,10,2) to date(2026,10,4)"),
              "02/10/2026 to 04/10/2026; 1 day without a collection: 03/10=9 04/10=0");
    const std::string year = course("YearToDate");
    EXPECT_TRUE(year.starts_with("Year to date, 01/01/2026 to 25/11/2026; 49 days without a collection: "
                                 "03/10=9 04/10=0 "));
    EXPECT_TRUE(year.ends_with(" 20/11=2.5 21/11=0 22/11=0 23/11=0 24/11=4"));
}

/// Not for a period that ends today or is one day, which say it above the lines only.
TEST_F(SalesReports, DaysWithoutACollectionAreListedBelowTheLines)
{
    shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2026-10-03|1|9", "1|2026-10-05|1|2", "1|2026-10-09|1|4", "1|2026-11-24|1|1"});
    const auto lastLine = [this](const char* period, ComparedWith with = ComparedWith::Nothing) {
        auto request = shop.request(ReportShop::installed("timesales.rpt"),
                                    u"{TIMESALES.SALESDATE} in "_s + QLatin1String(period));
        request.comparedWith = with;
        const auto lines = QString::fromStdString(linesOf(runReport(request)));
        return lines.section(u'\n', -1).toStdString();
    };
    const char* const listed = "; Without a collection: Sun 04/10/2026, Tue 06/10/2026 to Thu 08/10/2026";
    EXPECT_EQ(lastLine("date(2026,10,1) to date(2026,10,9)"), listed);
    EXPECT_EQ(lastLine("date(2026,10,1) to date(2026,10,9)", ComparedWith::PeriodBefore), listed);
    EXPECT_EQ(lastLine("lastmonth"), std::string(listed) + ", Sat 10/10/2026 to Sat 31/10/2026");
    EXPECT_TRUE(lastLine("monthtodate").starts_with("# |Total"));
    EXPECT_TRUE(lastLine("WeekToDateFromSun").starts_with("# |Total"));
    std::vector<QDate> days(50, QDate(2026, 1, 1));
    for (std::size_t i = 1; i < days.size(); ++i)
        days[i] = days[i - 1].addDays(2);
    EXPECT_TRUE(textOfDays(days, 2).endsWith(u"Sat 03/01/2026 and 48 more days"_s));
}

TEST_F(SalesReports, ThePriceListShowsEuroPricesWhereAnyIsSet)
{
    shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO|PRICE1|PRICE2",
             {"123456789012345678|LONG|2| 1.5|0.335"});
    EXPECT_EQ(linesOf(run("pluprice.rpt")),
              "3|COLA|DRINKS\n7|LOOSE\n8|LOST GROUP|9\n20|CRISPS|FOOD\n100|TEA|DRINKS\n"
              "123456789012345678|LONG|FOOD|1.50|0.34");
    shop.add("PLUDATA", "PLUNUMBER|EuroPrice2", {"000000000000000001|2"});
    shop.add("smode", "DECIMALPlace", {"3"});
    shop.add("GENERALPRINTOPTION", "ID|HOMESYMBOL", {"1|163"});
    const auto data = run("pluprice.rpt");
    EXPECT_EQ(
        headingsOf(data),
        "PLU|Description|Group|Price 1|Price 2|Price 3|Price 4|Price 5|Euro 1|Euro 2|Euro 3|Euro 4|Euro 5");
    EXPECT_EQ(data.text(0, 9), u"£2.000"_s);
    EXPECT_EQ(data.text(6, 4), u"£0.335"_s);
    EXPECT_EQ(data.plainText(6, 4), u"0.335"_s);
}

const std::tuple<const char*, const char*, const char*> periods[] = {
    {"in YearToDate", "2028-02-29",
     "1|Period 1|60|6.00|8.4\n2|Period 2|60|65.17|91.6\n# |Total|120|71.17|100.0"},
    {"in YearToDate", "2028-03-01",
     "1|Period 1|61|6.10|8.6\n2|Period 2|61|65.24|91.4\n# |Total|122|71.34|100.0"},
    {"in YearToDate", "2028-01-01", "1|Period 1|1|0.10|58.8\n2|Period 2|1|0.07|41.2\n# |Total|2|0.17|100.0"},
    {"in monthtodate", "2028-02-29",
     "1|Period 1|29|2.90|8.7\n2|Period 2|29|30.45|91.3\n# |Total|58|33.35|100.0"},
    {"in WeekToDateFromSun", "2028-01-01",
     "1|Period 1|7|0.70|5.5\n2|Period 2|7|12.04|94.5\n# |Total|14|12.74|100.0"},
    {"in date(2027,11,30) to date(2028,1,1)", "2028-03-01",
     "1|Period 1|33|3.30|8.2\n2|Period 2|33|36.89|91.8\n# |Total|66|40.19|100.0"},
};

class PeriodReports : public SalesReports
{
protected:
    PeriodReports()
    {
        norvane::test::runElsewhere(
            shop.path(),
            "insert into TIMESALES (ID, SALESDATE, QUANTITY, VALUE) with recursive days(day) as "
            "(select '2027-11-01' union all select date(day, '+1 day') from days where day < '2028-03-01') "
            "select 1, day, 1, 0.1 from days union all "
            "select 2, day, 1, 0.07 * strftime('%d', day) from days");
    }

    std::string linesIn(const char* formula, const char* today,
                        const QString& layout = ReportShop::installed("timesales.rpt"))
    {
        auto request = shop.request(layout, u"{TIMESALES.SALESDATE} "_s + QLatin1String(formula));
        request.now = QDate::fromString(QLatin1String(today), Qt::ISODate).startOfDay();
        request.showStep = [this](const QString& step) {
            steps.append(step);
        };
        return linesOf(runReport(request));
    }

    QStringList steps;
};

/// Periods that totals of months serve show what the rows themselves add up to.
TEST_F(PeriodReports, APeriodOfMonthsShowsWhatItsDaysAddUpTo)
{
    for (const auto& [formula, today, lines] : periods)
        EXPECT_EQ(linesIn(formula, today), lines) << today;
    EXPECT_EQ(steps, (QStringList{u"Adding up the sales of January 2028"_s,
                                  u"Adding up the sales of February 2028"_s,
                                  u"Adding up the sales of December 2027"_s}))
        << "each month once";
}

// A chart over the months of years that have totals is not made from the totals of these years.
TEST_F(PeriodReports, AYearIsAddedUpOnceAndItsMonthsRemainInACourse)
{
    shop.folder().write("course.rpt", readWholeFile(ReportShop::installed("timesales.rpt")) +
                                          "\r\n[Chart3]\r\nKind=Course\r\nTitle=Takings\r\n"
                                          "By={TIMESALES.SALESDATE}\r\nFormat=Day\r\n"
                                          "Label={TIMESALES.SALESDATE}\r\nValue={TIMESALES.VALUE}\r\n");
    auto request = shop.request(shop.folder().path("course.rpt"),
                                u"{TIMESALES.SALESDATE} in date(2027,1,1) to date(2028,2,29)"_s);
    request.now = QDate(2028, 3, 1).startOfDay();
    request.showStep = [this](const QString& step) {
        steps.append(step);
    };
    for (int run = 0; run < 2; ++run) {
        const ReportData data = runReport(request);
        EXPECT_EQ(linesOf(data), "1|Period 1|121|12.10|8.4\n2|Period 2|121|132.44|91.6\n"
                                 "# |Total|242|144.54|100.0");
        QStringList points;
        for (const auto& point : data.charts.back().points)
            points << point.label + u'=' + QString::number(point.value.toDouble(), 'f', 2);
        EXPECT_EQ(points.join(u' '), u"11/2027=35.55 12/2027=37.82 01/2028=37.82 02/2028=33.35"_s);
    }
    EXPECT_EQ(steps.size(), 5);
    EXPECT_EQ(steps.back(), u"Adding up the sales of 2027"_s);
}

TEST_F(PeriodReports, AReportWaitsOnceForAnotherReader)
{
    const norvane::test::ReadingElsewhere reader(shop.path());
    // With a chart that adds up months by itself.
    shop.folder().write("two.rpt",
                        readWholeFile(ReportShop::installed("timesales.rpt")) +
                            "\r\n[Chart3]\r\nKind=Ranking\r\nTitle=Periods\r\nBy={TIMESALES.ID}\r\n"
                            "Label={TIMESALES.ID}\r\nValue={TIMESALES.VALUE}\r\n");
    const auto& [formula, today, lines] = periods[0];
    EXPECT_EQ(linesIn(formula, today, shop.folder().path("two.rpt")), lines);
    EXPECT_EQ(steps,
              (QStringList{u"Adding up the sales of January 2028"_s, u"Reading the sales day by day"_s}));
}

} // namespace
} // namespace norvane::reports::test
