// From a line of a report to the report of what it is made of.
#include "reports/lines/LineFilters.h"
#include "tests/reports/ReportShop.h"

namespace norvane::reports::test
{
namespace
{

constexpr const char* soldFields = "ID|SALESDATE|PROMO|WASTE|COUNT1|VALUE1|COUNT2|VALUE2";

class LinkedReports : public testing::Test
{
protected:
    LinkedReports()
    {
        shop.add("GROUPS", "GROUPNO|DESCRIPTION", {"1|DRINKS", "2|FOOD"});
        shop.add("PLUDATA", "PLUNUMBER|DESCRIPTION|GROUPNO",
                 {"000000000000000003|COLA|1", "000000000000000100|TEA|1", "20|CRISPS|2", "7|LOOSE|0",
                  "8|LOST GROUP|9"});
        shop.add("PLUSALES", soldFields,
                 {"000000000000000003|2026-11-02|0|0|2|5|0|0", "3|2026-11-03|0|0|1|2.5|0|0",
                  "100|2026-11-02|0|0|1|1.5|0|0", "20|2026-11-02|0|0|4|4|0|0", "7|2026-11-02|0|0|1|3|0|0",
                  "8|2026-11-02|0|0|1|6|0|0", "999|2026-11-02|0|0|1|7|0|0", "3|2026-10-05|0|0|1|2.5|0|0",
                  "20|2026-10-05|0|0|1|1|0|0"});
    }

    /// The report that the line of @p data beginning with @p name leads to.
    [[nodiscard]] ReportData follow(ReportRequest& request, const ReportData& data, const QString& name) const
    {
        qsizetype line = 0;
        while (line < data.lineCount() && data.text(line, 0) != name)
            ++line;
        const auto linked = linkedRequest(request, data, line);
        EXPECT_TRUE(linked) << name.toStdString();
        request = linked.value_or(request);
        return runReport(request);
    }
    [[nodiscard]] ReportData linesOfGroup(const QString& name) const
    {
        ReportRequest request = m_november;
        return follow(request, runReport(request), name);
    }

    ReportShop shop;
    ReportRequest m_november =
        shop.request(ReportShop::installed("groupsales.rpt"), u"{PLUSALES.SALESDATE} in monthtodate"_s);
};

TEST_F(LinkedReports, AGroupLeadsToItsArticlesAndAnArticleToItsDays)
{
    ReportRequest request = m_november;
    const ReportData articles = follow(request, runReport(request), u"1 DRINKS"_s);
    EXPECT_EQ(articles.heading.title, u"Article Sales"_s);
    EXPECT_EQ(articles.heading.subtitle, u"1 DRINKS; Month to date, 01/11/2026 to 25/11/2026; "
                                         "22 days without a collection"_s);
    EXPECT_EQ(linesOf(articles), "3|COLA|3|7.50|83.3\n100|TEA|1|1.50|16.7\n# |Total|4|9.00|100.0");
    ASSERT_EQ(articles.charts.size(), 2U);
    EXPECT_EQ(articles.charts[1].points[1].value, Decimal(65, 1)) << "the chart over days is of the group";

    const ReportData days = follow(request, articles, u"3"_s);
    EXPECT_EQ(linesOf(days), "02/11/2026|2|5.00\n03/11/2026|1|2.50\n# Total|3|7.50");
    EXPECT_TRUE(days.heading.subtitle.startsWith(u"3 COLA; Month to date"_s))
        << days.heading.subtitle.toStdString();
    EXPECT_FALSE(linkedRequest(request, days, 0)) << "days are the end";
    EXPECT_FALSE(linkedRequest(m_november, articles, articles.lineCount() - 1)) << "a total opens nothing";
}

// Register numbers are texts with zeros before them; a group that is gone still has a number.
TEST_F(LinkedReports, ArticlesAndGroupsThatAreGoneAreFollowedToo)
{
    EXPECT_EQ(linesOf(linesOfGroup(u"9"_s)), "8|LOST GROUP|1|6.00|100.0\n# |Total|1|6.00|100.0");
    EXPECT_EQ(linesOf(linesOfGroup(u"No group"_s)), "7|LOOSE|1|3.00|30.0\n999||1|7.00|70.0\n"
                                                    "# |Total|2|10.00|100.0");
    ReportRequest request = m_november;
    const ReportData none = follow(request, runReport(request), u"No group"_s);
    EXPECT_EQ(linesOf(follow(request, none, u"999"_s)), "02/11/2026|1|7.00\n# Total|1|7.00");
}

TEST_F(LinkedReports, AComparisonIsKeptAsFarAsALayoutCompares)
{
    ReportRequest request = m_november;
    request.selectionFormula = u"{PLUSALES.SALESDATE} in date(2026,11,1) to date(2026,11,30)"_s;
    request.comparedWith = ComparedWith::PeriodBefore;
    const ReportData articles = follow(request, runReport(request), u"1 DRINKS"_s);
    EXPECT_TRUE(linesOf(articles).starts_with("3|COLA|3|1|2|200.0|7.50|2.50|5.00|200.0\n"
                                              "100|TEA|1|0|1|–|1.50|0.00|1.50|–\n"
                                              "# |Total|4|1|3|300.0|9.00|2.50|6.50|260.0"))
        << linesOf(articles);
    EXPECT_TRUE(linesOf(follow(request, articles, u"3"_s)).starts_with("02/11/2026|2|5.00\n03/11/2026|"));
}

// The same sums from rows and from totals of months.
TEST_F(LinkedReports, MonthsAddedUpBeforeGiveTheSame)
{
    for (const char* const formula : {"{PLUSALES.SALESDATE} in YearToDate",
                                      "{PLUSALES.SALESDATE} in YearToDate and {PLUSALES.COUNT1} < 99"}) {
        m_november.selectionFormula = QLatin1String(formula);
        EXPECT_EQ(linesOf(linesOfGroup(u"1 DRINKS"_s)),
                  "3|COLA|4|10.00|87.0\n100|TEA|1|1.50|13.0\n# |Total|5|11.50|100.0")
            << formula;
    }
}

TEST_F(LinkedReports, AShopsOwnLayoutLeadsToOnesOfTheProgram)
{
    QFile own(ReportShop::installed("groupsales.rpt"));
    ASSERT_TRUE(own.open(QIODevice::ReadOnly));
    shop.folder().write("mine.rpt", own.readAll());
    m_november.reportFile = shop.folder().path("mine.rpt");
    EXPECT_THROW((void)linesOfGroup(u"2 FOOD"_s), ReportError) << "the layout that is linked is not there";
    m_november.programFolder = ReportShop::installed("");
    EXPECT_EQ(linesOf(linesOfGroup(u"2 FOOD"_s)), "20|CRISPS|4|4.00|100.0\n# |Total|4|4.00|100.0");
    shop.folder().write("articlesales.rpt", "[Report]\r\nTitle=Own\r\nTable=PLUSALES\r\nLines={ID}\r\n"
                                            "[Column1]\r\nValue={ID}\r\nWidth=20\r\n");
    const ReportData articles = linesOfGroup(u"2 FOOD"_s);
    EXPECT_EQ(articles.heading.title, u"Own"_s) << "one beside the layout counts first";
    EXPECT_TRUE(articles.heading.subtitle.endsWith(u"the selection names another table (PLUDATA)"_s))
        << articles.heading.subtitle.toStdString();
}

} // namespace
} // namespace norvane::reports::test
