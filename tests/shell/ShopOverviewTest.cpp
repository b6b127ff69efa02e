// What the overview says of a shop, from real files and databases.
#include "shell/ShopOverview.h"

#include "exchange/UnsentChanges.h"
#include "reports/lines/ReportRun.h"
#include "sales/UnclearedSales.h"
#include "tests/shell/ShellFixture.h"
#include "tests/store/Elsewhere.h"

#include <QLocale>

namespace norvane::shell
{
namespace
{

const QDateTime morning(QDate(2026, 11, 26), QTime(8, 30));

class ShopOverviewTest : public ShellFixture
{
protected:
    ShopOverviewTest() { QLocale::setDefault(QLocale::c()); }

    [[nodiscard]] ShopOverview read() const { return readOverview(m_values, morning, unreadUnsent()); }
    [[nodiscard]] OverviewLine unsent() const
    {
        return unsentLine(m_values.customerPath, exchange::findChanges(ownValues(m_values)));
    }
    /// The line about @p subject; "! " before one that needs attention.
    [[nodiscard]] std::string text(Subject subject) const
    {
        for (const OverviewLine& line : read().lines) {
            if (line.subject == subject)
                return (line.needsAttention ? "! " : "") + line.text.toStdString();
        }
        return "no line";
    }
    /// "Wed 25/11 £1.00", from the first day on.
    [[nodiscard]] std::vector<std::string> bars() const
    {
        std::vector<std::string> all;
        const ShopOverview overview = read();
        for (const OverviewBar& bar : overview.lines.at(1).bars)
            all.push_back((bar.day + u' ' + bar.value).toStdString());
        return all;
    }
    void sell(const char* day, int line, const char* value) const
    {
        execute(
            u"insert into FINANCIALSALES (ID, SALESDATE, QUANTITY, [VALUE]) values (%1, '%2', 1, %3)"_s.arg(
                QString::number(line), QLatin1String(day), QLatin1String(value)));
    }
    /// As a collection leaves it. @param uncleared whether the registers still hold the sales.
    void noteCollection(bool uncleared) const
    {
        sales::LastCollection last;
        last.mark = "mark";
        last.stored = QDateTime(QDate(2026, 11, 24), QTime(18, 3));
        last.rowsOfDay = 1;
        if (uncleared)
            last.uncleared = sales::Uncleared{8, false};
        sales::noteLastCollection(m_values, last);
    }
    /// The values of the same chart in the financial report, "25/11 1.00".
    [[nodiscard]] std::vector<std::string> reportedDays() const
    {
        reports::ReportRequest request;
        request.reportFile = QStringLiteral(DATA_DIR "/finsales.rpt");
        request.dataFile = m_values.databasePath;
        request.selectionFormula = u"{FINANCIALSALES.SALESDATE} >= date(2026,11,24)"_s;
        request.now = morning;
        std::vector<std::string> days;
        const auto chart = reports::runReport(request).charts.at(0);
        for (const auto& point : chart.points)
            days.push_back((point.label + u' ' + reports::shownValue(chart, point.value)).toStdString());
        return days;
    }
};

TEST_F(ShopOverviewTest, ANewShopHasNothingAndASoundOneTellsItsDays)
{
    makeCustomerDatabase();
    EXPECT_EQ(text(Subject::Collection), "never");
    EXPECT_EQ(text(Subject::Takings), "none yet");
    EXPECT_EQ(text(Subject::Copies), "none yet");
    EXPECT_EQ(text(Subject::Log), "nothing");
    EXPECT_TRUE(bars().empty());

    execute(u"insert into GENERALPRINTOPTION (ID, HOMESYMBOL) values (1, 163)"_s);
    for (int tenth = 0; tenth < 10; ++tenth)
        sell("2026-11-25", 2, "0.1");
    sell("2026-11-25", 1, "99");
    sell("2026-11-24", 2, "1234.5");
    execute(u"insert into PLUSALES (ID, SALESDATE, PROMO, WASTE) values ('1', '2026-11-22', 0, 0)"_s);
    EXPECT_EQ(bars(), (std::vector<std::string>{"Fri 20/11 not collected", "Sat 21/11 not collected",
                                                "Sun 22/11 \u00a30.00", "Mon 23/11 not collected",
                                                "Tue 24/11 \u00a31,234.50", "Wed 25/11 \u00a31.00",
                                                "Thu 26/11 not collected yet"}));
    EXPECT_EQ(reportedDays(), (std::vector<std::string>{"24/11 \u00a31,234.50", "25/11 \u00a31.00"}));
    EXPECT_EQ(text(Subject::Collection), "25/11/2026, yesterday") << "from the sales, without a note";
}

TEST_F(ShopOverviewTest, TellsWhetherTheRegistersWereCleared)
{
    makeCustomerDatabase();
    sell("2026-11-24", 2, "5");
    noteCollection(false);
    EXPECT_EQ(text(Subject::Collection), "24/11/2026 18:03, 2 days ago; complete");
    noteCollection(true);
    EXPECT_EQ(text(Subject::Collection),
              "! 24/11/2026 18:03, 2 days ago; stored, but not cleared at all registers");
    execute(u"delete * from FINANCIALSALES"_s);
    EXPECT_EQ(text(Subject::Collection), "24/11/2026 18:03, 2 days ago; no longer in the database");
}

TEST_F(ShopOverviewTest, OneSourceThatCannotBeReadLeavesTheOthers)
{
    m_folder.write("app/Cafe/velmar.mdb", "not a database");
    m_folder.write("app/Cafe/norvane.log",
                   "2026-11-25 11:59:00\tcollection\t\tstopped at noon\t1.0 s\n"
                   "2026-11-25 23:00:00\tcollection\t\tstopped at Clear Data at ECR\t1.0 s\n");
    m_folder.write("app/Cafe/copies/2026-11-25 22.05.00 before upload/setup.ini", "");
    const std::string takings = text(Subject::Takings);
    EXPECT_TRUE(takings.starts_with("! cannot be read: Unrecognized database format. velmar.mdb is not"))
        << takings;
    EXPECT_EQ(text(Subject::Collection), takings);
    EXPECT_EQ(text(Subject::Copies), "25/11/2026 22:05, before upload");
    EXPECT_EQ(text(Subject::Log), "! 25/11/2026 23:00, collection: stopped at Clear Data at ECR");
    EXPECT_TRUE(unsent().needsAttention);
    EXPECT_TRUE(
        unsent().text.startsWith("cannot be read: Unrecognized database format. velmar.mdb is not"_L1));

    EXPECT_TRUE(readOverview({}, morning, unreadUnsent()).lines.empty()) << "no customer is chosen";
}

/// The data of another customer may be open, and another program may hold its own.
TEST_F(ShopOverviewTest, ReadsTheChosenCustomersOwnDatabaseWithoutWaiting)
{
    makeCustomerDatabase();
    sell("2026-11-25", 2, "7");
    const QString own = std::exchange(m_values.databasePath, m_folder.path("app/velmar.mdb"));
    EXPECT_EQ(bars().at(5), "Wed 25/11 7.00");
    EXPECT_FALSE(read().isBusy);
    sqlite3* other = nullptr;
    sqlite3_open(own.toUtf8().constData(), &other);
    ASSERT_EQ(sqlite3_exec(other, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_TRUE(read().isBusy);
    EXPECT_EQ(text(Subject::Takings), "! cannot be read now: another program is working on the database");
    sqlite3_close(other);
    EXPECT_FALSE(read().isBusy);
}

TEST_F(ShopOverviewTest, NamesTheBoxesThatTheRegistersDoNotHave)
{
    makeCustomerDatabase();
    EXPECT_EQ(unsent().text, u"nothing"_s);
    execute(u"insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'DRINKS')"_s);
    EXPECT_EQ(unsent().text, u"1 record not sent (Group)"_s);
}

} // namespace
} // namespace norvane::shell
