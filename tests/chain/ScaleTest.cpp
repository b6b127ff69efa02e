// What lets a chain grow: totals that are always those of the days, a schema that can be distributed, and
// publications that wait for nobody.
#include "tests/chain/ChainTest.h"

#include <QtTest>

namespace norvane::test
{
namespace
{

class ScaleTest : public ChainTest
{
protected:
    ScaleTest() { makeShop(cornerShop); }

    /// Sales of PLU 0001 for some weeks, and of others now and then.
    void sellForWeeks() const
    {
        change(cornerShop,
               "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO) values ('0001', 'Tea', 1), ('0002', "
               "'Pie', 2), ('0003', 'Cup', null);"
               "insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Drinks'), (2, 'Food');"
               "with recursive days(n) as (select 0 union all select n + 1 from days where n < 120) "
               "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) "
               "select id, date('2026-01-20', '+' || n || ' day'), 0, 0, n % (7 + id), n % (7 + id) * 1.005 "
               "from days, (select '0001' as id union select '0002' union select '0003' union select '0004');"
               "insert into TIMESALES select n, SALESDATE, 2, 3.5 from "
               "(select row_number() over () % 24 as n, SALESDATE from PLUSALES)");
    }
};

/// Sums of the days by a plain select, for each function.
struct Sums {
    QString function;
    QString item;
    QString days;
};
const Sums sums[] = {
    {u"plu_takings"_s, u"plu"_s,
     u"(SELECT day, plu, count1 AS quantity, value1 AS takings FROM plu_sales)"_s},
    {u"group_takings"_s, u"group_no"_s,
     u"(SELECT s.day, p.group_no, s.count1 AS quantity, s.value1 AS takings FROM plu_sales s "
     "LEFT JOIN plus p USING (shop, plu))"_s},
    {u"time_takings"_s, u"period"_s, u"(SELECT day, period, quantity, value AS takings FROM time_sales)"_s},
};

TEST_F(ScaleTest, TotalsOfAnyRangeAreThoseOfItsDays)
{
    sellForWeeks();
    EXPECT_EQ(publish({cornerShop}).code, 0);
    const char* const changes[] = {
        "select 1",
        "update PLUSALES set VALUE1 = 7.25 where SALESDATE = '2026-03-31' and ID = '0001'",
        "delete from PLUSALES where SALESDATE = '2026-02-10' and ID = '0002'",
        "update PLUDATA set GROUPNO = 2 where PLUNUMBER in ('0001', '0003')",
        "delete from PLUDATA where PLUNUMBER = '0002'",
    };
    // Whole months, parts of one, ends in either half of a month, nothing, everything.
    const std::pair<QString, QString> ranges[] = {
        {u"2026-02-01"_s, u"2026-04-30"_s}, {u"2026-02-14"_s, u"2026-04-15"_s},
        {u"2026-01-30"_s, u"2026-03-20"_s}, {u"2026-03-18"_s, u"2026-03-21"_s},
        {u"2026-03-14"_s, u"2026-03-17"_s}, {u"2026-03-31"_s, u"2026-03-31"_s},
        {u"2026-03-05"_s, u"2026-03-04"_s}, {u"2026-04-20"_s, u"infinity"_s},
        {u"-infinity"_s, u"infinity"_s},
    };
    for (const char* change : changes) {
        this->change(cornerShop, change);
        EXPECT_EQ(publish({cornerShop}).code, 0);
        for (const auto& [first, last] : ranges) {
            for (const auto& [function, item, days] : sums) {
                const QString got =
                    u"SELECT %2, quantity, takings FROM %1('%3', '%4')"_s.arg(function, item, first, last);
                const QString expected = u"SELECT %1, sum(quantity), round(sum(takings), 2) FROM %2 d WHERE "
                                         u"day BETWEEN '%3' AND '%4' "
                                         "GROUP BY 1 HAVING sum(quantity) <> 0 OR sum(takings) <> 0"_s.arg(
                                             item, days, first, last);
                EXPECT_EQ(query(got + u" ORDER BY 1"_s), query(expected + u" ORDER BY 1"_s))
                    << qUtf8Printable(function + first + last) << change;
            }
        }
        EXPECT_EQ(query(u"SELECT days, quantity, takings FROM takings_by_shop"_s),
                  query(u"SELECT 121, sum(count1), round(sum(value1), 2) FROM plu_sales"_s));
    }
}

TEST_F(ScaleTest, ANewDayIsAddedToItsMonthOnce)
{
    sellForWeeks();
    EXPECT_EQ(publish({cornerShop}).code, 0);
    const QString totals = u"SELECT plu, takings FROM plu_months WHERE month = '2026-05-01' AND plu > '0003' "
                           "ORDER BY plu; SELECT days, takings FROM shop_months WHERE month = '2026-05-01'; "
                           "SELECT takings FROM group_months WHERE month = '2026-05-01' AND group_no = -1; "
                           "SELECT takings FROM time_months WHERE month = '2026-05-01' AND period = 99"_s;
    change(cornerShop, "update PLUSALES set COUNT1 = 1, VALUE1 = 1 where SALESDATE >= '2026-05-01'");
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(query(totals), "0004|20 20|80 40");
    change(cornerShop, "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
                       "('0004', '2026-05-30', 0, 0, 1, 0.25), ('0009', '2026-05-30', 0, 0, 1, 5);"
                       "insert into TIMESALES values (99, '2026-05-30', 2, 5.25)");
    const std::string added = "0004|20.25 0009|5 21|85.25 45.25 5.25";
    EXPECT_EQ(published({cornerShop}), "1 3 121 0");
    EXPECT_EQ(query(totals), added);
    // Somebody has deleted the entry of the day, and not its sales.
    EXPECT_EQ(query(u"DELETE FROM published_days WHERE day = '2026-05-30'"_s), "");
    EXPECT_EQ(published({cornerShop}), "1 3 121 0");
    EXPECT_EQ(query(totals), added);
    change(cornerShop, "delete from PLUSALES where SALESDATE = '2026-05-30' and ID = '0009'");
    EXPECT_EQ(published({cornerShop}), "1 2 121 0");
    EXPECT_EQ(query(totals), "0004|20.25 21|80.25 40.25 5.25");
}

TEST_F(ScaleTest, PublishesNoRowsOfNothingButZeros)
{
    change(cornerShop, "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
                       "('0001', '2026-01-05', 0, 0, 0, 0), ('0002', '2026-01-05', 1, 0, 0, 0), "
                       "('0003', '2026-01-05', 0, 0, 1, 2), ('0003', '2026-01-05', 0, 0, -1, -2), "
                       "('0001', '2026-01-06', 0, 0, 0, 0);"
                       "insert into FINANCIALSALES values (2, '2026-01-06', 0, 0)");
    EXPECT_EQ(published({cornerShop}), "2 1 0 0");
    EXPECT_EQ(query(u"SELECT plu FROM plu_sales"_s), "0002");
    EXPECT_EQ(query(u"SELECT day, takings, net_sales FROM takings_by_day ORDER BY day"_s),
              "2026-01-05|0.00| 2026-01-06|0.00|0.00")
        << "a day without sales is not a day without a collection";
}

TEST_F(ScaleTest, UpgradesAFormerSchemaInPlace)
{
    const QString file = QString::fromUtf8(CHAIN_DATA "/former-schema.sql");
    EXPECT_FALSE(postgres().query(m_database, u"\\i %1"_s.arg(file)).contains(u"ERROR"_s));
    const QString days = u"SELECT day, quantity, takings, net_sales FROM takings_by_day ORDER BY day"_s;
    const std::string before = query(days);
    EXPECT_FALSE(before.empty());
    EXPECT_EQ(query(u"CREATE VIEW public.mine AS SELECT * FROM norvane.takings_by_shop"_s), "");
    m_folder.write("Corner Shop/norvane-chain.ini",
                   "[Chain]\r\nShop=3d87685f-8267-4b16-803f-a5e58b509a66\r\n");
    change(cornerShop, "insert into MIXSALES values (5, '2026-12-01', 100, 0)");
    // The shop itself was reset: what is published cannot be published again.
    EXPECT_EQ(published({cornerShop, u"--vanished"_s, u"keep"_s}), "1 1 0 4");
    EXPECT_EQ(query(days), before + " 2026-12-01|||");
    EXPECT_EQ(query(u"SELECT days, takings FROM public.mine; SELECT takings FROM plu_takings('2026-10-31', "
                    "'2026-11-30') ORDER BY plu; SELECT period, takings FROM time_months"_s),
              "5|39.33 2.21 37.02 1|37.02");
    EXPECT_EQ(query(u"SELECT count(*) FROM plu_sales WHERE count1 = 0"_s), "0")
        << "rows of nothing but zeros";
    makeShop(u"Other"_s);
    EXPECT_EQ(published({u"Other"_s}), "0 0 0 0");
    EXPECT_EQ(query(u"SELECT shop FROM shops ORDER BY shop"_s), "1 2");
}

/// What a cluster that distributes by shop asks of tables, keys and statements. Its extension is not part of
/// the distribution that this is built for.
TEST_F(ScaleTest, CanBeDistributedByShop)
{
    sellForWeeks();
    const QString logged = postgres().connection(m_database) + u" options='-c log_statement=all'"_s;
    const auto chain = [&](const QStringList& words) {
        return runCommand(m_folder.path(), QStringList{u"chain"_s} + words + QStringList{u"--to"_s, logged})
            .code;
    };
    EXPECT_EQ(chain({u"init"_s}), 0);
    EXPECT_EQ(publish({cornerShop}, logged).code, 0);
    change(cornerShop, "update PLUDATA set GROUPNO = 2; delete from PLUSALES where SALESDATE < '2026-02-01';"
                       "insert into MIXSALES values (5, '2026-06-01', 100, 0)");
    EXPECT_EQ(publish({cornerShop, u"--vanished"_s, u"remove"_s}, logged).code, 0);
    EXPECT_EQ(chain({u"check"_s, cornerShop}), 0);
    const QString spread =
        u"FROM pg_class c WHERE c.relnamespace = 'norvane'::regnamespace AND c.relkind IN "
        "('r', 'p') AND NOT c.relispartition AND relname NOT IN ('shops', 'chain_version')"_s;
    const std::pair<const char*, QString> offences[] = {
        {"a table without the shop",
         u"SELECT relname %1 AND NOT EXISTS (SELECT FROM pg_attribute a WHERE attrelid = c.oid AND attname = "
         "'shop' AND attnotnull AND atttypid = 'integer'::regtype)"_s.arg(spread)},
        {"a unique key without the shop",
         u"SELECT i.indexrelid::regclass FROM pg_index i WHERE indisunique AND indrelid IN (SELECT c.oid %1) "
         u"AND "
         "NOT EXISTS (SELECT FROM pg_attribute WHERE attrelid = indrelid AND attname = 'shop' AND attnum = "
         "ANY(indkey))"_s.arg(spread)},
        {"a foreign key",
         u"SELECT conname FROM pg_constraint WHERE connamespace = 'norvane'::regnamespace AND contype = 'f'"_s},
        {"a column that counts by itself", u"SELECT attrelid::regclass FROM pg_attribute WHERE attidentity "
                                           u"<> '' AND attrelid IN (SELECT oid FROM "
                                           "pg_class WHERE relnamespace = 'norvane'::regnamespace)"_s},
        {"a trigger or a rule",
         u"SELECT tgname FROM pg_trigger WHERE tgrelid IN (SELECT c.oid %1) UNION ALL SELECT rulename FROM "
         "pg_rewrite WHERE ev_class IN (SELECT c.oid %1)"_s.arg(spread)},
        {"a policy with a query in it",
         u"SELECT polname FROM pg_policy WHERE pg_get_expr(polqual, polrelid) ~ 'SELECT'"_s},
        {"a default that cannot be evaluated beforehand",
         u"SELECT pg_get_expr(adbin, adrelid) FROM pg_attrdef WHERE adrelid IN (SELECT c.oid %1) AND "
         "pg_get_expr(adbin, adrelid) NOT IN ('now()', 'false')"_s.arg(spread)},
    };
    for (const auto& [what, sql] : offences)
        EXPECT_EQ(query(sql), "") << what;

    QFile guide(QString::fromUtf8(CHAIN_GUIDE));
    ASSERT_TRUE(guide.open(QIODevice::ReadOnly));
    static const QRegularExpression distributed(u"create_distributed_table\\('norvane\\.(\\w+)', 'shop'"_s);
    QStringList named;
    for (auto each = distributed.globalMatch(QString::fromUtf8(guide.readAll())); each.hasNext();)
        named << each.next().captured(1);
    named.sort();
    EXPECT_EQ(named.join(u' ').toStdString(),
              query(u"SELECT relname COLLATE \"C\" %1 ORDER BY 1"_s.arg(spread)))
        << "the statements of docs/chain.md";

    const QString log = postgres().query(
        m_database, u"SELECT pg_read_file(current_setting('data_directory') || '/../log')"_s);
    static const QRegularExpression each(
        u"(?:LOG:  .*: |\\n\\t)((?:SELECT|INSERT INTO|UPDATE|DELETE FROM|COPY|\\() ?.*)"_s);
    const QRegularExpression touched(u"(FROM|JOIN|INTO|UPDATE|COPY) (%1)\\b"_s.arg(named.join(u'|')));
    static const QRegularExpression ofOneShop(
        u"shop = (\\$1|\\d)|\\(shop,|SELECT coalesce\\(max\\(shop\\)"_s);
    static const QRegularExpression refused(
        u"DO UPDATE SET.*\\(|\\b(now|clock_timestamp|random|gen_random_uuid|nextval)\\("_s);
    int statements = 0;
    for (auto match = each.globalMatch(log); match.hasNext();) {
        const QString statement = match.next().captured(1);
        if (!touched.match(statement).hasMatch())
            continue;
        ++statements;
        EXPECT_TRUE(ofOneShop.match(statement).hasMatch())
            << "goes to one server: " << statement.toStdString();
        EXPECT_FALSE(refused.match(statement).hasMatch()) << statement.toStdString();
    }
    EXPECT_GT(statements, 100);
}

TEST_F(ScaleTest, DescribesEveryTableAndColumn)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(query(u"SELECT c.relname, a.attname FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid "
                    "WHERE c.relnamespace = 'norvane'::regnamespace AND c.relkind IN ('r', 'p', 'v') "
                    "AND NOT c.relispartition AND a.attnum >= 0 AND NOT a.attisdropped "
                    "AND (col_description(c.oid, a.attnum) IS NULL OR obj_description(c.oid) IS NULL)"_s),
              "");
}

} // namespace
} // namespace norvane::test
