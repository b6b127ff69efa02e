// Who may do what in a chain: a shop works with its own rows, a reader reads everything, the owner is not
// hindered.
#include "tests/chain/ChainTest.h"

namespace norvane::test
{
namespace
{

/// A row in every table.
constexpr const char* everything =
    "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO) values ('0001', 'Tea', 1);"
    "insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Drinks');"
    "insert into EMPLOYEE (ID, DESCRIPTION, SIGNONCODE, dallaskey) values (1, 'Ann', 4711, '');"
    "insert into TIMEPERIOD (id, STARTTIME, ENDTIME) values (1, '930', 1200);"
    "insert into MIXNMATCH (MixNo, DESCRIPTION) values (5, 'Deal');"
    "insert into FINANCIALREPORTDESCRIPTORS (ID, financialreport) values (2, 'Net');"
    "insert into EMPLOYEEREPORTDESCRIPTORS (ID, Employeereport) values (2, 'Net');"
    "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
    "('0001', '2026-01-31', 0, 0, 2, 7), ('0001', '2026-02-01', 0, 0, 3, 10.5);"
    "insert into FINANCIALSALES values (2, '2026-01-31', 2, 7);"
    "insert into CLERKSALES values (2, 1, '2026-01-31', 2, 7);"
    "insert into TIMESALES values (1, '2026-01-31', 2, 7);"
    "insert into MIXSALES values (5, '2026-01-31', 200, 0);";
const QString other = u"Other"_s;

bool has(const std::string& answer, const char* text)
{
    return answer.find(text) != std::string::npos;
}

class RightsTest : public ChainTest
{
protected:
    /// The chain has the shop "Other", number 1, and a login for "Corner Shop", number 2.
    RightsTest()
    {
        for (const QString& shop : {cornerShop, other}) {
            makeShop(shop);
            change(shop, everything);
        }
        EXPECT_EQ(publish({other}).code, 0);
    }

    [[nodiscard]] Ended chain(const QStringList& words, const QString& user = u"postgres"_s) const
    {
        return runCommand(m_folder.path(),
                          QStringList{u"chain"_s} + words +
                              QStringList{u"--to"_s, postgres().connection(m_database, user)});
    }
    void addCornerShop() const
    {
        const Ended ended = chain({u"add-shop"_s, u"corner SHOP"_s});
        EXPECT_EQ(ended.code, 0) << ended.err.toStdString();
        EXPECT_TRUE(ended.out.contains(shopUser())) << ended.out.toStdString();
        EXPECT_TRUE(ended.err.contains(u"\\password \"%1\""_s.arg(shopUser()))) << ended.err.toStdString();
    }
    [[nodiscard]] QString shopUser() const { return m_database + u"_shop_2"_s; }
    [[nodiscard]] QString asShop() const { return postgres().connection(m_database, shopUser()); }
    /// What somebody else sees or is refused.
    [[nodiscard]] std::string queryAs(const QString& user, const QString& sql) const
    {
        return query(u"SET SESSION AUTHORIZATION %1; %2"_s.arg(user, sql));
    }
    [[nodiscard]] std::string queryAsShop(const QString& sql) const { return queryAs(shopUser(), sql); }
    [[nodiscard]] QStringList tablesOfShops() const
    {
        return QString::fromStdString(
                   query(u"SELECT c.relname FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid "
                         "AND a.attname = 'shop' WHERE c.relnamespace = 'norvane'::regnamespace "
                         "AND c.relkind IN ('r', 'p') AND NOT c.relispartition ORDER BY 1"_s))
            .split(u' ');
    }
    [[nodiscard]] std::string rowsOf(const QString& table, int shop) const
    {
        return query(
            u"SELECT to_jsonb(t) - 'shop' - 'published_at' FROM %1 t WHERE shop = %2 ORDER BY t"_s.arg(table)
                .arg(shop));
    }
};

TEST_F(RightsTest, AShopPublishesAndChecksWithItsOwnLogin)
{
    addCornerShop();
    EXPECT_EQ(publish({cornerShop}, asShop()).code, 0);
    for (const QString& table : tablesOfShops()) {
        if (table != u"shops"_s) {
            EXPECT_EQ(rowsOf(table, 2), rowsOf(table, 1)) << "as by the owner: " << table.toStdString();
        }
    }
    EXPECT_EQ(query(u"SELECT name FROM shops WHERE shop = 2"_s), "corner SHOP");

    change(cornerShop, "update PLUSALES set VALUE1 = 8 where SALESDATE = '2026-01-31';"
                       "insert into MIXSALES values (5, '2026-03-01', 100, 0)");
    EXPECT_EQ(publish({cornerShop}, asShop()).code, 0);
    EXPECT_EQ(query(u"SELECT takings FROM plu_months WHERE shop = 2 ORDER BY month"_s), "8 10.5");
    EXPECT_EQ(query(u"SELECT count(*) FROM mix_sales WHERE shop = 2"_s), "2") << "and in a new month";

    EXPECT_EQ(query(u"UPDATE plu_sales SET value1 = 1"_s), "");
    const Ended ended = chain({u"check"_s, cornerShop}, shopUser());
    EXPECT_EQ(ended.code, 0);
    EXPECT_TRUE(ended.err.contains(u"2026-01-31: value1 of plu_sales is 8 in the shop and 1 in the chain."_s))
        << ended.err.toStdString();
    EXPECT_EQ(query(u"SELECT value1 FROM plu_sales ORDER BY shop, day"_s), "1 1 8 10.5");

    for (const QStringList& words : {QStringList{other}, {other, u"--dry-run"_s}, {other, u"--adopt"_s}}) {
        const Ended refused = publish(words, asShop());
        EXPECT_EQ(refused.code, 12) << refused.err.toStdString();
        EXPECT_TRUE(refused.err.contains(u"may not publish \"Other\""_s)) << refused.err.toStdString();
    }
    EXPECT_EQ(query(u"UPDATE chain_version SET version = 3"_s), "");
    const Ended former = publish({cornerShop}, asShop());
    EXPECT_EQ(former.code, 12);
    EXPECT_TRUE(former.err.contains(u"may not upgrade the schema norvane"_s)) << former.err.toStdString();
    EXPECT_EQ(chain({u"init"_s}).code, 0);
    // A month for each day of a register's wrong clock would be a table for everybody.
    change(cornerShop, "insert into MIXSALES values (5, '2009-03-01', 100, 0), (5, '2026-03-02', 100, 0)");
    const Ended old = publish({cornerShop}, asShop());
    EXPECT_EQ(old.code, 8);
    EXPECT_TRUE(old.err.contains(u"2009-03-01 is too long ago"_s)) << old.err.toStdString();
    EXPECT_EQ(query(u"SELECT count(*) FROM mix_sales WHERE shop = 2"_s), "3");
}

TEST_F(RightsTest, AStolenComputerHarmsItsOwnShopOnly)
{
    addCornerShop();
    EXPECT_EQ(publish({cornerShop}, asShop()).code, 0);
    EXPECT_EQ(tablesOfShops().size(), 19);
    for (const QString& table : tablesOfShops()) {
        const std::string before = rowsOf(table, 1);
        EXPECT_NE(before, "") << table.toStdString();
        EXPECT_EQ(queryAsShop(u"SELECT DISTINCT shop FROM %1"_s.arg(table)), "2") << table.toStdString();
        if (table == u"shops"_s)
            continue;
        const QString row = QString::fromStdString(
            query(u"SELECT to_jsonb(t) FROM %1 t WHERE shop = 1 LIMIT 1"_s.arg(table)));
        const QString refusals[] = {
            u"INSERT INTO %1 SELECT * FROM jsonb_populate_record(null::%1, '%2')"_s.arg(table, row),
            u"UPDATE %1 SET shop = 1"_s.arg(table)};
        for (const QString& sql : refusals)
            EXPECT_TRUE(has(queryAsShop(sql), "violates row-level security policy")) << sql.toStdString();
        EXPECT_EQ(queryAsShop(u"UPDATE %1 SET shop = 2 WHERE shop = 1; DELETE FROM %1"_s.arg(table)), "");
        EXPECT_EQ(rowsOf(table, 1), before) << table.toStdString();
        EXPECT_EQ(rowsOf(table, 2), "") << table.toStdString();
    }
    const QString denials[] = {
        u"SELECT * FROM plu_sales_2026_01"_s,
        u"INSERT INTO plu_sales_2026_01 (shop) VALUES (1)"_s,
        u"UPDATE plu_sales_2026_01 SET value1 = 0"_s,
        u"DELETE FROM plu_sales_2026_01"_s,
        u"SELECT * FROM takings_by_shop"_s,
        u"UPDATE shops SET name = 'Other'"_s,
        u"DELETE FROM shops"_s,
        u"INSERT INTO shops VALUES (3, 'x', 'x', gen_random_uuid())"_s,
        u"UPDATE chain_version SET version = 99"_s,
        u"TRUNCATE plu_sales"_s,
        u"DROP TABLE plu_sales"_s,
        u"ALTER TABLE plu_sales DISABLE ROW LEVEL SECURITY"_s,
        u"DROP POLICY own_rows ON plu_sales"_s,
        u"CREATE OR REPLACE FUNCTION norvane.shop_user(shop integer) RETURNS text LANGUAGE sql AS 'SELECT 1'"_s,
        u"CREATE TABLE norvane.mine (shop integer)"_s,
        u"CREATE TRIGGER mine BEFORE INSERT ON plu_sales FOR EACH ROW EXECUTE FUNCTION tsvector_update_trigger()"_s,
        u"CREATE ROLE %1_shop_1"_s.arg(m_database),
        u"SET ROLE norvane_reader"_s,
    };
    for (const QString& sql : denials) {
        const std::string answer = queryAsShop(sql);
        EXPECT_TRUE(has(answer, "permission denied") || has(answer, "must be owner"))
            << sql.toStdString() << ": " << answer;
    }
    for (const char* day : {"1999-01-01", "2150-01-01"}) {
        EXPECT_TRUE(
            has(queryAsShop(u"SELECT make_month('%1')"_s.arg(QLatin1StringView(day))), "no month is made"));
    }
    EXPECT_EQ(queryAsShop(u"SET ROLE norvane_shop; SELECT count(*) FROM plus"_s), "0");
    const std::string folder = query(u"SELECT folder_id FROM shops WHERE shop = 1"_s);
    EXPECT_EQ(queryAsShop(u"UPDATE shops SET folder_id = gen_random_uuid()"_s), "");
    EXPECT_EQ(query(u"SELECT folder_id FROM shops WHERE shop = 1"_s), folder);
}

TEST_F(RightsTest, ReadersReadWhatComesLaterAndAreNotSlowed)
{
    // A reader from before the roles.
    EXPECT_EQ(query(u"CREATE ROLE elder; GRANT USAGE ON SCHEMA norvane TO elder; "
                    "GRANT SELECT ON ALL TABLES IN SCHEMA norvane TO elder"_s),
              "");
    EXPECT_EQ(chain({u"init"_s}).code, 0);
    EXPECT_EQ(chain({u"init"_s}).code, 0) << "again";
    EXPECT_EQ(query(u"CREATE ROLE anna IN ROLE norvane_reader; CREATE TABLE later AS SELECT 4 AS n"_s), "");
    change(other, "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1) values "
                  "('0001', '2025-07-01', 0, 0, 1, 5)");
    EXPECT_EQ(published({other}), "1 1 2 0") << "the owner, as before";
    EXPECT_EQ(queryAs(u"anna"_s, u"SELECT value1 FROM plu_sales_2025_07; SELECT n FROM later; "
                                 "SELECT sum(value1) FROM plu_sales; SELECT takings FROM takings_by_shop; "
                                 "SELECT takings FROM plu_takings('2025-07-01', '2026-01-31')"_s),
              "5 4 22.5 22.50 12.00");
    EXPECT_EQ(queryAs(u"elder"_s, u"SELECT sum(value1) FROM plu_sales"_s), "22.5");
    for (const char* sql : {"UPDATE plu_sales SET value1 = 0", "DELETE FROM shops", "DROP TABLE later",
                            "SELECT make_month('2026-05-01')"})
        EXPECT_TRUE(has(queryAs(u"anna"_s, QString::fromUtf8(sql)), "ERROR")) << sql;
    const QString plan =
        u"EXPLAIN (COSTS off) SELECT * FROM plu_takings('2026-01-01', '2026-01-31') WHERE shop_name = 'x'"_s;
    EXPECT_EQ(queryAs(u"anna"_s, plan), query(plan));
    EXPECT_EQ(query(u"SELECT row_security_active('plu_sales')"_s), "f") << "the owner copies as before";
}

TEST_F(RightsTest, TheOwnerNeedsNoSuperuserAndChainsAreSeparate)
{
    const QString second = m_database.left(20) + u"_2"_s;
    EXPECT_EQ(query(u"CREATE ROLE proprietor LOGIN"_s), "");
    postgres().makeDatabase(second, u"OWNER proprietor"_s);
    const auto inSecond = [&](const QStringList& words) {
        return runCommand(m_folder.path(),
                          QStringList{u"chain"_s} + words +
                              QStringList{u"--to"_s, postgres().connection(second, u"proprietor"_s)});
    };
    const Ended refused = inSecond({u"add-shop"_s, cornerShop});
    EXPECT_EQ(refused.code, 12);
    EXPECT_TRUE(refused.err.contains(u"permission denied to create role"_s)) << refused.err.toStdString();
    EXPECT_EQ(query(u"ALTER ROLE proprietor CREATEROLE"_s), "");
    for (int time = 0; time < 2; ++time) {
        const Ended ended = inSecond({u"add-shop"_s, cornerShop});
        EXPECT_EQ(ended.code, 0) << ended.err.toStdString();
        EXPECT_TRUE(ended.out.contains(second + u"_shop_1"_s)) << ended.out.toStdString();
    }
    addCornerShop();
    EXPECT_EQ(publish({cornerShop}, postgres().connection(second, second + u"_shop_1"_s)).code, 0);
    EXPECT_EQ(queryAs(second + u"_shop_1"_s, u"SELECT count(*) FROM plu_sales"_s), "0")
        << "the first shop of another chain";
    EXPECT_EQ(chain({u"init"_s}, second + u"_shop_1"_s).code, 12);
    for (const QStringList& words : {QStringList{u"init"_s, u"--dry-run"_s},
                                     {u"init"_s, u"x"_s},
                                     {u"add-shop"_s},
                                     {u"add-shop"_s, u" "_s},
                                     {u"add-shop"_s, u"x"_s, u"y"_s}})
        EXPECT_EQ(chain(words).code, 2) << words.join(u' ').toStdString();
    EXPECT_EQ(query(u"SELECT count(*) FROM shops"_s), "2");
}

} // namespace
} // namespace norvane::test
