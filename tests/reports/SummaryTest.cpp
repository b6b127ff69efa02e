// The one page about a period: its blocks, beside what was put into the shop.
#include "tests/reports/ReportShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports::test
{
namespace
{

class Summary : public testing::Test
{
protected:
    Summary()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {"3|COLA|1", "7|WATER|1", "20|CRISPS|2", "30|LOST|9"});
        shop.add("FINANCIALREPORTDESCRIPTORS", "ID|financialreport",
                 {"15|TAX 1", "44|REFUND", "63|CASH", "65|CARD"});
        shop.add("EMPLOYEE", "ID|DESCRIPTION|dallaskey", {"1|ANNE|0"});
        shop.add("TIMEPERIOD", "id|STARTTIME|ENDTIME|ACTIVE", {"1|0900|1059|1", "2|0600|859|1"});
        shop.add("smode", "FirstRegister|LastRegister", {"1|3"});
    }

    /// A week from Sunday, 1 November, to Saturday, with Monday missing, and two days of the first of
    /// October.
    void addWeek() const
    {
        shop.add("PLUSALES", "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1|COUNT2|VALUE2",
                 {"3|2026-11-01|0|0|2|2.2|1|1.1", "3|2026-11-07|0|0|1|1.1|0|0", "7|2026-11-03|0|0|1|0.1|0|0",
                  "20|2026-11-03|0|0|4|-0.4|0|0", "30|2026-11-03|0|0|1|3|0|0", // its group is gone
                  "99|2026-11-03|0|0|1|0.333|0|0",                             // the article is gone
                  "3|2026-10-05|0|0|2|3.3|0|0", "20|2026-10-05|0|0|2|2|0|0", "3|2026-11-08|0|0|5|50|0|0"});
        shop.add("FINANCIALSALES", "ID|SALESDATE|QUANTITY|VALUE",
                 {"2|2026-11-01|4|3.3", "2|2026-11-04|2|4.133", "5|2026-11-01|2|3.3", "5|2026-11-04|1|4.133",
                  "15|2026-11-01|1|0.55", "44|2026-11-03|-1|-0.4", "63|2026-11-01|2|3.3",
                  "65|2026-11-04|1|4.133", "2|2026-10-07|4|5.3", "63|2026-10-07|1|5.3"});
        shop.add("CLERKSALES", "ID|CLERKID|SALESDATE|QUANTITY|VALUE",
                 {"2|1|2026-11-01|1|3.3", "2|4|2026-11-04|1|4.133", "1|1|2026-11-01|1|9"});
        shop.add("TIMESALES", "ID|SALESDATE|QUANTITY|VALUE",
                 {"1|2026-11-01|3|3", "2|2026-11-01|1|0.3", "1|2026-11-05|1|4", "2|2026-11-06|1|0.133",
                  "9|2026-11-07|1|0.1"});
    }

    [[nodiscard]] ReportData run(const QString& days, ComparedWith with = ComparedWith::Nothing,
                                 const QString& layout = ReportShop::installed("daysummary.rpt")) const
    {
        auto request = shop.request(layout, u"{PLUSALES.SALESDATE} in "_s + days);
        request.comparedWith = with;
        return runReport(request);
    }

    static std::string block(const ReportData& data, const QString& title)
    {
        for (const ReportBlock& block : data.blocks) {
            if (block.title == title)
                return linesOf(block.table);
        }
        return "no such block";
    }

    ReportShop shop;
};

const QString week = u"date(2026,11,1) to date(2026,11,7)"_s;

TEST_F(Summary, AddsUpThePeriodInEveryBlock)
{
    addWeek();
    const auto data = run(week);
    EXPECT_EQ(data.heading.subtitle, u"01/11/2026 to 07/11/2026; 1 day without a collection"_s);
    EXPECT_EQ(block(data, u"Net sales"_s), "Net sales|7.43");
    EXPECT_EQ(block(data, u"Customers"_s), "Customers|3");
    EXPECT_EQ(block(data, u"Average ticket"_s), "Average ticket|2.48");
    EXPECT_EQ(block(data, u"Articles sold"_s), "Articles sold|0");
    EXPECT_EQ(block(data, u"Takings by group"_s),
              "1 DRINKS|4.50|60.5\n9|3.00|40.4\nNo group|0.33|4.5\n2 FOOD|-0.40|-5.4\n# Total|7.43|100.0");
    EXPECT_EQ(block(data, u"Best ten articles"_s),
              "COLA 3|4.40|59.2\nLOST 30|3.00|40.4\n99|0.33|4.5\nWATER 7|0.10|1.3\nCRISPS 20|-0.40|-5.4");
    EXPECT_EQ(block(data, u"Worst ten articles"_s),
              "CRISPS 20|-0.40\nWATER 7|0.10\n99|0.33\nLOST 30|3.00\nCOLA 3|4.40");
    EXPECT_EQ(block(data, u"Tax"_s), "TAX 1|0.55");
    EXPECT_EQ(block(data, u"Tenders"_s), "CARD|4.13|55.6\nCASH|3.30|44.4\n# Total|7.43|100.0");
    EXPECT_EQ(block(data, u"Corrections and refunds"_s), "REFUND|-0.40|-1");
    EXPECT_EQ(block(data, u"Employees"_s), "Employee 4|4.13|55.6\nANNE|3.30|44.4\n# Total|7.43|100.0");
    EXPECT_EQ(block(data, u"Takings by hour"_s), "06:00 to 08:59|0.30|0.00|0.00|0.00|0.00|0.13|0.00|0.43\n"
                                                 "09:00 to 10:59|3.00|0.00|0.00|0.00|4.00|0.00|0.00|7.00\n"
                                                 "Period 9|0.00|0.00|0.00|0.00|0.00|0.00|0.10|0.10\n"
                                                 "# Total|3.30|0.00|0.00|0.00|4.00|0.13|0.10|7.53");
    EXPECT_EQ(block(data, u"Days without a collection"_s), "Mon 02/11/2026");
    EXPECT_EQ(block(data, u"Registers"_s), "Registers 1 to 3, collected together");
}

/// A spreadsheet gets the same numbers below each other, equal columns in one.
TEST_F(Summary, ItsLinesAreThoseOfTheBlocks)
{
    addWeek();
    const auto data = run(week);
    EXPECT_EQ(headingsOf(data), "Item|Value|Quantity|Share %|Sun|Mon|Tue|Wed|Thu|Fri|Sat");
    const std::string lines = linesOf(data);
    EXPECT_TRUE(lines.starts_with("Net sales|7.43\nCustomers||3\nAverage ticket|2.48\n")) << lines;
    EXPECT_NE(lines.find("> Tenders\nCARD|4.13||55.6\nCASH|3.30||44.4\n= Total|7.43||100.0\n> Corr"),
              std::string::npos);
    EXPECT_NE(lines.find("\n09:00 to 10:59|7.00|||3.00|0.00|0.00|0.00|4.00|0.00|0.00\n"), std::string::npos);
}

TEST_F(Summary, IsComparedInEachBlockThatHasTheNumber)
{
    addWeek();
    const auto data = run(week, ComparedWith::PeriodBefore);
    EXPECT_EQ(data.heading.subtitle, u"01/11/2026 to 07/11/2026; 1 day without a collection; before: "
                                     "01/10/2026 to 07/10/2026; 1 day without a collection"_s);
    EXPECT_EQ(block(data, u"Net sales"_s), "Net sales|7.43|5.30|40.2");
    EXPECT_EQ(block(data, u"Average ticket"_s), "Average ticket|2.48|–");
    EXPECT_EQ(block(data, u"Takings by group"_s), "1 DRINKS|4.50|3.30|36.4|60.5\n9|3.00|0.00|–|40.4\n"
                                                  "No group|0.33|0.00|–|4.5\n2 FOOD|-0.40|2.00|-120.0|-5.4\n"
                                                  "# Total|7.43|5.30|40.2|100.0");
    EXPECT_EQ(block(data, u"Corrections and refunds"_s), "REFUND|-0.40|0.00|–");
    EXPECT_EQ(block(run(week, ComparedWith::YearEarlier), u"Net sales"_s), "Net sales|7.43|0.00|–");
}

TEST_F(Summary, SaysHowMuchIsCutOff)
{
    for (int group = 1; group <= 20; ++group) {
        const QByteArray number = QByteArray::number(group);
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {(number + "00|ARTICLE|" + QByteArray::number(group + 50)).constData()});
        shop.add("PLUSALES", "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1",
                 {(number + "00|2026-11-03|0|0|1|" + number + ".01").constData()});
    }
    const std::string groups = block(run(week), u"Takings by group"_s);
    EXPECT_TRUE(groups.starts_with("70|20.01|9.5\n")) << groups;
    EXPECT_TRUE(groups.ends_with("\n59|9.01|4.3\nand 8 more|36.08|17.2\n# Total|210.20|100.0")) << groups;
    const std::string best = block(run(week), u"Best ten articles"_s);
    EXPECT_TRUE(best.ends_with("\nARTICLE 1100|11.01|5.2\nand 10 more|55.10|26.2")) << best;
    const std::string worst = block(run(week), u"Worst ten articles"_s);
    EXPECT_TRUE(worst.ends_with("\nARTICLE 1000|10.01")) << worst;
}

TEST_F(Summary, PeriodsWithoutSalesSaySoAndWholeYearsHaveAllDays)
{
    addWeek();
    for (const char* const days :
         {"date(2024,1,1) to date(2024,1,31)", "date(2026,11,7) to date(2026,11,1)"}) {
        const auto data = run(QLatin1String(days), ComparedWith::PeriodBefore);
        EXPECT_TRUE(data.blocks.empty() && data.lineCount() == 0) << days;
        EXPECT_TRUE(data.heading.notice.startsWith(u"There is nothing to show: "_s));
    }
    // A year of 53 weeks, from its first day to its last.
    const auto year = run(u"date(2026,1,1) to date(2026,12,31)"_s, ComparedWith::YearEarlier);
    EXPECT_EQ(block(year, u"Net sales"_s), "Net sales|12.73|0.00|–");
    EXPECT_EQ(block(run(u"date(2026,11,6) to date(2026,11,7)"_s), u"Takings by hour"_s),
              "06:00 to 08:59|0.13|0.00|0.13\nPeriod 9|0.00|0.10|0.10\n# Total|0.13|0.10|0.23");
    EXPECT_EQ(block(run(u"date(2026,11,6) to date(2026,11,6)"_s), u"Takings by hour"_s),
              "06:00 to 08:59|0.13\n# Total|0.13");
    auto request = shop.request(ReportShop::installed("daysummary.rpt"), u"{PLUSALES.ID} = 3"_s);
    EXPECT_NE(errorOf(request).find("is a summary of a period"), std::string::npos);
}

struct BlockMistake {
    const char* keys;
    const char* message;
};

TEST_F(Summary, MistakesInBlocksAreNamed)
{
    const std::string table = "Table=PLUSALES\nLines={ID}\n[Block1.Column1]\nValue={ID}\nWidth=9\n";
    const BlockMistake inBlocks[] = {
        {"Kind=Table\n", "[Block1], key Title: it is missing"},
        {"Title=A\nKind=Tabel\n", "[Block1], key Kind: expected Figure"},
        {"Title=A\nOf=1\n", "[Block1], key Of: expected the number of an earlier block"},
        {"Title=A\nQuotient=1,2\n", "[Block1], key Quotient: expected "},
        {"Title=A\nLargest=0\n", "[Block1], key Largest: expected a whole number"},
        {"Title=A\nPalce=Left\n", "[Block1], key Palce: there is no such key"},
        {"Title=A\n[Block1.Colum1]\nValue=1\n", "[Block1.Colum1]: Report, Join1"},
        {"Title=A\nTable=SALES\n", "[Block1], key Table: expected a table"},
        {"Title=A\nKind=Days\n", "[Block1.Column1]: this block has no table of its own"},
    };
    for (const auto& [keys, message] : inBlocks) {
        const std::string text = std::string("[Report]\nTitle=T\nTable=PLUSALES\n[Block1]\n") + keys + table;
        shop.folder().write("own.rpt", QByteArray::fromStdString(text));
        EXPECT_NE(errorOf(shop.request(shop.folder().path("own.rpt"))).find(message), std::string::npos)
            << keys << errorOf(shop.request(shop.folder().path("own.rpt")));
    }
}

} // namespace
} // namespace norvane::reports::test
