// The command line takes over customers of the former program, one by one and whole installations.
#include "platform/FolderLock.h"
#include "store/engine/Database.h"
#include "tests/platform/TestFolder.h"
#include "tests/road/RunCommand.h"
#include "tests/store/Rows.h"
#include "tests/support/FormerWriter.h"
#include "tests/support/RecordingBoxes.h"

namespace norvane
{
namespace
{

using test::Ended, test::FormerRows, test::FormerType, test::FormerWriter;

FormerRows plus(qint64 promised = -1)
{
    return {u"PLUDATA"_s,
            {{u"PLUNUMBER"_s, FormerType::Text, 18}, {u"DESCRIPTION"_s, FormerType::Text, 16}},
            {{u"000000000000001001"_s, u"Tea"_s}},
            promised};
}

QByteArray database(qint64 promised = -1)
{
    FormerWriter writer;
    writer.add(plus(promised));
    return writer.content();
}

class FormerCustomers : public testing::Test
{
protected:
    FormerCustomers()
    {
        QFile::copy(QStringLiteral(READER), m_folder.path("norvane-former"));
        write("Whole", database());
        write("Short", database(5));
        FormerWriter secret;
        secret.add(plus());
        secret.setPassword("s");
        write("Secret", secret.content());
    }
    void write(const char* customer, const QByteArray& content) const
    {
        m_folder.write((QByteArray(customer) + "/velmar.mdb").constData(), content);
        m_folder.write((QByteArray(customer) + "/setup.ini").constData(), "[SetupOption]\r\nECRModel= 2\r\n");
    }
    [[nodiscard]] Ended run(const QStringList& words) const
    {
        return test::runCommand(m_folder.path(), words);
    }
    [[nodiscard]] QStringList files(const char* customer) const
    {
        return QDir(m_folder.path(customer)).entryList(QDir::Files, QDir::Name);
    }

    test::TestFolder m_folder;
};

TEST_F(FormerCustomers, ConvertsThoseThatLoseNothing)
{
    const Ended looked = run({u"convert"_s, u"Nobody"_s, u"Whole"_s, u"--dry-run"_s});
    EXPECT_EQ(looked.code, 3) << looked.err.toStdString();
    EXPECT_TRUE(looked.out.contains(u"can be converted"_s));
    EXPECT_EQ(files("Whole"), (QStringList{u"setup.ini"_s, u"velmar.mdb"_s}));

    EXPECT_EQ(run({u"check"_s, u"whole"_s}).code, 8) << "a former database is not opened";
    const Ended ended = run({u"convert"_s, u"--all"_s});
    EXPECT_EQ(ended.code, 19) << "the code of the first that fails";
    EXPECT_TRUE(ended.err.contains(u"--accept-losses"_s)) << ended.err.toStdString();
    EXPECT_EQ(test::rowsOf(m_folder.path("Whole/velmar.mdb"), u"select description from pludata"_s), "Tea");
    EXPECT_EQ(m_folder.read("Whole/velmar.former.mdb"), database());
    EXPECT_EQ(m_folder.read("Short/velmar.mdb"), database(5));
    EXPECT_EQ(files("Secret"), (QStringList{u"setup.ini"_s, u"velmar.mdb"_s}));

    test::RecordingBoxes boxes;
    auto lock = FolderLock::take(m_folder.path("Short"), boxes);
    EXPECT_EQ(run({u"convert"_s, u"Short"_s}).code, 5);
    lock.reset();
    EXPECT_EQ(run({u"convert"_s, u"Short"_s}).code, 16);
    EXPECT_EQ(run({u"convert"_s, u"Short"_s, u"--accept-losses"_s}).code, 0);
    EXPECT_EQ(test::rowsOf(m_folder.path("Short/velmar.mdb"), u"select description from pludata"_s), "Tea");
    const Ended again = run({u"convert"_s, u"Short"_s});
    EXPECT_EQ(again.code, 0);
    EXPECT_TRUE(again.out.contains(u"nothing to do"_s));
}

TEST_F(FormerCustomers, AdoptsAnInstallation)
{
    const test::TestFolder former;
    for (const char* file : {"Cafe/VELMAR.MDB", "Bar/velmar.mdb", "Whole/velmar.mdb"})
        former.write(file, database());
    former.write("Cafe/43.dat", "kept");
    former.write("Cafe/velmar.ldb", "in use");
    former.write("Drivers/setup.ini", "");
    const Ended ended = run({u"adopt"_s, former.path(), u"--json"_s});
    EXPECT_EQ(ended.code, 20) << ended.err.toStdString();
    EXPECT_TRUE(ended.out.contains(u"There is a customer or file of this name already."_s));
    EXPECT_EQ(m_folder.read("Cafe/43.dat"), "kept");
    EXPECT_FALSE(QFile::exists(m_folder.path("Cafe/velmar.ldb")));
    EXPECT_FALSE(QFile::exists(m_folder.path("Drivers")));
    for (const char* taken : {"Cafe/velmar.mdb", "Bar/velmar.mdb"})
        EXPECT_EQ(test::rowsOf(m_folder.path(taken), u"select description from pludata"_s), "Tea");
    EXPECT_EQ(m_folder.read("Whole/velmar.mdb"), database());
    EXPECT_EQ(former.read("Cafe/VELMAR.MDB"), database());
    EXPECT_EQ(run({u"adopt"_s, former.path("Drivers")}).code, 3) << "not an installation";
}

} // namespace
} // namespace norvane
