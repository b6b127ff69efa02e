// One program at a time in a folder, tried with a second real program.
#include "platform/FolderLock.h"

#include "tests/platform/TestFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <QProcess>
#include <QSysInfo>

namespace norvane
{
namespace
{

class FolderLockTest : public testing::Test
{
protected:
    /// Starts the second program. @return its first line.
    QByteArray startOther()
    {
        other.start(QStringLiteral(LOCK_HOLDER), {folder.path()});
        EXPECT_TRUE(other.waitForReadyRead(-1));
        return other.readAll().split('\n').first();
    }
    void endOther()
    {
        other.closeWriteChannel();
        other.waitForFinished(-1);
    }
    [[nodiscard]] bool take()
    {
        boxes.shown.clear();
        return FolderLock::take(folder.path(), boxes) != nullptr;
    }

    test::TestFolder folder;
    test::RecordingBoxes boxes;
    QProcess other;
};

TEST_F(FolderLockTest, AnotherProgramLearnsWhoHoldsIt)
{
    ASSERT_EQ(startOther(), "held");
    EXPECT_FALSE(take());
    ASSERT_EQ(boxes.shown.size(), 1U);
    const QString text = boxes.shown.front().text;
    EXPECT_TRUE(text.contains(u"lock_holder, process %1 on the computer %2, since "_s.arg(other.processId())
                                  .arg(QSysInfo::machineHostName())))
        << qPrintable(text);
    endOther();
    const auto mine = FolderLock::take(folder.path(), boxes);
    EXPECT_TRUE(mine) << "free again";
    EXPECT_TRUE(startOther().startsWith("Nothing was started"));
    EXPECT_FALSE(take()) << "another window of this program";
    endOther();
}

TEST_F(FolderLockTest, TheLockOfADeadProgramIsTakenOver)
{
    ASSERT_EQ(startOther(), "held");
    other.kill();
    other.waitForFinished(-1);
    ASSERT_TRUE(folder.names().contains(u"norvane.lock"_s));
    EXPECT_TRUE(take());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(folder.names(), QStringList()) << "nothing is left behind";
}

TEST_F(FolderLockTest, AFileWithoutAnOwnerIsReplacedOnceItIsOld)
{
    for (const char* const content : {"", "garbled"}) {
        folder.write("norvane.lock", content);
        EXPECT_FALSE(take()) << "its owner may be writing it";
        QFile file(folder.path("norvane.lock"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFile::FileModificationTime));
        file.close();
        EXPECT_TRUE(take());
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_TRUE(boxes.shown.front().text.contains("It was replaced."_L1));
        EXPECT_EQ(folder.names(), QStringList());
    }
}

TEST_F(FolderLockTest, AFolderThatCannotBeWrittenToIsReported)
{
    boxes.shown.clear();
    EXPECT_FALSE(FolderLock::take(folder.path("missing"), boxes));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown.front().text.contains(folder.path("missing/norvane.lock")));
}

} // namespace
} // namespace norvane
