// Opening what is ours and nothing else, definitions, and what a transaction keeps.
#include "store/Catalogue.h"
#include "tests/store/StoreFolder.h"

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <csignal>
#include <cstdio>
#include <functional>

namespace norvane::store::test
{
namespace
{

const QString items = QStringLiteral("items");

TEST(Database, AForeignOrDamagedFileIsRefusedAndLeftAsItIs)
{
    const StoreFolder folder;
    const QByteArray ours = folder.folder().read("velmar.mdb");
    const std::pair<const char*, QByteArray> kinds[] = {
        {"empty", ""},
        {"text", "[Settings]\r\nPort=1\r\n"},
        {"binary", QByteArray(ours.size(), '\x01')},
        {"cut in the header", ours.left(50)},
        {"cut short", ours.left(ours.size() / 2)},
        {"overwritten at its root", ours.left(100) + QByteArray(3996, '\xFF') + ours.mid(4096)},
        {"of another program", QByteArray(ours).replace(68, 4, QByteArray(4, '\0'))},
        {"of a later version", QByteArray(ours).replace(60, 4, QByteArray("\0\0\0\x09", 4))},
    };
    for (const auto& [kind, content] : kinds) {
        folder.folder().write("velmar.mdb", content);
        EXPECT_EQ(failureOf([&] { Database database(folder.path()); }), 3343) << kind;
        EXPECT_TRUE(folder.folder().read("velmar.mdb") == content) << kind;
    }
    EXPECT_EQ(folder.folder().names(), QStringList{QStringLiteral("velmar.mdb")});
}

TEST(Database, TellsAMissingFileFromOneThatCannotBeRead)
{
    const TestFolder folder;
    EXPECT_EQ(failureOf([&] { Database database(folder.path("velmar.mdb")); }), 53);
    EXPECT_EQ(failureOf([&] { Database database(folder.path("")); }), 75);
    EXPECT_EQ(failureOf([&] { Database::create(folder.path("none/velmar.mdb"), {}); }), 75);
    EXPECT_EQ(folder.names(), QStringList());
}

TEST(Database, OpeningAndReadingWritesNothing)
{
    const StoreFolder folder;
    const QByteArray before = folder.folder().read("velmar.mdb");
    {
        Database database(folder.folder().path("VELMAR.mdb"));
        EXPECT_EQ(database.openTable(items).recordCount(), 0);
    }
    EXPECT_TRUE(folder.folder().read("velmar.mdb") == before);
    EXPECT_EQ(folder.folder().names(), QStringList{QStringLiteral("velmar.mdb")});
}

TEST(Database, TheFileTellsTheDefinitionsOfTheWholeCatalogue)
{
    const StoreFolder folder(catalogue());
    const Database database(folder.path());
    ASSERT_EQ(database.tableNames().size(), catalogue().size());
    for (const TableDefinition& expected : catalogue()) {
        EXPECT_TRUE(same(database.table(expected.name.toLower()), expected)) << qPrintable(expected.name);
    }
    EXPECT_FALSE(database.hasTable(QStringLiteral("norvane_field")));
}

TEST(Database, AnAddedFieldLeavesOldRowsNullUntilTheyAreStored)
{
    const StoreFolder folder;
    Database database(folder.path());
    Database elsewhere(folder.path());
    EXPECT_EQ(elsewhere.table(items).fields.size(), 8);
    auto before = database.openTable(items);
    addItem(before, "1");
    const FieldDefinition key{QStringLiteral("dallaskey"), FieldType::Text, 14, QStringLiteral("none"), true};
    database.addField(items, key);
    EXPECT_EQ(failureOf([&] { database.addField(items, key); }), 3191);
    EXPECT_EQ(failureOf([&] { database.addField(QStringLiteral("none"), key); }), 3265);
    EXPECT_EQ(failureOf([&] { database.addTable(itemTable()); }), 3010);
    addItem(before, "2"); // a recordset opened before goes on with the fields that it knows

    auto after = database.openTable(items);
    EXPECT_TRUE(after.value(key.name).isNull());
    after.edit();
    EXPECT_EQ(failureOf([&] { after.update(); }), 3314);
    after.addNew();
    EXPECT_EQ(after.value(key.name), text("none"));
    elsewhere.refresh();
    EXPECT_EQ(elsewhere.table(items).fields.last().name, key.name);
}

TEST(Database, ATableThatCannotBeMadeLeavesNothingBehind)
{
    const StoreFolder folder;
    Database database(folder.path());
    auto table = itemTable();
    table.name = QStringLiteral("Other");
    table.indexes.last().field = QStringLiteral("nothing");
    const Transaction transaction(database);
    EXPECT_NE(failureOf([&] { database.addTable(table); }), 0);
    EXPECT_FALSE(database.hasTable(table.name));
    table.indexes.clear();
    database.addTable(table);
    EXPECT_EQ(database.openTable(table.name).recordCount(), 0);
}

TEST(Database, CreatingReplacesAFileWithWhatIsLeftOfIt)
{
    const StoreFolder folder;
    folder.folder().write("velmar.mdb", "old");
    folder.folder().write("velmar.mdb-journal", "left by a crash");
    Database::create(folder.path(), {itemTable()});
    EXPECT_EQ(folder.folder().names(), QStringList{QStringLiteral("velmar.mdb")});
    EXPECT_TRUE(Database(folder.path()).hasTable(items));
}

TEST(Transaction, KeepsWhatWasDoneBeforeAFailure)
{
    const StoreFolder folder;
    Database database(folder.path());
    auto records = database.openTable(items);
    EXPECT_EQ(failureOf([&] {
                  Transaction transaction(database);
                  addItem(records, "1");
                  {
                      Transaction inner(database);
                      addItem(records, "2");
                      inner.commit();
                  }
                  addItem(records, "1");
              }),
              3022);
    EXPECT_EQ(Database(folder.path()).openTable(items).recordCount(), 2);
}

#ifdef Q_OS_UNIX

/// Runs @p work in a process of its own. @return its exit code, 99 when it failed.
int inOwnProcess(const std::function<int()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        int result = 99;
        try {
            result = work();
        } catch (const std::exception& failure) {
            std::fputs(failure.what(), stderr);
        }
        _exit(result);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WEXITSTATUS(status);
}

/// Texts long enough that not all of them wait in memory for the end of the transaction.
TableDefinition notesTable()
{
    return {QStringLiteral("notes"), {{QStringLiteral("NOTE"), FieldType::Text, 0, {}, false}}, {}};
}

void addNotes(Database& database, int count)
{
    auto notes = database.openTable(QStringLiteral("notes"));
    for (int i = 0; i < count; ++i) {
        notes.addNew();
        notes.setValue(0, Value::text(std::string(5000, 'n')));
        notes.update();
    }
}

TEST(Transaction, ThatFindsNoRoomFailsAndLeavesTheTableAsItWas)
{
    const StoreFolder folder({notesTable()});
    // Exit code 0 when the failure came and the table was whole after it.
    const int result = inOwnProcess([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit room{1000000, 1000000};
        setrlimit(RLIMIT_FSIZE, &room);
        Database database(folder.path());
        const int failure = failureOf([&] {
            Transaction transaction(database);
            addNotes(database, 1000);
            transaction.commit();
        });
        if (failure != 57 && failure != 61)
            return 1;
        addNotes(database, 3);
        return database.openTable(QStringLiteral("notes")).recordCount() == 3 ? 0 : 2;
    });
    EXPECT_EQ(result, 0);
    EXPECT_EQ(Database(folder.path()).openTable(QStringLiteral("notes")).recordCount(), 3);
}

TEST(Database, AReadOnlyFileIsReadAndRefusesToStore)
{
    const StoreFolder folder;
    {
        Database database(folder.path());
        auto records = database.openTable(items);
        addItem(records, "1");
    }
    QFile::setPermissions(folder.path(),
                          QFileDevice::ReadOwner | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    QFile::setPermissions(folder.folder().path(""), QFileDevice::ReadOwner | QFileDevice::ExeOwner |
                                                        QFileDevice::ReadGroup | QFileDevice::ExeGroup |
                                                        QFileDevice::ReadOther | QFileDevice::ExeOther);
    // The administrator may write everywhere, so another user tries it.
    const int result = inOwnProcess([&] {
        if (geteuid() == 0 && seteuid(65534) != 0)
            return 1;
        Database database(folder.path());
        const Transaction transaction(database);
        auto records = database.openTable(items);
        if (records.value(QStringLiteral("number")).toUtf8() != "1")
            return 2;
        return failureOf([&] { addItem(records, "2"); });
    });
    EXPECT_EQ(result, 75);
    QFile::setPermissions(folder.folder().path(""),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

#endif

} // namespace
} // namespace norvane::store::test
