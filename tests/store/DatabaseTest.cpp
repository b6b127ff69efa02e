// Opening what is ours and nothing else, fields that come later, and a disk without room.
#include "store/catalogue/DatabaseCheck.h"
#include "store/engine/CommitOnExit.h"
#include "tests/platform/FullDisk.h"
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

const QString testTable = u"items"_s;

TEST(Database, AForeignOrDamagedFileIsRefusedAndLeftUnchanged)
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
    EXPECT_EQ(failureOf([&] { Database database(folder.folder().path("none.mdb")); }), 53);
    EXPECT_EQ(failureOf([&] { Database database(folder.folder().path()); }), 75);
    EXPECT_EQ(folder.folder().names(), QStringList{u"velmar.mdb"_s});
}

TEST(DatabaseCheck, FindsDamageOnEveryPageAndAWrongLength)
{
    const StoreFolder folder;
    {
        Database database(folder.path());
        const CommitOnExit transaction(database);
        auto records = database.openTable(testTable);
        for (int i = 1000; i < 1500; ++i)
            add(records, {{"NUMBER", Value::whole(i)}, {"GROUPNO", Value::whole(i)}});
    }
    EXPECT_EQ(damageOf(folder.path()), QString());
    const QByteArray sound = folder.folder().read("velmar.mdb");
    const auto expectDamage = [&](const QByteArray& content, const std::string& what) {
        folder.folder().write("velmar.mdb", content);
        EXPECT_FALSE(damageOf(folder.path()).isEmpty()) << what;
        EXPECT_TRUE(folder.folder().read("velmar.mdb") == content) << what;
    };
    constexpr qsizetype page = 4096;
    ASSERT_GT(sound.size(), 10 * page);
    for (qsizetype at = page; at < sound.size(); at += page) {
        for (const char filling : {'\0', '\xFF'}) {
            expectDamage(QByteArray(sound).replace(at, page, QByteArray(page, filling)),
                         std::to_string(at / page));
        }
    }
    expectDamage(sound.chopped(100), "cut short");
    expectDamage(sound + QByteArray(100, '\0'), "longer");

    folder.folder().write("velmar.mdb", "of another program");
    EXPECT_EQ(damageOf(folder.path()), QString()) << "is never written to";
    EXPECT_EQ(damageOf(folder.folder().path("none.mdb")), QString());
}

TEST(Database, AnAddedFieldLeavesOldRowsNullUntilTheyAreStored)
{
    const StoreFolder folder;
    Database database(folder.path());
    Database elsewhere(folder.path());
    EXPECT_EQ(elsewhere.table(testTable).fields.size(), 8);
    auto before = database.openTable(testTable);
    add(before, {{"NUMBER", text("1")}});
    const FieldDefinition key{u"dallaskey"_s, FieldType::Text, 14, u"none"_s, true};
    database.addField(testTable, key);
    add(before, {{"NUMBER", text("2")}}); // a recordset opened before continues with the fields that it knows

    auto after = database.openTable(testTable);
    EXPECT_TRUE(after.value(key.name).isNull());
    after.edit();
    EXPECT_EQ(failureOf([&] { after.update(); }), 3314);
    after.addNew();
    EXPECT_EQ(after.value(key.name), text("none"));
    elsewhere.refresh();
    EXPECT_EQ(elsewhere.table(testTable).fields.last().name, key.name);
}

TEST(Transaction, FailsOnAFullDiskAndLeavesTheTableUnchanged)
{
    const QString notes = u"notes"_s;
    const StoreFolder folder({{notes, {{u"NOTE"_s, FieldType::Text, 0, {}, false}}, {}}});
    Database database(folder.path());
    const auto addNotes = [&](int count) {
        auto records = database.openTable(notes);
        // So long that not all of them wait in memory for the end of the transaction.
        for (int i = 0; i < count; ++i)
            add(records, {{"NOTE", Value::text(std::string(5000, 'n'))}});
    };
    const norvane::test::FullDisk disk(1'000'000);
    const int failure = failureOf([&] {
        CommitOnExit transaction(database);
        addNotes(1000);
        transaction.commit();
    });
    EXPECT_TRUE(failure == 57 || failure == 61) << failure;
    addNotes(3);
    EXPECT_EQ(Database(folder.path()).openTable(notes).recordCount(), 3);
}

} // namespace
} // namespace norvane::store::test
