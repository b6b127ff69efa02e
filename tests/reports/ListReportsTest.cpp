// The lists that screens print, and what a dealer's own layout can say.
#include "platform/FilePaths.h"
#include "tests/reports/ReportShop.h"

namespace norvane::reports::test
{
namespace
{

std::string printed(const ReportShop& shop, const char* layout)
{
    return linesOf(runReport(shop.request(ReportShop::installed(layout))));
}

TEST(ListReports, ShowOptionsInWords)
{
    const ReportShop shop;
    shop.add("PLUSTATUS", "STATUSNO|DESCRIPTION|tax1|tax3|SINGLEITEM|KPGROUP2|LINKEDPLU|GROUPLINK2",
             {"2|PLAIN,|0|0|0|0|0|0", "1|FOOD|1|1|1|1|123456789012345678|4"});
    EXPECT_EQ(printed(shop, "plustat.rpt"),
              "1|FOOD|1, 3|Single item sale, Kitchen group 2, Linked PLU 123456789012345678, Second group 4\n"
              "2|PLAIN,");
    shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION", {"000000000000000015|Patty"});
    shop.add("RECIPE", "recipeno|DESCRIPTION|item1|recipe1|qty1|item2|recipe2|qty2|item3|qty3",
             {"1|BURGER|1|15|2|0|7|100|0|0", "2||0|0|0|0|0|0|0|0", "3|MENU|2|1|1|1|99|1|0|0"});
    EXPECT_EQ(printed(shop, "recipe.rpt"),
              "1|BURGER|2 x PLU 15 Patty, 100 x ingredient 7\n3|MENU|1 x recipe 1 BURGER, 1 x PLU 99");
    shop.add("TAXRATES", "ID|taxrate|TAXTYPE|first", {"1|19|0|0", "2|7.125|2|12"});
    EXPECT_EQ(printed(shop, "taxes.rpt"), "1|19.000|VAT|0\n2|7.125|Tax table|12");
    shop.add("AUTHORITYLEVEL", "ID|DESCRIPTION|PAYANYCHECK|ALLOWNOSALE", {"3|MANAGER|1|1"});
    EXPECT_EQ(printed(shop, "authlvl.rpt"), "3|MANAGER|Pay any check, No sale");
    shop.add("JOBCODE", "JOBCODE|DESCRIPTION", {"2|WAITER", "6|"});
    EXPECT_EQ(printed(shop, "jobcode.rpt"), "2|WAITER") << "without the empty record";
    shop.add("PAYRATE", "PAYRATE|rate", {"4|1012.5"});
    shop.add("EMPLOYEE",
             "ID|DESCRIPTION|AUTHORITYLEVEL|SIGNONCODE|JOB1CODE|JOB3CODE|PAYRATE2|Trainmode|dallaskey",
             {"1|ANNE|3|4711|2|5|4|0|0", "2|BERT|8|0|0|0|0|1|0", "3||0|0|0|0|0|0|0"});
    EXPECT_EQ(printed(shop, "employee.rpt"),
              "1|ANNE|MANAGER|2 WAITER, 5|4: 1,012.50||||No\n2|BERT|Level 8||||||Yes");
    shop.folder().write("all.rpt", readWholeFile(ReportShop::installed("jobcode.rpt"))
                                       .replace("[Column1]", "EmptyRecords=YES\r\n[Column1]"));
    EXPECT_EQ(linesOf(runReport(shop.request(shop.folder().path("all.rpt")))), "2|WAITER\n6");
    shop.add("TIMEPERIOD", "id|STARTTIME|ENDTIME|ACTIVE", {"1|0000|559|1"});
    EXPECT_EQ(printed(shop, "timeperd.rpt"), "1|00:00 to 05:59|Yes");
    EXPECT_EQ(printed(shop, "hotlist.rpt"), "");
    EXPECT_EQ(runReport(shop.request(ReportShop::installed("hotlist.rpt"))).heading.notice,
              u"There is nothing to show."_s);
}

class OwnLayout : public testing::Test
{
protected:
    /// The value of a column of numbers, a line each for the records that the shop has.
    [[nodiscard]] std::string computed(const QByteArray& value, const char* format = "0.###") const
    {
        shop.folder().write("own.rpt",
                            QByteArray("[Report]\r\nTitle=Own\r\nTable=GROUPSALES\r\nEmptyRecords=YES\r\n"
                                       "[Column1]\r\nFormat=") +
                                format + "\r\nWidth=20\r\nTotal=YES\r\nValue=" + value +
                                "\r\n[Sort]\r\nKey1={ID}\r\n");
        return linesOf(runReport(shop.request(shop.folder().path("own.rpt"))));
    }

    ReportShop shop;
};

TEST_F(OwnLayout, CalculatesInDecimal)
{
    shop.add("GROUPSALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2026-11-25|3|0.1", "2|2026-11-25|0|0.2", "3|2026-11-25|-7|123456789012345"});
    const std::pair<const char*, const char*> values[] = {
        {"{QUANTITY} + {VALUE} - 1", "2.1\n-0.8\n123,456,789,012,337"},
        {"{ID} - ({QUANTITY} - 2) * 2", "-1\n6\n21"},
        {"-{QUANTITY} * 0.5", "-1.5\n0\n3.5"},
        {"1 / {QUANTITY}", "0.333\n\n-0.143"},
        {"sum({QUANTITY}, {ID}, 0.5)", "4.5\n2.5\n-3.5"},
        {"{QUANTITY} / total({QUANTITY}) * 100", "-75\n0\n175"},
    };
    for (const auto& [value, lines] : values) {
        const std::string all = computed(value);
        EXPECT_EQ(all.substr(0, all.rfind("\n# ")), lines) << value;
    }
    EXPECT_EQ(computed("{VALUE}", "0.00"), "0.10\n0.20\n123,456,789,012,345.00\n# 123,456,789,012,345.30");
}

/// Totals of more digits than a number holds: what is cut off still distinguishes a half from a little more.
TEST_F(OwnLayout, RoundsWithAllDigitsOfALongTotal)
{
    shop.add("GROUPSALES", "ID|SALESDATE|VALUE", {"1|2026-11-25|0.125", "2|2026-11-25|4e-19"});
    EXPECT_EQ(computed("1 - total({VALUE})", "0.00"), "0.87\n0.87\n# 0.87");
    shop.add("GROUPSALES", "ID|SALESDATE|VALUE", {"3|2026-11-25|12345678901234000", "4|2026-11-25|567.4"});
    EXPECT_EQ(computed("12345678901234568 - total({VALUE})", "0"), "0\n0\n0\n0\n# 0");
    // Sums that a number does not hold keep their digits; what cannot be calculated from them says so.
    shop.add("GROUPSALES", "ID|SALESDATE|VALUE", {"5|2026-11-25|-2e20", "6|2026-11-25|1e50"});
    EXPECT_EQ(computed("{VALUE}", "0.00"), "0.13\n0.00\n12,345,678,901,234,000.00\n567.40\n-200,000,000,000,"
                                           "000,000,000.00\ntoo long\n# too long");
    EXPECT_EQ(computed("{VALUE} / 2 * {ID}", "0"),
              "0\n0\n18518518351851000\n1135\ntoo long\ntoo long\n# too long");
    shop.folder().write("chart.rpt",
                        readWholeFile(shop.folder().path("own.rpt")) +
                            "[Chart1]\r\nKind=Ranking\r\nTitle=C\r\nLabel={ID}\r\nValue={VALUE}\r\n");
    const auto data = runReport(shop.request(shop.folder().path("chart.rpt")));
    EXPECT_TRUE(data.charts.empty());
    EXPECT_EQ(data.heading.subtitle, u"A chart is left out because a sum has more than 18 digits"_s);
}

TEST_F(OwnLayout, GroupsAndSortsByWhatItNames)
{
    shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"2|SECOND", "10|TENTH"});
    shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO|PRICE1",
             {"9|nine|10|1", "10|Ten|2|2", "8|Eight|10|3", "7|seven||4"});
    shop.folder().write(
        "own.rpt",
        "[Report]\r\nTitle=Own\r\nTable=PLUDATA\r\nWhere={PRICE1} < 4 or {PLUNUMBER} = 7\r\n"
        "[Join1]\r\nFind={GROUPS.GROUPNO}\r\nBy={GROUPNO}\r\n"
        "[Column1]\r\nValue={DESCRIPTION} ({PLUNUMBER})\r\nWidth=60\r\n"
        "[Column2]\r\nFormat=Money\r\nValue={PRICE1}\r\nWidth=20\r\nTotal=YES\r\n"
        "[Group]\r\nBy={GROUPNO}\r\nHeading={GROUPS.DESCRIPTION}\r\nMissing=Rest\r\n"
        "[Sort]\r\nKey1={DESCRIPTION} descending\r\n"
        "[Chart1]\r\nKind=Shares\r\nTitle=By group\r\nFrom=Groups\r\nValue={PRICE1}\r\nMost=1\r\n");
    const auto data = runReport(shop.request(shop.folder().path("own.rpt")));
    EXPECT_EQ(linesOf(data), "> SECOND\nTen (10)|2.00\n= Total SECOND|2.00\n"
                             "> TENTH\nnine (9)|1.00\nEight (8)|3.00\n= Total TENTH|4.00\n"
                             "> Rest\nseven (7)|4.00\n= Total Rest|4.00\n# Total|10.00");
    ASSERT_EQ(data.charts.size(), 1U);
    EXPECT_EQ(data.charts[0].points[1].label, u"Others"_s);
    EXPECT_EQ(data.charts[0].points[1].value, Decimal(6, 0));
}

/// Numbers as texts, which registers fill up with zeros and blanks; more parts than a legend has room for.
TEST_F(OwnLayout, PutsZerosLastAndAddsUpSmallShares)
{
    for (const char* plu : {"000|0.1", "   |0.2", "b|1", "A|2", "010|3", "  9|4", "1|5", "2|6", "3|7", "4|8",
                            "5|9", "6|999999999999999999"})
        shop.add("PLUDATA", "DESCRIPTION|PRICE1", {plu});
    shop.folder().write("own.rpt",
                        "[Report]\r\nTitle=Own\r\nTable=PLUDATA\r\n"
                        "[Column1]\r\nValue={DESCRIPTION}\r\nWidth=60\r\n"
                        "[Group]\r\nBy={DESCRIPTION}\r\nHeading={DESCRIPTION}\r\nMissing=Rest\r\n"
                        "[Chart1]\r\nKind=Shares\r\nTitle=By group\r\nFrom=Groups\r\nValue={PRICE1}\r\n");
    const auto data = runReport(shop.request(shop.folder().path("own.rpt")));
    EXPECT_EQ(linesOf(data), "> 9\n9\n> 010\n010\n> 1\n1\n> 2\n2\n> 3\n3\n> 4\n4\n> 5\n5\n> 6\n6\n> A\nA\n"
                             "> b\nb\n> Rest\n000\n");
    ASSERT_EQ(data.charts[0].points.size(), 11U);
    EXPECT_EQ(data.charts[0].points.back().label, u"Others"_s);
    EXPECT_EQ(data.charts[0].points.back().value, Decimal(3, 1));
}

TEST_F(OwnLayout, AChartOfManyDaysShowsMonths)
{
    for (QDate day(2026, 9, 15); day <= QDate(2026, 11, 25); day = day.addDays(1)) {
        shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
                 {qPrintable(u"1|%1|1|0.1"_s.arg(day.toString(Qt::ISODate)))});
    }
    const auto points = [this](const QString& formula) {
        const auto data = runReport(shop.request(ReportShop::installed("timesales.rpt"), formula));
        QStringList labels;
        for (const auto& point : data.charts.back().points)
            labels.append(point.label + u' ' + QString::fromStdString(point.value.text()));
        return labels;
    };
    EXPECT_EQ(points({}), QStringList({u"09/2026 1.6"_s, u"10/2026 3.1"_s, u"11/2026 2.5"_s}));
    EXPECT_EQ(points(u"{TIMESALES.SALESDATE} in monthtodate"_s).front(), u"01/11 0.1"_s);
}

} // namespace
} // namespace norvane::reports::test
