// Customers on this machine, a PostgreSQL, and the command line between them.
#pragma once

#include "platform/FilePaths.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"
#include "tests/platform/TestFolder.h"
#include "tests/road/RunCommand.h"
#include "tests/store/Elsewhere.h"
#include "tests/support/PostgresServer.h"

namespace norvane::test
{

inline const QString cornerShop = QStringLiteral("Corner Shop");

/// The server of the whole test program, up while any test runs.
[[nodiscard]] PostgresServer& postgres();

class ChainTest : public testing::Test
{
protected:
    /// Each test has a separate database.
    ChainTest()
        : m_database(
              QString::fromUtf8(testing::UnitTest::GetInstance()->current_test_info()->name()).toLower())
    {
        postgres().makeDatabase(m_database);
    }

    /// Makes a shop without any record.
    void makeShop(const QString& name) const
    {
        m_folder.write(qUtf8Printable(name + u"/setup.ini"_s), "[SetupOption]\r\nECRModel= 2\r\n");
        store::Database::create(databaseOf(name), store::catalogue());
    }
    [[nodiscard]] QString databaseOf(const QString& name) const
    {
        return joinPath(joinPath(m_folder.path(), name), u"velmar.mdb"_s);
    }
    /// Changes a shop's records, as another program would.
    void change(const QString& shop, const char* sql) const { runElsewhere(databaseOf(shop), sql); }

    [[nodiscard]] Ended publish(const QStringList& words, const QString& connection) const
    {
        return runCommand(m_folder.path(), QStringList{u"publish"_s, u"--to"_s, connection} + words);
    }
    [[nodiscard]] Ended publish(const QStringList& words) const
    {
        return publish(words, postgres().connection(m_database));
    }
    /// The numbers of the listing's line for a shop: days, rows, unchanged, vanished.
    [[nodiscard]] std::string published(const QStringList& words, int code = 0) const
    {
        const Ended ended = publish(words);
        EXPECT_EQ(ended.code, code) << ended.err.toStdString();
        return ended.out.section(u'\n', 1, 1).section(words.front(), 1).simplified().toStdString();
    }
    [[nodiscard]] std::string query(const QString& sql) const
    {
        return postgres()
            .query(m_database, u"SET search_path = norvane; "_s + sql)
            .replace(u'\n', u' ')
            .toStdString();
    }

    QString m_database;
    TestFolder m_folder;
};

} // namespace norvane::test
