// Parts of a programme copied to other customers by the command line.
#include "customers/CustomerLog.h"
#include "customers/SafetyCopies.h"
#include "platform/FolderLock.h"
#include "tests/command/CommandTest.h"
#include "tests/store/Rows.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane::test
{
namespace
{

class CopyProgramme : public CommandTest
{
protected:
    CopyProgramme()
    {
        setGroup(m_from, "Drinks");
        setGroup(m_one, "Food");
        setGroup(m_two, "Food");
    }
    static void setGroup(const ApplicationValues& shop, const char* name)
    {
        store::Database database(shop.databasePath);
        addRecord(database, "GROUPS", {{"GROUPNO", whole(1)}, {"DESCRIPTION", text(name)}});
    }
    static std::string group(const ApplicationValues& shop)
    {
        return columnOf(shop.databasePath, "GROUPS", "DESCRIPTION");
    }
    static qsizetype copies(const ApplicationValues& shop)
    {
        return customers::safetyCopies(shop.customerPath).size();
    }
    [[nodiscard]] Ended copy(const QStringList& words) const
    {
        return run(QStringList{u"copy-programme"_s, u"FROM"_s} + words);
    }

    ApplicationValues m_from = m_folder.makeCustomer(u"FROM"_s);
    ApplicationValues m_one = m_folder.makeCustomer(u"ONE"_s);
    ApplicationValues m_two = m_folder.makeCustomer(u"TWO"_s);
    const QStringList m_groups{u"--tables"_s, u"groups"_s};
};

TEST_F(CopyProgramme, ListsTheChangesOfEveryShopThenStoresThem)
{
    const QStringList words = QStringList{u"ONE"_s, u"two"_s, u"Two"_s, u"--json"_s} + m_groups;
    const Ended seen = copy(words + QStringList{u"--dry-run"_s});
    EXPECT_EQ(seen.code, 0) << seen.err.toStdString();
    EXPECT_EQ(seen.out.count(u"\"old\": \"Food\""_s), 2);
    EXPECT_TRUE(seen.out.contains(u"\"shop\": \"TWO\""_s)) << seen.out.toStdString();
    EXPECT_EQ(group(m_one), "Food");
    EXPECT_EQ(copies(m_one), 0);
    EXPECT_EQ(copy(words).out, seen.out);
    EXPECT_EQ(group(m_one) + group(m_two), "DrinksDrinks");
    EXPECT_EQ(customers::safetyCopies(m_one.customerPath).front().reason, u"before programme copy"_s);
    EXPECT_EQ(customers::lastLogged(m_two.customerPath, {u"programme copy from FROM"_s})->result,
              u"0 new, 1 changed, 0 gone"_s);
    EXPECT_EQ(copy(words).out, u"[\n]\n"_s);
    EXPECT_EQ(copies(m_one), 1) << "nothing was different any more";
}

TEST_F(CopyProgramme, AShopThatFailsIsNamedAndTheOthersAreServed)
{
    writeWholeFile(m_one.databasePath, "no database");
    const QStringList words = QStringList{u"ONE"_s, u"NONE"_s, u"TWO"_s} + m_groups;
    const Ended ended = copy(words);
    EXPECT_EQ(ended.code, 8);
    EXPECT_TRUE(ended.err.contains(u"ONE: nothing was copied."_s) &&
                ended.err.contains(u"Customer \"NONE\" was not found"_s))
        << ended.err.toStdString();
    EXPECT_EQ(group(m_two), "Drinks");
    RecordingBoxes boxes;
    const auto lock = FolderLock::take(m_two.customerPath, boxes);
    EXPECT_EQ(copy(QStringList{u"TWO"_s} + m_groups).code, 5);
}

TEST_F(CopyProgramme, SaysWhatAnotherModelDoesNotGet)
{
    writeWholeFile(joinPath(m_one.customerPath, u"setup.ini"_s), "[SetupOption]\r\nECRModel= 3\r\n");
    const Ended ended = copy({u"ONE"_s, u"--tables"_s, u"keyboards,Groups"_s});
    EXPECT_EQ(ended.code, 0);
    EXPECT_TRUE(ended.err.contains(u"ONE: left out: NLU: The keyboards"_s)) << ended.err.toStdString();
    EXPECT_EQ(group(m_one), "Drinks");
    EXPECT_TRUE(customers::lastLogLines(m_one.customerPath, 1).front().contains(u"some left out"_s));
}

TEST_F(CopyProgramme, NeedsTwoShopsAndKnownTables)
{
    expectUsage(QStringList{u"copy-programme"_s, u"FROM"_s, u"ONE"_s, u"from"_s} + m_groups,
                u"\"from\" is the customer whose programme is copied."_s);
    expectUsage({u"copy-programme"_s, u"FROM"_s, u"ONE"_s}, u"Name parts or tables after --tables: plu,"_s);
    expectUsage({u"copy-programme"_s, u"FROM"_s, u"ONE"_s, u"--tables"_s, u"plu,plusales"_s},
                u"There is no part or table \"plusales\"."_s);
    EXPECT_EQ(group(m_one), "Food");
}

} // namespace
} // namespace norvane::test
