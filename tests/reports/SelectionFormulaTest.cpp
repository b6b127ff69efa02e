// Formulas over rows of a real database: which rows they find, and where a mistake is reported.
#include "reports/formula/Period.h"
#include "tests/reports/ReportShop.h"

namespace norvane::reports::test
{
namespace
{

/// Lists the numbers of what a formula finds.
constexpr const char* list = "[Report]\r\nTitle=Found\r\nTable=FINANCIALSALES\r\n"
                             "[Join1]\r\nFind={FINANCIALREPORTDESCRIPTORS.ID}\r\nBy={FINANCIALSALES.ID}\r\n"
                             "[Column1]\r\nFormat=0\r\nValue={ID}\r\nWidth=20\r\n"
                             "[Sort]\r\nKey1={ID}\r\n";

class Selection : public testing::Test
{
protected:
    Selection()
    {
        shop.folder().write("found.rpt", list);
        shop.add("FINANCIALREPORTDESCRIPTORS", "ID|financialreport", {"2|NET SALES", "3|Refunds"});
    }

    [[nodiscard]] ReportRequest request(const QString& formula, QDate today = {2026, 11, 25}) const
    {
        auto request = shop.request(shop.folder().path("found.rpt"), formula);
        request.now = QDateTime(today, QTime(12, 0));
        return request;
    }
    [[nodiscard]] std::string found(const QString& formula) const
    {
        // Below the lines may be the list of days without a collection.
        return QString::fromStdString(linesOf(runReport(request(formula))))
            .section(u"\n; "_s, 0, 0)
            .replace(u'\n', u' ')
            .toStdString();
    }

    ReportShop shop;
};

const std::pair<const char16_t*, const char*> selections[] = {
    {u"", "1 2 3 4 5 6 7 8"},
    {u"{FINANCIALSALES.SALESDATE} in monthtodate", "4 5 6 7"},
    {u"{financialSALES.salesdate} IN WeekToDateFromSun", "6 7"},
    {u"{FinancialSales.SalesDate}in YEARTODATE", "2 3 4 5 6 7"},
    {u"{FINANCIALSALES.SALESDATE} = date(2026,11,1)", "4"},
    {u"{FINANCIALSALES.SALESDATE} in date(2026,10,31) to date(2026,11,21)", "3 4 5"},
    {u"not ({FINANCIALSALES.SALESDATE} in monthtodate)", "1 2 3 8"},
    {u"{FINANCIALSALES.ID} > 2 and {FINANCIALSALES.ID} <= 4 or 7 <= {FINANCIALSALES.ID}", "3 4 7 8"},
    {u"{FINANCIALSALES.ID}>2 and ({FINANCIALSALES.ID}<=4 or {FINANCIALSALES.ID}=7)", "3 4 7"},
    {u"not not {FINANCIALSALES.VALUE} = -20.5", "2"},
    {u"{FINANCIALSALES.ID} = {FINANCIALSALES.QUANTITY} and {FINANCIALSALES.ID} <> 5", "1 2 3 4 6 7 8"},
    {u"{FINANCIALREPORTDESCRIPTORS.financialreport} = 'refunds'", "3"},
    // Another report's table restricts nothing, alone, in company, or as one half of an "or".
    {u"{PLUSALES.SALESDATE} = date(2026,11,25)", "1 2 3 4 5 6 7 8"},
    {u"{PLUSALES.COUNT1} > 3 and {FINANCIALSALES.ID} > 6", "7 8"},
    {u"{FINANCIALSALES.ID} = 1 or {PLUSALES.COUNT1} > 3", "1 2 3 4 5 6 7 8"},
    {u"not ({FINANCIALSALES.ID} = 1 or {PLUSALES.COUNT1} > 3)", "2 3 4 5 6 7 8"},
    {u"not ({FINANCIALSALES.ID} = 1 and {PLUSALES.COUNT1} > 3)", "1 2 3 4 5 6 7 8"},
    {u"not (not ({FINANCIALSALES.ID} = 1 and {PLUSALES.COUNT1} > 3))", "1"},
    {u"not (not ({FINANCIALSALES.ID} = 1 or {PLUSALES.COUNT1} > 3))", "1 2 3 4 5 6 7 8"},
};

TEST_F(Selection, FindsTheRowsThatItNames)
{
    shop.add("FINANCIALSALES", "ID|SALESDATE|QUANTITY|VALUE",
             {"1|2025-12-31|1|10", "2|2026-01-01|2|-20.5", "3|2026-10-31|3|0", "4|2026-11-01|4|0",
              "5|2026-11-21|5|0", "6|2026-11-22|6|0", "7|2026-11-25|7|0", "8|2026-11-26|8|0"});
    for (const auto& [formula, rows] : selections)
        EXPECT_EQ(found(QString::fromUtf16(formula)), rows) << QString::fromUtf16(formula).toStdString();
}

const std::tuple<const char16_t*, QDate, const char16_t*> periodTitles[] = {
    {u"in monthtodate", {2026, 11, 25}, u"Month to date, 01/11/2026 to 25/11/2026"},
    {u"in monthtodate", {2026, 11, 1}, u"Month to date, 01/11/2026"},
    {u"in WeekToDateFromSun", {2026, 11, 22}, u"Week to date, 22/11/2026"}, // a Sunday
    {u"in WeekToDateFromSun", {2026, 11, 21}, u"Week to date, 15/11/2026 to 21/11/2026"},
    {u"in WeekToDateFromSun", {2027, 1, 1}, u"Week to date, 27/12/2026 to 01/01/2027"},
    {u"in YearToDate", {2028, 2, 29}, u"Year to date, 01/01/2028 to 29/02/2028"},
    {u"in monthtodate", {2028, 2, 29}, u"Month to date, 01/02/2028 to 29/02/2028"},
    {u"in yesterday", {2028, 3, 1}, u"Yesterday, 29/02/2028"},
    {u"in LastWeekFromSun", {2026, 11, 22}, u"Last week from Sunday, 15/11/2026 to 21/11/2026"},
    {u"in lastweekfromsun", {2026, 11, 21}, u"Last week from Sunday, 08/11/2026 to 14/11/2026"},
    {u"in lastweekfrommon", {2026, 11, 22}, u"Last week from Monday, 09/11/2026 to 15/11/2026"},
    {u"in lastweekfrommon", {2027, 1, 4}, u"Last week from Monday, 28/12/2026 to 03/01/2027"},
    {u"in lastmonth", {2028, 3, 31}, u"Last month, 01/02/2028 to 29/02/2028"},
    {u"in lastquarter", {2027, 1, 1}, u"Last quarter, 01/10/2026 to 31/12/2026"},
    {u"in lastquarter", {2026, 6, 30}, u"Last quarter, 01/01/2026 to 31/03/2026"},
    {u"in lastyear", {2026, 1, 1}, u"Last year, 01/01/2025 to 31/12/2025"},
    {u"= date(2028,2,29)", {2028, 3, 1}, u"Tuesday, 29/02/2028"},
    {u"> date(2026,1,31)", {2026, 11, 25}, u"From 01/02/2026"},
};

TEST_F(Selection, NamesItsPeriodAndEndsItToday)
{
    for (const auto& [formula, today, subtitle] : periodTitles) {
        const QString whole = u"{FINANCIALSALES.SALESDATE} "_s + QString::fromUtf16(formula);
        const auto data = runReport(request(whole, today));
        EXPECT_EQ(data.heading.subtitle, QString::fromUtf16(subtitle));
        EXPECT_TRUE(data.heading.notice.contains(QString::fromUtf16(subtitle), Qt::CaseInsensitive));
    }
    EXPECT_EQ(runReport(request(u"{PLUSALES.SALESDATE} in YearToDate"_s)).heading.subtitle,
              u"The selection names another table (PLUSALES)"_s);
}

/// A period, the one before it and the same a year earlier.
struct Compared {
    QDate from;
    QDate to;
    const char* before;
    const char* earlier;
};
const Compared comparedPeriods[] = {
    {{2026, 11, 25}, {2026, 11, 25}, "2026-11-24 2026-11-24", "2025-11-26 2025-11-26"}, // both a Wednesday
    {{2026, 11, 1}, {2026, 11, 1}, "2026-10-31 2026-10-31", "2025-11-02 2025-11-02"},
    {{2026, 11, 15}, {2026, 11, 21}, "2026-11-08 2026-11-14", "2025-11-16 2025-11-22"},
    {{2026, 11, 3}, {2026, 11, 20}, "2026-10-16 2026-11-02", "2025-11-03 2025-11-20"},
    {{2026, 3, 1}, {2026, 3, 31}, "2026-02-01 2026-02-28", "2025-03-01 2025-03-31"},
    {{2029, 2, 1}, {2029, 2, 28}, "2029-01-01 2029-01-31", "2028-02-01 2028-02-29"},
    {{2028, 3, 1}, {2028, 3, 30}, "2028-02-01 2028-02-29", "2027-03-01 2027-03-30"}, // month to date
    {{2026, 10, 1}, {2026, 12, 31}, "2026-07-01 2026-09-30", "2025-10-01 2025-12-31"},
    {{2028, 1, 1}, {2028, 5, 14}, "2027-01-01 2027-05-14", "2027-01-01 2027-05-14"}, // year to date
    {{2026, 1, 1}, {2026, 12, 31}, "2025-01-01 2025-12-31", "2025-01-01 2025-12-31"},
};

TEST(Periods, HaveOneBeforeAndOneAYearEarlier)
{
    const auto days = [](const Period& period) {
        return (period.from.toString(Qt::ISODate) + u' ' + period.to.toString(Qt::ISODate)).toStdString();
    };
    for (const auto& [from, to, before, earlier] : comparedPeriods) {
        EXPECT_EQ(days(periodBefore({from, to, {}})), before) << days({from, to, {}});
        EXPECT_EQ(days(yearEarlier({from, to, {}})), earlier) << days({from, to, {}});
    }
}

const std::pair<const char16_t*, const char*> formulaMistakes[] = {
    {u"({FINANCIALSALES.ID} = 1", "column 25: \")\" is expected, but the formula ends"},
    {u"{FINANCIALSALES.ID} = 1)", "column 24: the end is expected, but \")\""},
    {u"{FINANCIALSALES.IDS} = 1", "column 1: there is no field {FINANCIALSALES.IDS}"},
    {u"1 = {NOTABLE.ID}", "column 5: there is no field {NOTABLE.ID}"},
    {u"{FINANCIALSALES.ID = 1", "column 1: a field's name is not closed by }"},
    {u"{FINANCIALSALES.SALESDATE} in lastcentury", "column 31: monthtodate"},
    {u"{FINANCIALSALES.SALESDATE} = date(2026,2,29)", "column 30: there is no such day"},
    {u"{FINANCIALSALES.SALESDATE} = 5", "column 30: a day such as date(2026,1,31) is expected"},
    {u"{FINANCIALSALES.ID} = 'x'", "column 23: a number is expected"},
    {u"{FINANCIALSALES.ID} in monthtodate", "column 24: a number is expected"},
    {u"{FINANCIALSALES.ID} ~ 1", "column 21: \"~\" belongs in no formula"},
    {u"{FINANCIALSALES.ID} = 1.2.3", "column 23: a number is expected"},
    {u"1 = 1", "column 1: a field is expected on one side"},
    {u"{FINANCIALSALES.ID} = 1; drop table FINANCIALSALES", "column 24"},
};

TEST_F(Selection, NamesThePlaceOfItsMistake)
{
    for (const auto& [formula, message] : formulaMistakes) {
        const std::string error = errorOf(request(QString::fromUtf16(formula)));
        EXPECT_NE(error.find(message), std::string::npos) << error;
    }
}

TEST_F(Selection, OfAnySizeGivesAResultOrAMistake)
{
    shop.add("FINANCIALSALES", "ID|SALESDATE", {"1|2026-11-25", "2|2026-11-25"});
    QStringList many;
    for (int i = 0; i < 4000; ++i)
        many.append(u"{FINANCIALSALES.ID} = 2"_s);
    EXPECT_EQ(found(many.join(u" or "_s)), "2"); // some 100 KB
    EXPECT_LT(runReport(request(many.join(u" or "_s))).heading.subtitle.size(), 250) << "no page has room";
    const QString deep = QString(10000, u'(') + u"{FINANCIALSALES.ID} = 2"_s + QString(10000, u')');
    EXPECT_NE(errorOf(request(deep)).find("nested"), std::string::npos);
    EXPECT_NE(errorOf(request(u"not "_s.repeated(10000) + u"{FINANCIALSALES.ID} = 2"_s)).find("nested"),
              std::string::npos);
    EXPECT_EQ(found(QString(50, u'(') + u"{FINANCIALSALES.ID} = 2"_s + QString(50, u')')), "2");
}

} // namespace
} // namespace norvane::reports::test
