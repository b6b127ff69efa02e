// A PostgreSQL that is down, is lost half way, does not fit or allows nothing: reported, and nothing is half
// done.
#include "tests/chain/ChainTest.h"

#include <QtTest>

namespace norvane::test
{
namespace
{

class RefusalTest : public ChainTest
{
protected:
    RefusalTest()
    {
        makeShop(cornerShop);
        change(cornerShop,
               "insert into MIXSALES values (1, '2026-01-05', 100, 0), (1, '2026-02-05', 200, 0), "
               "(1, '2026-03-05', 300, 0)");
    }

    void expectRefused(const Ended& ended, int code, const QString& text) const
    {
        EXPECT_EQ(ended.code, code) << ended.err.toStdString();
        EXPECT_TRUE(ended.err.contains(text)) << ended.err.toStdString();
        EXPECT_EQ(ended.err.count(u'\n'), 1) << "one sentence: " << ended.err.toStdString();
        EXPECT_FALSE(ended.err.contains(u"hunter2"_s)) << ended.err.toStdString();
    }
    [[nodiscard]] std::string months() const
    {
        return query(
            u"SELECT string_agg(to_char(day, 'MM') || '=' || quantity, ' ' ORDER BY day) FROM mix_sales"_s);
    }
    void startPublication(QProcess& command, const QString& name = cornerShop) const
    {
        command.start(QString::fromUtf8(COMMAND),
                      {u"publish"_s, name, u"--to"_s, postgres().connection(m_database), u"--folder"_s,
                       m_folder.path()});
    }
    /// Another connection holds an advisory lock until endHolder().
    [[nodiscard]] bool hold(QProcess& holder, const QString& lock) const
    {
        postgres().queryMeanwhile(holder, m_database,
                                  u"SELECT pg_advisory_lock(%1), pg_sleep(100)"_s.arg(lock));
        return QTest::qWaitFor(
            [this] {
                return query(u"SELECT count(*) FROM pg_locks WHERE locktype = 'advisory' AND granted"_s) ==
                       "1";
            },
            20000);
    }
    void endHolder(QProcess& holder) const
    {
        EXPECT_EQ(
            query(u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE wait_event = 'PgSleep'"_s),
            "t");
        holder.waitForFinished();
    }
    /// Until that many publications wait for a lock that another connection holds.
    [[nodiscard]] bool waitsForLock(const char* publications = "1") const
    {
        return QTest::qWaitFor(
            [&] {
                return query(u"SELECT count(*) FROM pg_stat_activity WHERE datname = current_database() AND "
                             "wait_event_type = 'Lock'"_s) == publications;
            },
            20000);
    }
};

TEST_F(RefusalTest, ReportsWhyNothingIsPublished)
{
    postgres().makeDatabase(u"ascii"_s,
                            u"ENCODING 'SQL_ASCII' LC_COLLATE 'C' LC_CTYPE 'C' TEMPLATE template0"_s);
    postgres().makeDatabase(u"latin"_s,
                            u"ENCODING 'LATIN1' LC_COLLATE 'C' LC_CTYPE 'C' TEMPLATE template0"_s);
    EXPECT_EQ(query(u"CREATE ROLE guest LOGIN"_s), "");
    const auto to = [](const QString& database, const QString& user = u"postgres"_s) {
        return postgres().connection(database, user) + u" password=hunter2"_s;
    };
    const struct {
        QStringList words;
        QString connection;
        int code;
        QString text;
    } refusals[] = {
        {{cornerShop}, u"hunter2"_s, 2, u"is not a connection string such as"_s},
        {{cornerShop}, u"hots=x password=hunter2"_s, 2, u"is not a connection string such as"_s},
        {{cornerShop}, u"postgresql://me:hunter2@[x/chain"_s, 2, u"is not a connection string such as"_s},
        {{cornerShop, u"--vanished"_s, u"yes"_s},
         to(m_database),
         2,
         u"--vanished keep or --vanished remove"_s},
        {{cornerShop, u"nowhere"_s}, to(m_database), 3, u"Customer \"nowhere\" was not found"_s},
        {{cornerShop},
         u"host=/nowhere dbname=chain password=hunter2"_s,
         10,
         u"cannot be reached (database chain at /nowhere)"_s},
        {{cornerShop}, to(u"nothing"_s), 10, u"database \"nothing\" does not exist"_s},
        {{cornerShop}, to(m_database, u"nobody"_s), 10, u"role \"nobody\" does not exist"_s},
        {{cornerShop}, to(m_database, u"guest"_s), 12, u"guest may not make the schema norvane"_s},
        {{cornerShop}, to(u"ascii"_s), 13, u"The encoding SQL_ASCII cannot hold the names"_s},
        {{cornerShop}, to(u"latin"_s), 13, u"The encoding LATIN1 cannot hold the names"_s},
    };
    for (const auto& [words, connection, code, text] : refusals)
        expectRefused(publish(words, connection), code, text);
    EXPECT_EQ(query(u"SELECT count(*) FROM pg_namespace WHERE nspname = 'norvane'"_s), "0");
    EXPECT_FALSE(pathExists(m_folder.path("Corner Shop/norvane-chain.ini")));
    EXPECT_FALSE(pathExists(m_folder.path("nowhere")));
}

TEST_F(RefusalTest, AUserWhoMayOnlyReadPublishesNothing)
{
    EXPECT_EQ(query(u"CREATE ROLE reader LOGIN"_s), "");
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(
        query(
            u"GRANT USAGE ON SCHEMA norvane TO reader; GRANT SELECT ON ALL TABLES IN SCHEMA norvane TO reader"_s),
        "");
    change(cornerShop, "update MIXSALES set QUANTITY = 9");
    expectRefused(publish({cornerShop}, postgres().connection(m_database, u"reader"_s)), 12,
                  u"The rights are insufficient"_s);
    EXPECT_EQ(months(), "01=1 02=2 03=3");
}

TEST_F(RefusalTest, LeavesALaterSchemaUnchanged)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(query(u"UPDATE chain_version SET version = 99"_s), "");
    expectRefused(publish({cornerShop}), 13, u"has version 99 and this program knows versions up to 4"_s);
}

TEST_F(RefusalTest, ContinuesAfterTheConnectionBrokeBetweenRows)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(query(u"TRUNCATE mix_sales, published_days; "
                    "CREATE FUNCTION breakdown() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                    "PERFORM pg_terminate_backend(pg_backend_pid()); RETURN NEW; END $$; "
                    "CREATE TRIGGER breakdown BEFORE INSERT ON mix_sales FOR EACH ROW "
                    "WHEN (NEW.day = '2026-02-05') EXECUTE FUNCTION breakdown()"_s),
              "");
    expectRefused(publish({cornerShop}), 11, u"The connection to PostgreSQL was lost (database "_s);
    EXPECT_EQ(months(), "01=1");
    EXPECT_EQ(query(u"DROP TRIGGER breakdown ON mix_sales"_s), "");
    EXPECT_EQ(published({cornerShop}), "2 2 1 0");
    EXPECT_EQ(months(), "01=1 02=2 03=3");
}

TEST_F(RefusalTest, ContinuesAfterAPowerCut)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    change(cornerShop, "update MIXSALES set QUANTITY = QUANTITY * 10");
    QProcess holder;
    postgres().queryMeanwhile(holder, m_database,
                              u"BEGIN; LOCK norvane.mix_sales_2026_02; SELECT pg_sleep(100)"_s);
    QProcess command;
    startPublication(command);
    ASSERT_TRUE(waitsForLock());
    postgres().cutPower();
    EXPECT_TRUE(command.waitForFinished(-1) && holder.waitForFinished(-1));
    EXPECT_EQ(command.exitCode(), 11) << command.readAllStandardError().toStdString();
    expectRefused(publish({cornerShop}), 10, u"PostgreSQL cannot be reached"_s);
    ASSERT_TRUE(postgres().start());
    EXPECT_EQ(months(), "01=10 02=2 03=3") << "whole months, the rest as before";
    EXPECT_EQ(published({cornerShop}), "2 2 1 0");
    EXPECT_EQ(months(), "01=10 02=20 03=30");
}

TEST_F(RefusalTest, WaitsForNobodyLong)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    // A long report over all months does not keep a new month waiting, nor does that the next report.
    QProcess reader;
    postgres().queryMeanwhile(reader, m_database,
                              u"BEGIN; SELECT count(*) FROM norvane.mix_sales; SELECT pg_sleep(100)"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            return query(u"SELECT count(*) FROM pg_stat_activity WHERE wait_event = 'PgSleep'"_s) == "1";
        },
        20000));
    change(cornerShop, "insert into MIXSALES values (1, '2026-04-05', 400, 0)");
    const QString impatient = postgres().connection(m_database) + u" options='-c lock_timeout=300'"_s;
    EXPECT_EQ(publish({cornerShop}, impatient).code, 0);
    EXPECT_EQ(months(), "01=1 02=2 03=3 04=4");
    endHolder(reader);

    QProcess holder;
    postgres().queryMeanwhile(holder, m_database, u"BEGIN; LOCK norvane.mix_sales; SELECT pg_sleep(100)"_s);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] {
            return query(u"SELECT count(*) FROM pg_stat_activity WHERE wait_event = 'PgSleep'"_s) == "1";
        },
        20000));
    change(cornerShop, "update MIXSALES set QUANTITY = 500 where SALESDATE = '2026-04-05'");
    expectRefused(publish({cornerShop}, impatient), 5, u"Another program holds a lock in PostgreSQL"_s);
    expectRefused(
        publish({cornerShop}, postgres().connection(m_database) + u" options='-c statement_timeout=300'"_s),
        5, u"PostgreSQL takes too long for one step"_s);
    endHolder(holder);
    EXPECT_EQ(published({cornerShop}), "1 1 3 0");
}

TEST_F(RefusalTest, NamesTheServiceThatWasTyped)
{
    m_folder.write("services", "[chain]\nhost=/nowhere\ndbname=secret\n");
    qputenv("PGSERVICEFILE", m_folder.path("services").toUtf8());
    expectRefused(publish({cornerShop}, u"service=chain"_s), 10, u"cannot be reached (service=chain)"_s);
    qunsetenv("PGSERVICEFILE");
}

TEST_F(RefusalTest, TwoPublicationsOfOneShopTakeTurns)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    makeShop(u"Other"_s);
    QProcess holder;
    ASSERT_TRUE(hold(holder, u"20086, 1"_s));
    const Ended ended = publish({cornerShop, u"Other"_s});
    expectRefused(ended, 5, u"Another program is publishing the shop \"Corner Shop\""_s);
    EXPECT_TRUE(ended.out.contains(u"Other"_s)) << "the other shops are published all the same";
    endHolder(holder);
}

TEST_F(RefusalTest, TwoFirstPublicationsMakeOneSchema)
{
    makeShop(u"Other"_s);
    QProcess holder;
    ASSERT_TRUE(hold(holder, u"20086, 0"_s)) << "what the maker of the schema waits for";
    QProcess first;
    QProcess second;
    startPublication(first);
    startPublication(second, u"Other"_s);
    ASSERT_TRUE(waitsForLock("2"));
    endHolder(holder);
    for (QProcess* const each : {&first, &second}) {
        EXPECT_TRUE(each->waitForFinished(-1));
        EXPECT_EQ(each->exitCode(), 0) << each->readAllStandardError().toStdString();
    }
    EXPECT_EQ(query(u"SELECT count(*) FROM shops"_s), "2");
}

TEST_F(RefusalTest, ADayThatChangesWhileItIsSentIsSentAgain)
{
    EXPECT_EQ(publish({cornerShop}).code, 0);
    EXPECT_EQ(query(u"TRUNCATE mix_sales, published_days; "
                    "CREATE FUNCTION halt() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                    "PERFORM pg_advisory_xact_lock(1); RETURN NEW; END $$; "
                    "CREATE TRIGGER halt BEFORE INSERT ON mix_sales FOR EACH ROW "
                    "WHEN (NEW.day = '2026-02-05') EXECUTE FUNCTION halt()"_s),
              "");
    change(cornerShop, "update MIXSALES set QUANTITY = QUANTITY * 10");
    QProcess holder;
    ASSERT_TRUE(hold(holder, u"1"_s));
    QProcess command;
    startPublication(command);
    ASSERT_TRUE(waitsForLock());
    change(cornerShop, "update MIXSALES set QUANTITY = 2100 where SALESDATE = '2026-02-05'");
    endHolder(holder);
    EXPECT_TRUE(command.waitForFinished(-1));
    EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
    EXPECT_EQ(published({cornerShop}), "1 1 2 0");
    EXPECT_EQ(months(), "01=10 02=21 03=30");
}

TEST_F(RefusalTest, ADayWithBadRowsDoesNotStopTheOthers)
{
    makeShop(u"Other"_s);
    change(cornerShop, "insert into MIXSALES values (1, '2026-02-06', 100, 0)");
    const std::pair<const char*, QString> damages[] = {
        {"insert into PLUSALES (SALESDATE, ID, PROMO, WASTE, COUNT1) values ('2026-02-05', '0007', 0, 0, "
         "9e999)",
         u"PLUSALES of 2026-02-05 has plu \"0007\", whose sum is not a finite number."_s},
        {"update PLUSALES set COUNT1 = 1, ID = null", u"PLUSALES of 2026-02-05 has a row without plu."_s},
        {"delete from PLUSALES; update MIXSALES set ID = 9999999999 where SALESDATE = '2026-02-05'",
         u"MIXSALES of 2026-02-05 has mix \"9999999999\", which is not a whole number."_s},
        {"delete from MIXSALES where SALESDATE = '2026-02-05'; insert into MIXSALES values (1, '1970-01-01', "
         "1, 0)",
         u"1970-01-01 is too long ago, or too far ahead, for the chain: was the clock of a register wrong?"_s},
    };
    for (const auto& [sql, text] : damages) {
        change(cornerShop, sql);
        const Ended ended = publish({cornerShop, u"Other"_s});
        expectRefused(ended, 8, u"Corner Shop: "_s + text + u" The day is not published."_s);
        EXPECT_TRUE(ended.out.contains(u"Other"_s)) << ended.out.toStdString();
        EXPECT_EQ(months(), "01=1 02=1 03=3") << "all other days";
    }
}

} // namespace
} // namespace norvane::test
