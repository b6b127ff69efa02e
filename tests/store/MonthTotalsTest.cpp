// Totals of whole months beside the sales tables: what a report reads through them is what the rows add up
// to, whoever changed the rows in between.
#include "store/sales/MonthTotals.h"

#include "store/catalogue/Catalogue.h"
#include "store/catalogue/Upgrade.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/ShortWait.h"
#include "store/sales/DayDigests.h"
#include "store/sales/RowAppend.h"
#include "tests/store/Elsewhere.h"
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

using norvane::test::runElsewhere;

const QDate today(2028, 3, 2);
const DayRange twoYears{{2026, 1, 1}, {2028, 12, 31}};

class MonthTotalsTest : public testing::Test
{
protected:
    MonthTotalsTest()
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
    std::string added() { return answer(u"select month from norvane_added_months_CLERKSALES order by 1"_s); }
    void addUpAll() { EXPECT_TRUE(m_totals.addUpMissing(twoYears, today)); }

    StoreFolder m_folder{catalogue()};
    Database m_database{m_folder.path()};
    MonthTotals m_totals{m_database, u"clerksales"_s};
};

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
    {{2028, 3, 2}, {2028, 3, 1}},
    {{1900, 1, 1}, {2028, 12, 31}}, // more months than one query of the engine can join
};

TEST_F(MonthTotalsTest, AreTheSumsOfTheRows)
{
    addUpAll();
    EXPECT_EQ(added(), "2027-12 2028-01 2028-02") << "neither empty months nor the running one";
    for (const DayRange& days : ranges) {
        EXPECT_EQ(reportOf(m_totals.rows(days)), reportOfRows(days))
            << days.first.toString(Qt::ISODate).toStdString() << ' '
            << days.last.toString(Qt::ISODate).toStdString();
    }
    EXPECT_EQ(answer(u"select exact_sum(VALUE) from "_s + m_totals.rows(twoYears, {u"value"_s})), "2.1");
}

TEST_F(MonthTotalsTest, AMonthIsCompleteWithItsLastDay)
{
    const QVector<QDate> february{{2028, 2, 1}};
    EXPECT_EQ(m_totals.missing({{2028, 2, 1}, {2028, 2, 29}}, {2028, 3, 1}), february);
    EXPECT_TRUE(m_totals.missing({{2028, 2, 1}, {2028, 2, 28}}, {2028, 3, 1}).isEmpty());
    EXPECT_TRUE(m_totals.missing({{2028, 2, 1}, {2028, 2, 29}}, {2028, 2, 29}).isEmpty()) << "still selling";
}

const std::pair<const char*, const char*> changes[] = {
    {"insert into CLERKSALES values (1, 1, '2028-01-15', 1, 1000000000000000.25)", "2027-12 2028-02"},
    {"update CLERKSALES set VALUE = VALUE + 1 where SALESDATE = '2028-02-29'", "2027-12 2028-01"},
    {"update CLERKSALES set SALESDATE = '2027-12-01' where SALESDATE = '2028-02-01'", "2028-01"},
    {"delete from CLERKSALES where SALESDATE = '2027-12-31' and ID = 2", "2028-01 2028-02"},
    // The row that has the number already goes without a delete.
    {"replace into CLERKSALES (rowid, ID, CLERKID, SALESDATE, QUANTITY, VALUE) values (1, 1, 1, "
     "'2028-02-10', 1, 5)",
     "2028-01"},
    {"update or replace CLERKSALES set rowid = 3 where rowid = 11", "2027-12"},
    {"insert into CLERKSALES values (1, 1, '2028-03-02', 1, 0.1)", "2027-12 2028-01 2028-02"},
};

TEST_F(MonthTotalsTest, DropEveryMonthInWhichARowChanges)
{
    for (const auto& [sql, left] : changes) {
        addUpAll();
        runElsewhere(m_folder.path(), sql);
        EXPECT_EQ(added(), left) << sql;
        EXPECT_EQ(reportOf(m_totals.rows(twoYears)), reportOfRows(twoYears)) << sql;
    }
    EXPECT_EQ(
        answer(u"select count(*) from norvane_month_totals_CLERKSALES where SALESDATE = '2028-01-01'"_s),
        "2");
    auto sales = m_database.openQuery(u"select * from CLERKSALES where SALESDATE = #1/1/2028#"_s);
    sales.deleteRecord();
    EXPECT_EQ(added(), "2027-12 2028-02");
    addUpAll();
    EXPECT_EQ(m_database.execute(u"delete * from clerksales"_s), 13);
    EXPECT_EQ(added() + reportOf(m_totals.rows(twoYears)), "");
    EXPECT_EQ(answer(u"select count(*) from norvane_month_totals_CLERKSALES"_s), "0");
}

TEST_F(MonthTotalsTest, AreMadeForADatabaseOfAnEarlierBuild)
{
    // As an earlier build left it: it had no trigger for rows that are replaced, so the totals are wrong now.
    addUpAll();
    runElsewhere(m_folder.path(), "drop trigger [CLERKSALES replace by insert]");
    runElsewhere(m_folder.path(), "drop trigger [CLERKSALES replace by update]");
    runElsewhere(m_folder.path(), "update or replace CLERKSALES set rowid = 9 where rowid = 7");
    MonthTotals without(m_database, u"CLERKSALES"_s);
    EXPECT_FALSE(without.available());
    EXPECT_EQ(reportOf(without.rows(twoYears)), reportOfRows(twoYears));
    EXPECT_TRUE(without.missing(twoYears, today).isEmpty());

    completeDatabase(m_folder.path());
    MonthTotals made(m_database, u"CLERKSALES"_s);
    EXPECT_EQ(added(), "");
    QVector<QDate> steps;
    EXPECT_FALSE(made.addUpMissing(twoYears, today, [&steps](QDate month) {
        steps << month;
        return steps.size() < 3;
    }));
    EXPECT_EQ(steps, (QVector<QDate>{{2027, 12, 1}, {2028, 1, 1}, {2028, 2, 1}}));
    EXPECT_EQ(added(), "2027-12 2028-01");
    EXPECT_EQ(reportOf(made.rows(twoYears)), reportOfRows(twoYears));
}

TEST_F(MonthTotalsTest, AMonthThatCannotBeAddedUpIsReadFromItsRows)
{
    runElsewhere(m_folder.path(), "insert into CLERKSALES values (9, 1, '2028-01-09', 1, 9e999)");
    EXPECT_FALSE(m_totals.addUpMissing(twoYears, today));
    EXPECT_EQ(failureOf([this] { m_totals.addUp({2028, 1, 1}); }), 3061);
    EXPECT_EQ(added(), "2027-12");
    const DayRange february{{2028, 2, 1}, {2028, 2, 29}};
    EXPECT_EQ(reportOf(m_totals.rows(february)), reportOfRows(february));
    EXPECT_EQ(failureOf([this] { MonthTotals(m_database, u"PLUDATA"_s); }), 3265);
}

TEST_F(MonthTotalsTest, AMonthThatCannotBeStoredLeavesTheFileToOthers)
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

TEST_F(MonthTotalsTest, ADigestIsDroppedWhenARowOfItsDayChanges)
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

TEST_F(MonthTotalsTest, ADigestIsDroppedWhenARowIsAppendedOrTheTableIsEmptied)
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
