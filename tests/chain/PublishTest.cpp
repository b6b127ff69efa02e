// The contents of PostgreSQL after a shop was published, and after it was published again.
#include "tests/chain/ChainTest.h"

namespace norvane::test
{
namespace
{

/// Three days of two months: two collections of one day, halves of cents, a minus, texts that COPY must
/// escape.
constexpr const char* threeDays =
    "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2) values "
    "('0001', 'Käse\\5€', 1, ' 1.5', null), ('0002', 'Tab\there  ', 1, '12.34', '');"
    "insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Food');"
    "insert into EMPLOYEE (ID, DESCRIPTION, SIGNONCODE, dallaskey) values (1, 'Ann', 4711, '');"
    "insert into TIMEPERIOD (id, STARTTIME, ENDTIME) values (1, '930', 1200);"
    "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1, COUNT2, VALUE2, COUNT3, VALUE3, "
    "COUNT4, "
    "VALUE4, COUNT5, VALUE5) values "
    "('0001', '2026-10-31', 0, 0, 1, 0.1, 0, 0, 0, 0, 0, 0, 0, 0),"
    "('0001', '2026-10-31', 0, 0, 1, 0.2, 0, 0, 0, 0, 0, 0, 0, 0),"
    "('0002', '2026-11-01', 0, 1, 3, 37.02, 0, 0, 0, 0, 0, 0, 1, 2.005),"
    "('0001', '2026-11-02', 0, 0, -1, -0.1, 0, 0, 0, 0, 0, 0, 0, 0);"
    "insert into FINANCIALSALES values (2, '2026-11-01', 4, 39.03);"
    "insert into CLERKSALES values (2, 1, '2026-11-01', 4, 39.03), (3, 1, '2026-11-01', 1, 7);"
    "insert into TIMESALES values (1, '2026-11-01', 4, 39.03);"
    "insert into MIXSALES values (5, '2026-11-01', 200, 0);";

class PublishTest : public ChainTest
{
protected:
    PublishTest()
    {
        makeShop(cornerShop);
        change(cornerShop, threeDays);
    }
};

TEST_F(PublishTest, PublishesSalesAndNamesOnce)
{
    const std::pair<QString, const char*> answers[] = {
        {u"SELECT day, plu, waste, count1, value1, value5 FROM plu_sales ORDER BY day"_s,
         "2026-10-31|0001|0|2|0.3|0 2026-11-01|0002|1|3|37.02|2.005 2026-11-02|0001|0|-1|-0.1|0"},
        {u"SELECT plu, description, price1, price2 FROM plus ORDER BY plu"_s,
         "0001|Käse\\5€|1.5| 0002|Tab\there|12.34|"},
        {u"SELECT employee, name FROM employees"_s, "1|Ann"},
        {u"SELECT starts_at, ends_at FROM time_periods"_s, "09:30|12:00"},
        {u"SELECT employee, line, value FROM employee_sales ORDER BY line"_s, "1|2|39.03 1|3|7"},
        {u"SELECT mix, quantity FROM mix_sales"_s, "5|2"},
        {u"SELECT shop_name, first_day, days, quantity, takings, net_sales FROM takings_by_shop"_s,
         "Corner Shop|2026-10-31|3|5|39.23|39.03"},
        {u"SELECT day, quantity, takings, net_sales FROM takings_by_day ORDER BY day"_s,
         "2026-10-31|2|0.30| 2026-11-01|4|39.03|39.03 2026-11-02|-1|-0.10|"},
        {u"SELECT day, group_name, takings FROM takings_by_group WHERE day > '2026-11-01'"_s,
         "2026-11-02|Food|-0.10"},
        {u"SELECT plu, description, takings FROM takings_by_plu WHERE day = '2026-11-01'"_s,
         "0002|Tab\there|39.03"},
        {u"SELECT group_name, quantity, takings FROM group_takings('2026-10-31', '2026-11-01')"_s,
         "Food|6|39.33"},
        {u"SELECT starts_at, takings FROM time_takings('2026-11-01', '2026-11-30')"_s, "09:30|39.03"},
    };
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    for (int run = 0; run < 2; ++run) {
        for (const auto& [sql, rows] : answers)
            EXPECT_EQ(query(sql), rows);
        EXPECT_EQ(published({cornerShop}), "0 0 3 0");
    }
}

TEST_F(PublishTest, RanksTheLastMonthAndListsShopsWithoutACollection)
{
    makeShop(u"Late"_s);
    change(cornerShop, "update PLUSALES set SALESDATE = date('now', 'localtime', '-1 day')");
    makeShop(u"New"_s);
    change(u"Late"_s, "insert into FINANCIALSALES values (2, date('now', 'localtime', '-3 day'), 1, 0.005), "
                      "(2, date('now', 'localtime', '-4 day'), 1, 0.005)");
    EXPECT_EQ(publish({cornerShop, u"Late"_s, u"late"_s, u"New"_s}).code, 0);
    EXPECT_EQ(query(u"SELECT shop_name, days, takings, net_sales FROM takings_by_shop ORDER BY shop"_s),
              "Corner Shop|2|39.23|39.03 Late|2||0.01 New|0||")
        << "rounded once, and days without a PLU count";
    EXPECT_EQ(query(u"SELECT rank, plu, takings FROM best_sellers ORDER BY rank"_s),
              "1|0002|39.03 2|0001|0.20");
    EXPECT_EQ(query(u"SELECT shop_name, days_ago FROM shops_without_collection_yesterday ORDER BY shop"_s),
              "Late|3 New|");
}

TEST_F(PublishTest, FindsLateCorrectionsAndChangedNames)
{
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    const QString former =
        u"SELECT string_agg(published_at::text, ' ') FROM published_days WHERE day <> '2026-11-01'"_s;
    const std::string untouched = query(former);
    const struct {
        const char* sql;
        const char* numbers;
        QString question;
        const char* answer;
    } corrections[] = {
        {"update PLUSALES set VALUE1 = 40 where SALESDATE = '2026-11-01'", "1 6 2 0",
         u"SELECT value1 FROM plu_sales WHERE day = '2026-11-01'"_s, "40"},
        {"insert into MIXSALES values (6, '2026-11-01', 1, 0)", "1 7 2 0",
         u"SELECT count(*) FROM mix_sales"_s, "2"},
        {"delete from CLERKSALES", "1 5 2 0", u"SELECT count(*) FROM employee_sales"_s, "0"},
        {"update GROUPS set DESCRIPTION = 'Meals'", "0 0 3 0",
         u"SELECT DISTINCT group_name FROM takings_by_group"_s, "Meals"},
        {"delete from PLUDATA where PLUNUMBER = '0002'", "0 0 3 0", u"SELECT count(*) FROM plus"_s, "1"},
    };
    for (const auto& [sql, numbers, question, answer] : corrections) {
        change(cornerShop, sql);
        EXPECT_EQ(published({cornerShop}), numbers) << sql;
        EXPECT_EQ(query(question), answer) << sql;
    }
    EXPECT_EQ(query(former), untouched) << "days that did not change are not written";
}

TEST_F(PublishTest, NeverEmptiesAShopThatWasReset)
{
    const QString days = u"SELECT string_agg(to_char(day, 'DD'), ' ' ORDER BY day) FROM published_days"_s;
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    // Reset after the collection of the 1st, one more that day, and the next day; the names went with it.
    for (const char* sql :
         {"delete from PLUSALES", "delete from CLERKSALES", "delete from TIMESALES", "delete from MIXSALES",
          "delete from EMPLOYEE", "update FINANCIALSALES set VALUE = 1",
          "insert into FINANCIALSALES values (2, '2026-11-03', 1, 5)"})
        change(cornerShop, sql);
    const Ended message = publish({cornerShop});
    EXPECT_EQ(message.code, 15);
    EXPECT_EQ(
        message.err.toStdString(),
        "\"Corner Shop\" no longer has 2 published days (2026-10-31 to 2026-11-02) and all employees: they "
        "remain as published. So does what differs in 1 day. Was the shop reset? --vanished keep keeps them, "
        "--vanished remove deletes them.\n");
    EXPECT_EQ(query(days), "31 01 02 03");
    EXPECT_EQ(query(u"SELECT takings, net_sales FROM takings_by_day WHERE day = '2026-11-01'"_s),
              "39.03|39.03");

    EXPECT_EQ(published({cornerShop, u"--vanished"_s, u"keep"_s}), "0 0 1 2");
    EXPECT_EQ(published({cornerShop}, 15), "0 0 2 0") << "the employees are still missing";
    EXPECT_EQ(query(u"SELECT count(*) FROM employees"_s), "1");
    change(cornerShop, "delete from FINANCIALSALES where SALESDATE = '2026-11-03'");
    EXPECT_EQ(published({cornerShop, u"--vanished"_s, u"remove"_s}), "0 0 1 1");
    EXPECT_EQ(query(days + u"; SELECT count(*) FROM employees"_s), "31 01 02 0") << "kept days remain";
}

TEST_F(PublishTest, KeepsWhatVanishedAndTakesLaterCorrections)
{
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    // The 31st is gone, the 1st lost its PLUs, the 2nd was corrected.
    change(cornerShop,
           "delete from PLUSALES where SALESDATE < '2026-11-02'; update PLUSALES set COUNT1 = 5, VALUE1 = 6");
    EXPECT_EQ(published({cornerShop, u"--vanished"_s, u"keep"_s}), "1 1 0 1");
    const QString days = u"SELECT string_agg(takings::text, ' ' ORDER BY day) FROM takings_by_day"_s;
    EXPECT_EQ(query(days), "0.30 39.03 6.00");
    EXPECT_EQ(published({cornerShop}), "0 0 2 0");
    change(cornerShop, "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
                       "('0001', '2026-10-31', 0, 0, 1, 0.5), ('0001', '2026-11-01', 0, 0, 9, 50)");
    EXPECT_EQ(published({cornerShop}), "2 7 1 0");
    EXPECT_EQ(query(days), "0.50 50.00 6.00");
    EXPECT_EQ(query(u"SELECT takings FROM takings_by_shop"_s), "56.50");
}

TEST_F(PublishTest, ACheckMendsWhatDiffersFromTheShop)
{
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    const auto check = [this](const QStringList& words = {}) {
        return runCommand(m_folder.path(), QStringList{u"chain"_s, u"check"_s, cornerShop, u"--to"_s,
                                                       postgres().connection(m_database)} +
                                               words);
    };
    EXPECT_EQ(check().err, QString());
    // Somebody changed the chain by hand; no digest shows it.
    EXPECT_EQ(query(u"UPDATE mix_sales SET quantity = 3; UPDATE plu_months SET takings = 99 WHERE month = "
                    u"'2026-10-01'; "
                    "UPDATE plus SET price1 = 9 WHERE plu = '0002'; INSERT INTO plus VALUES (1, '0009'); "
                    "UPDATE time_periods SET ends_at = ''; DELETE FROM groups"_s),
              "");
    const QString differences =
        u"Corner Shop: plus differs in 0002 and 1 more.\n"
        "Corner Shop: groups differs in 1.\n"
        "Corner Shop: time_periods differs in 1.\n"
        "Corner Shop: 2026-11-01: quantity of mix_sales is 2 in the shop and 3 in the chain.\n"
        "Corner Shop: 2026-10: totals of the month are not those of its days.\n"_s;
    const Ended preview = check({u"--dry-run"_s});
    EXPECT_EQ(preview.code, 8);
    EXPECT_EQ(preview.err, differences);
    EXPECT_EQ(query(u"SELECT quantity FROM mix_sales"_s), "3");
    const Ended mended = check();
    EXPECT_EQ(mended.code, 0);
    EXPECT_TRUE(mended.err.startsWith(differences)) << mended.err.toStdString();
    EXPECT_EQ(
        query(
            u"SELECT quantity FROM mix_sales; SELECT takings FROM plu_takings('2026-10-01', '2026-10-31'); "
            "SELECT plu, price1 FROM plus ORDER BY plu; SELECT description, ends_at FROM groups, time_periods"_s),
        "2 0.30 0001|1.5 0002|12.34 Food|12:00");
    EXPECT_EQ(check().err, QString());
}

TEST_F(PublishTest, APreviewChangesNothing)
{
    const QStringList preview{cornerShop, u"--dry-run"_s};
    EXPECT_EQ(published(preview), "3 8 0 0");
    EXPECT_EQ(query(u"SELECT count(*) FROM pg_namespace WHERE nspname = 'norvane'"_s), "0");
    EXPECT_FALSE(pathExists(m_folder.path("Corner Shop/norvane-chain.ini")));
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    change(cornerShop,
           "delete from PLUSALES where SALESDATE = '2026-10-31'; update FINANCIALSALES set VALUE = 1");
    EXPECT_EQ(published(preview, 15), "0 0 1 1");
    EXPECT_EQ(published(preview + QStringList{u"--vanished"_s, u"remove"_s}), "1 6 1 1");
    EXPECT_EQ(query(u"SELECT count(*), sum(net_sales) FROM takings_by_day"_s), "3|39.03");
}

TEST_F(PublishTest, KnowsAShopByItsFolder)
{
    EXPECT_EQ(published({cornerShop}), "3 8 0 0");
    const QString idFile = cornerShop + u"/norvane-chain.ini"_s;
    const QByteArray former = m_folder.read(qUtf8Printable(idFile));
    const auto expectRefused = [this](const QString& name, const QString& text) {
        const Ended ended = publish({name});
        EXPECT_EQ(ended.code, 14);
        EXPECT_TRUE(ended.err.contains(text)) << ended.err.toStdString();
    };
    // The same name on another machine, in other letters.
    ASSERT_TRUE(QFile::remove(m_folder.path(qUtf8Printable(idFile))));
    ASSERT_TRUE(QDir(m_folder.path()).rename(cornerShop, u"CORNER shop"_s));
    expectRefused(u"corner shop"_s, u"was published from another folder"_s);
    EXPECT_EQ(published({u"CORNER shop"_s, u"--adopt"_s}), "0 0 3 0");
    // The former folder must not write over the shop's days beside it.
    const QByteArray id = m_folder.read("CORNER shop/norvane-chain.ini");
    m_folder.write("CORNER shop/norvane-chain.ini", former);
    expectRefused(u"corner shop"_s, u"was published from another folder"_s);
    m_folder.write("CORNER shop/norvane-chain.ini", id);
    // A copy for another shop.
    makeShop(u"Second"_s);
    m_folder.write("Second/norvane-chain.ini", id);
    expectRefused(u"Second"_s, u"\"Second\" was published as \"Corner Shop\""_s);
    ASSERT_TRUE(QFile::remove(m_folder.path("Second/norvane-chain.ini")));
    EXPECT_EQ(published({u"Second"_s}), "0 0 0 0");
    ASSERT_TRUE(QDir(m_folder.path()).rename(u"Second"_s, u"Third"_s));
    expectRefused(u"Third"_s, u"was published as \"Second\""_s);
    EXPECT_EQ(published({u"Third"_s, u"--adopt"_s}), "0 0 0 0");
    EXPECT_EQ(query(u"SELECT string_agg(name, ', ' ORDER BY shop) FROM shops"_s), "Corner Shop, Third");
}

} // namespace
} // namespace norvane::test
