// Totals of whole months and years beside the sales tables: what a report reads through them is what the rows
// add up to, whoever changed the rows in between.
#include "store/sales/SalesTotals.h"

#include "store/catalogue/Catalogue.h"
#include "store/catalogue/Upgrade.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/ShortWait.h"
#include "store/sales/DayDigests.h"
#include "store/sales/RowAppend.h"
#include "tests/store/Elsewhere.h"
#include "tests/store/StoreFolder.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace norvane::store::test
{
namespace
{

using norvane::test::runElsewhere;

const QDate today(2028, 3, 2);
const DayRange twoYears{{2026, 1, 1}, {2028, 12, 31}};

const DayRange ranges[] = {
    twoYears,
    {{2028, 1, 1}, {2028, 3, 2}},
    {{2028, 1, 1}, {2028, 1, 1}},
    {{2028, 1, 1}, {2028, 1, 31}},
    {{2028, 1, 2}, {2028, 2, 29}},
    {{2028, 1, 31}, {2028, 2, 28}},
    {{2027, 12, 31}, {2028, 2, 1}},
    {{2028, 2, 1}, {2028, 2, 29}},
    {{2026, 1, 1}, {2026, 12, 31}},
    {{2026, 12, 15}, {2028, 1, 31}},
    {{2027, 1, 1}, {2027, 12, 31}},
    {{2027, 1, 2}, {2028, 12, 30}},
    {{2028, 3, 2}, {2028, 3, 1}},
    {{1900, 1, 1}, {2028, 12, 31}},
};

class SalesTotalsTest : public testing::Test
{
protected:
    SalesTotalsTest()
    {
        auto sales = m_database.openTable(u"CLERKSALES"_s);
        // Change of year, 29 February, first and last of a month, two collections of one day.
        for (const QDate day :
             {QDate(2027, 12, 31), QDate(2028, 1, 1), QDate(2028, 1, 31), QDate(2028, 1, 31),
              QDate(2028, 2, 1), QDate(2028, 2, 29), QDate(2028, 3, 1)}) {
            for (const int item : {1, 2}) {
                test::add(sales, {{"ID", Value::whole(item)},
                                  {"CLERKID", Value::whole(day.day() % 2)},
                                  {"SALESDATE", Value::date(day)},
                                  {"QUANTITY", Value::whole(1)},
                                  {"VALUE", Value::number(item * 0.1)}});
            }
        }
    }

    std::string answer(const QString& sql) { return rowsOf(m_folder.path(), sql); }
    /// What a report shows of the source: each item of each clerk.
    std::string reportOf(const QString& source)
    {
        return answer(
            u"select ID || '/' || CLERKID || ': ' || exact_sum(QUANTITY) || ' ' || exact_sum(VALUE) "
            "from %1 group by ID, CLERKID order by ID, CLERKID"_s.arg(source));
    }
    std::string reportOfRows(const DayRange& days)
    {
        return reportOf(u"(select * from CLERKSALES where SALESDATE between '%1' and '%2')"_s.arg(
            days.first.toString(Qt::ISODate), days.last.toString(Qt::ISODate)));
    }
    /// The months with totals; those of a year include months without rows.
    std::string added()
    {
        return answer(u"select distinct substr(SALESDATE, 1, 7) from norvane_month_totals_CLERKSALES, "
                      "norvane_added_months_CLERKSALES where month = substr(SALESDATE, 1, 7) order by 1"_s);
    }
    std::string addedYears() { return answer(u"select month from norvane_added_years_CLERKSALES"_s); }
    std::string totalsOfYears() { return answer(u"select count(*) from norvane_year_totals_CLERKSALES"_s); }
    void changeElsewhere(const char* sql) { runElsewhere(m_folder.path(), sql); }
    /// Both the totals that are left and the rows give the same.
    void expectRight(const char* after)
    {
        for (const DayRange& days : ranges)
            EXPECT_EQ(reportOf(m_totals.rows(days)), reportOfRows(days)) << after;
    }
    void addUpAll() { EXPECT_TRUE(m_totals.addUpMissing(twoYears, today)); }

    StoreFolder m_folder{catalogue()};
    Database m_database{m_folder.path()};
    SalesTotals m_totals{m_database, u"clerksales"_s};
};

TEST_F(SalesTotalsTest, AreTheSumsOfTheRows)
{
    addUpAll();
    EXPECT_EQ(added(), "2027-12 2028-01 2028-02") << "neither empty months nor the running one";
    EXPECT_EQ(addedYears(), "2027-01") << "neither empty years nor the running one";
    for (const DayRange& days : ranges) {
        EXPECT_EQ(reportOf(m_totals.rows(days)), reportOfRows(days))
            << days.first.toString(Qt::ISODate).toStdString() << ' '
            << days.last.toString(Qt::ISODate).toStdString();
    }
    EXPECT_EQ(answer(u"select count(*) from "_s + m_totals.rows(twoYears)), "8")
        << "the year, two months, a day";
    EXPECT_EQ(answer(u"select distinct SALESDATE from "_s +
                     m_totals.rows({{2027, 1, 1}, {2028, 2, 29}}, {}, SalesTotals::Longest::Month)),
              "01/12/2027 01/01/2028 01/02/2028");
    EXPECT_EQ(answer(u"select exact_sum(VALUE) from "_s + m_totals.rows(twoYears, {u"value"_s})), "2.1");
}

TEST_F(SalesTotalsTest, AMonthIsCompleteWithItsLastDay)
{
    const QVector<DayRange> february{{{2028, 2, 1}, {2028, 2, 29}}};
    EXPECT_EQ(m_totals.missing({{2028, 2, 1}, {2028, 2, 29}}, {2028, 3, 1}), february);
    EXPECT_TRUE(m_totals.missing({{2028, 2, 1}, {2028, 2, 28}}, {2028, 3, 1}).isEmpty());
    EXPECT_TRUE(m_totals.missing({{2028, 2, 1}, {2028, 2, 29}}, {2028, 2, 29}).isEmpty()) << "still selling";
    const DayRange year{{2027, 1, 1}, {2027, 12, 31}};
    EXPECT_EQ(m_totals.missing(year, {2028, 1, 1}),
              (QVector<DayRange>{{{2027, 12, 1}, {2027, 12, 31}}, year}));
    EXPECT_TRUE(m_totals.missing(year, {2027, 12, 31}).isEmpty());
}

/// A change of the rows, and the months and years that still have totals after it.
struct Change {
    const char* sql;
    const char* months;
    const char* years;
};
constexpr Change changes[] = {
    {"insert into CLERKSALES values (1, 1, '2028-01-15', 1, 1000000000000000.25)", "2027-12 2028-02",
     "2027-01"},
    {"update CLERKSALES set VALUE = VALUE + 1 where SALESDATE = '2028-02-29'", "2027-12 2028-01", "2027-01"},
    {"update CLERKSALES set SALESDATE = '2027-12-01' where SALESDATE = '2028-02-01'", "2028-01", ""},
    {"delete from CLERKSALES where SALESDATE = '2027-12-31' and ID = 2", "2028-01 2028-02", ""},
    {"insert into CLERKSALES values (1, 1, '2027-05-05', 1, 0.3)", "2027-12 2028-01 2028-02", ""},
    // The row that has the number already goes without a delete.
    {"replace into CLERKSALES (rowid, ID, CLERKID, SALESDATE, QUANTITY, VALUE) values (1, 1, 1, "
     "'2028-02-10', 1, 5)",
     "2027-05 2028-01", ""},
    {"update or replace CLERKSALES set rowid = 3 where rowid = 11", "2027-05 2027-12", "2027-01"},
    {"insert into CLERKSALES values (1, 1, '2028-03-02', 1, 0.1)", "2027-05 2027-12 2028-01 2028-02",
     "2027-01"},
    {"update CLERKSALES set VALUE = 7.77 where SALESDATE = '2027-05-05'", "2027-12 2028-01 2028-02", ""},
};

TEST_F(SalesTotalsTest, DropEveryMonthInWhichARowChanges)
{
    for (const auto& [sql, months, years] : changes) {
        addUpAll();
        changeElsewhere(sql);
        EXPECT_EQ(added(), months) << sql;
        EXPECT_EQ(addedYears(), years) << sql;
        EXPECT_EQ(totalsOfYears() == "0", addedYears().empty()) << sql;
        expectRight(sql);
    }
    EXPECT_EQ(
        answer(u"select count(*) from norvane_month_totals_CLERKSALES where SALESDATE = '2028-01-01'"_s),
        "2");
    auto sales = m_database.openQuery(u"select * from CLERKSALES where SALESDATE = #1/1/2028#"_s);
    sales.deleteRecord();
    EXPECT_EQ(added(), "2027-12 2028-02");
    addUpAll();
    EXPECT_EQ(m_database.execute(u"delete * from clerksales"_s), 14);
    EXPECT_EQ(added() + addedYears() + reportOf(m_totals.rows(twoYears)), "");
    EXPECT_EQ(totalsOfYears(), "0");
    EXPECT_EQ(answer(u"select count(*) from norvane_month_totals_CLERKSALES"_s), "0");
}

TEST_F(SalesTotalsTest, AreMadeForADatabaseOfAnEarlierBuild)
{
    // As an earlier build left it: it had no trigger for rows that are replaced, so the totals are wrong now.
    addUpAll();
    runElsewhere(m_folder.path(), "drop trigger [CLERKSALES replace by insert]");
    runElsewhere(m_folder.path(), "drop trigger [CLERKSALES replace by update]");
    runElsewhere(m_folder.path(), "update or replace CLERKSALES set rowid = 9 where rowid = 7");
    SalesTotals without(m_database, u"CLERKSALES"_s);
    EXPECT_FALSE(without.available());
    EXPECT_EQ(reportOf(without.rows(twoYears)), reportOfRows(twoYears));
    EXPECT_TRUE(without.missing(twoYears, today).isEmpty());

    completeDatabase(m_folder.path());
    SalesTotals made(m_database, u"CLERKSALES"_s);
    EXPECT_EQ(added(), "");
    QVector<QDate> steps;
    EXPECT_FALSE(made.addUpMissing(twoYears, today, [&steps](const DayRange& month) {
        steps << month.first;
        return steps.size() < 3;
    }));
    EXPECT_EQ(steps, (QVector<QDate>{{2027, 12, 1}, {2028, 1, 1}, {2028, 2, 1}}));
    EXPECT_EQ(added(), "2027-12 2028-01");
    EXPECT_EQ(reportOf(made.rows(twoYears)), reportOfRows(twoYears));
}

// A former build made the file: it has totals of months and no room for those of years.
TEST_F(SalesTotalsTest, YearsAreReadFromTheirMonthsUntilTheFileHasRoom)
{
    m_totals.addUp({{2027, 12, 1}, {2027, 12, 31}});
    changeElsewhere("drop table norvane_added_years_CLERKSALES; drop table norvane_year_totals_CLERKSALES; "
                    "drop trigger [norvane_added_months_CLERKSALES insert year]; "
                    "drop trigger [norvane_added_months_CLERKSALES delete year]");
    SalesTotals months(m_database, u"CLERKSALES"_s);
    EXPECT_TRUE(months.addUpMissing(twoYears, today));
    EXPECT_EQ(added(), "2027-12 2028-01 2028-02");
    EXPECT_EQ(reportOf(months.rows(twoYears)), reportOfRows(twoYears));

    completeDatabase(m_folder.path());
    EXPECT_EQ(added(), "2027-12 2028-01 2028-02") << "those of months are kept";
    SalesTotals years(m_database, u"CLERKSALES"_s);
    EXPECT_TRUE(years.addUpMissing(twoYears, today));
    EXPECT_EQ(addedYears(), "2027-01");
    EXPECT_EQ(totalsOfYears(), "2");
}

// A former build empties the table and its totals of months with the triggers switched off, and does not know
// of years. Later it adds the months up again.
TEST_F(SalesTotalsTest, AYearIsNotReadWhenAFormerBuildLeftItBehind)
{
    addUpAll();
    {
        sqlite3* former = nullptr;
        ASSERT_EQ(sqlite3_open(m_folder.path().toUtf8().constData(), &former), SQLITE_OK);
        sqlite3_db_config(former, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
        EXPECT_EQ(sqlite3_exec(former,
                               "delete from norvane_added_months_CLERKSALES; "
                               "delete from norvane_month_totals_CLERKSALES; delete from CLERKSALES",
                               nullptr, nullptr, nullptr),
                  SQLITE_OK);
        sqlite3_close(former);
    }
    EXPECT_EQ(addedYears(), "2027-01");
    EXPECT_EQ(reportOf(m_totals.rows(twoYears)), "");
    changeElsewhere("insert into CLERKSALES values (1, 1, '2027-12-05', 1, 0.3)");
    for (int month = 1; month <= 12; ++month) {
        const QDate first(2027, month, 1);
        m_totals.addUp({first, first.addMonths(1).addDays(-1)});
    }
    expectRight("all months are listed again");
    addUpAll();
    expectRight("and so is the year");
    EXPECT_EQ(addedYears(), "2027-01");
}

TEST_F(SalesTotalsTest, AProcessThatIsKilledWhileItAddsUpLeavesNothing)
{
    const pid_t child = fork();
    if (child == 0) {
        Database database(m_folder.path());
        const CommitOnExit transaction(database);
        if (SalesTotals(database, u"CLERKSALES"_s).addUpMissing(twoYears, today))
            raise(SIGKILL);
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(added() + addedYears(), "");
    EXPECT_EQ(totalsOfYears(), "0");
    addUpAll();
    EXPECT_EQ(addedYears(), "2027-01");
    expectRight("added up by the next one");
}

TEST_F(SalesTotalsTest, AYearThatCannotBeAddedUpListsNoneOfItsMonths)
{
    changeElsewhere("insert into CLERKSALES values (9, 1, '2027-12-09', 1, 9e999)");
    EXPECT_EQ(failureOf([this] { m_totals.addUp({{2027, 1, 1}, {2027, 12, 31}}); }), 3061);
    EXPECT_EQ(answer(u"select count(*) from norvane_added_months_CLERKSALES"_s), "0");
}

TEST_F(SalesTotalsTest, AMonthThatCannotBeAddedUpIsReadFromItsRows)
{
    runElsewhere(m_folder.path(), "insert into CLERKSALES values (9, 1, '2028-01-09', 1, 9e999)");
    EXPECT_FALSE(m_totals.addUpMissing(twoYears, today));
    EXPECT_EQ(failureOf([this] { m_totals.addUp({{2028, 1, 1}, {2028, 1, 31}}); }), 3061);
    EXPECT_EQ(added(), "2027-12");
    const DayRange february{{2028, 2, 1}, {2028, 2, 29}};
    EXPECT_EQ(reportOf(m_totals.rows(february)), reportOfRows(february));
    EXPECT_EQ(failureOf([this] { SalesTotals(m_database, u"PLUDATA"_s); }), 3265);
}

TEST_F(SalesTotalsTest, AMonthThatCannotBeStoredLeavesTheFileToOthers)
{
    const norvane::test::ReadingElsewhere reader(m_folder.path());
    const ShortWait wait(m_database);
    EXPECT_FALSE(m_totals.addUpMissing(twoYears, today));
    const norvane::test::ReadingElsewhere another(m_folder.path());
    EXPECT_EQ(reportOf(m_totals.rows(twoYears)), reportOfRows(twoYears));
}

/// The days of February and March 2028 that still have a digest.
std::string daysLeft(const DayDigests& digests)
{
    std::string left;
    for (const auto& [day, digest] : digests.stored())
        left += (left.empty() ? "" : " ") + day.toString(u"d.M="_s).toStdString() + digest;
    return left;
}

const std::map<QDate, std::string> digestedDays{
    {{2028, 2, 1}, "a"}, {{2028, 2, 29}, "b"}, {{2028, 3, 1}, "c"}};

TEST_F(SalesTotalsTest, ADigestIsDroppedWhenARowOfItsDayChanges)
{
    const std::pair<const char*, const char*> losses[] = {
        {"insert into CLERKSALES values (1, 1, '2028-02-01', 1, 1)", "29.2=b 1.3=c"},
        {"update CLERKSALES set VALUE = VALUE + 1 where SALESDATE = '2028-02-29'", "1.2=a 1.3=c"},
        {"update CLERKSALES set SALESDATE = '2028-03-01' where SALESDATE = '2028-02-01'", "29.2=b"},
        {"delete from CLERKSALES where SALESDATE = '2028-02-29' and ID = 2", "1.2=a 1.3=c"},
        {"insert into CLERKSALES values (1, 1, '2028-03-02', 1, 1)", "1.2=a 29.2=b 1.3=c"},
        {"replace into CLERKSALES (rowid, ID, CLERKID, SALESDATE) values (11, 1, 1, '2028-03-02')",
         "1.2=a 1.3=c"},
        {"update or replace CLERKSALES set rowid = 13 where rowid = 3", "1.2=a 29.2=b"},
        {"drop trigger [CLERKSALES replace by insert digest]", ""},
    };
    for (const auto& [sql, left] : losses) {
        DayDigests(m_database, u"clerksales"_s).keep(digestedDays);
        runElsewhere(m_folder.path(), sql);
        EXPECT_EQ(daysLeft(DayDigests(m_database, u"CLERKSALES"_s)), left) << sql;
    }
    completeDatabase(m_folder.path());
    EXPECT_EQ(daysLeft(DayDigests(m_database, u"CLERKSALES"_s)), "")
        << "some may have missed the change of their rows";
}

TEST_F(SalesTotalsTest, ADigestIsDroppedWhenARowIsAppendedOrTheTableIsEmptied)
{
    DayDigests digests(m_database, u"CLERKSALES"_s);
    digests.keep(digestedDays);
    {
        CommitOnExit transaction(m_database);
        const RowAppend append(m_database, transaction, u"CLERKSALES"_s);
        auto sales = m_database.openTable(u"CLERKSALES"_s);
        test::add(sales, {{"ID", Value::whole(1)},
                          {"CLERKID", Value::whole(1)},
                          {"SALESDATE", Value::date({2028, 3, 1})}});
    }
    EXPECT_EQ(daysLeft(digests), "1.2=a 29.2=b");
    m_database.execute(u"delete * from CLERKSALES"_s);
    EXPECT_EQ(daysLeft(digests), "");
}

} // namespace
} // namespace norvane::store::test
