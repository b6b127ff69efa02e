// Files on a real disk: which were written since they were noted.
#include "link/ExpectedFiles.h"

#include "platform/FilePaths.h"
#include "tests/platform/TestFolder.h"

namespace norvane::link
{
namespace
{

class ExpectedFilesTest : public testing::Test
{
protected:
    test::TestFolder folder;
    test::WorkingDirectory here{folder.path()};
};

TEST_F(ExpectedFilesTest, TheSameBytesWrittenAgainAreNotAnOldFile)
{
    folder.write("STATUS.OUT", "0");
    // Many times without a pause: one of them would share a tick of the clock with the writing before.
    for (int round = 0; round < 50; ++round) {
        const ExpectedFiles expected({u"status.out"_s, u"67.txt"_s});
        EXPECT_FALSE(expected.wasWritten(u"status.out"_s));
        if (round % 2 == 0) {
            folder.write("STATUS.OUT", "0");
        } else {
            writeWholeFile(u"status.out"_s, "0"); // by another file that takes its place
        }
        ASSERT_TRUE(expected.wasWritten(u"status.out"_s)) << round;
        ASSERT_FALSE(expected.allWritten());
        ASSERT_FALSE(expected.wasWritten(u"67.txt"_s));
    }
}

TEST_F(ExpectedFilesTest, KeepTheSpellingThatWasWrittenLast)
{
    for (const char* name : {"67.txt", "67.TXT", "67.txt.former", "167.txt"})
        folder.write(name, "old");
    for (const char* name : {"67.Txt", "67.txt"}) {
        const ExpectedFiles expected({u"67.txt"_s});
        EXPECT_EQ(QDir(folder.path()).entryList({u"67.txt"_s}).size(), 1);
        folder.write(name, name);
        expected.keepLatestSpellings();
        EXPECT_TRUE(expected.allWritten());
        EXPECT_EQ(readWholeFile(u"67.TXT"_s), name);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 3);
    }
}

TEST_F(ExpectedFilesTest, AreNamedWithTheirAge)
{
    constexpr std::pair<qint64, const char*> ages[] = {
        {0, "less than a minute"}, {60, "1 minute"},        {59 * 60, "59 minutes"},
        {3600, "1 hour"},          {47 * 3600, "47 hours"}, {48 * 3600, "2 days"},
    };
    for (const auto& [seconds, age] : ages) {
        folder.write("67.TXT", "");
        QFile file(folder.path("67.TXT"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const QDateTime written = QDateTime::currentDateTime().addSecs(-seconds);
        ASSERT_TRUE(file.setFileTime(written, QFile::FileModificationTime));
        EXPECT_EQ(fileAndAge(u"67.txt"_s),
                  u"67.txt of %1, %2 old"_s.arg(written.toString(u"dd/MM/yyyy HH:mm"_s), QLatin1String(age)));
    }
    EXPECT_EQ(fileAndAge(u"1.txt"_s), u"no 1.txt"_s);
}

} // namespace
} // namespace norvane::link
