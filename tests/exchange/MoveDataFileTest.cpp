// Copies of register files between two folders, as they stand on disk afterwards.
#include "exchange/MoveDataFile.h"

#include "platform/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace norvane::exchange
{
namespace
{

class MoveDataFileTest : public testing::Test
{
protected:
    static void put(const QTemporaryDir& folder, const char* name, const QByteArray& content)
    {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    /// Names and contents of a folder: "67.dat=new".
    static QStringList listing(const QTemporaryDir& folder)
    {
        QStringList found;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            found << name + QLatin1Char('=') + QString::fromLatin1(file.readAll());
        }
        return found;
    }
    void move(const char* name) { MoveDataFile(m_source.path(), m_target.path(), QLatin1String(name)); }

    QTemporaryDir m_source;
    QTemporaryDir m_target;
};

TEST_F(MoveDataFileTest, CopiesWithoutRegardToCaseAndLeavesTheSource)
{
    put(m_source, "N67.DAT", "other");
    put(m_source, "67.DAT", "new");
    put(m_target, "67.Dat", "old");
    move("\\67.dat");
    EXPECT_EQ(listing(m_target), QStringList{QStringLiteral("67.Dat=new")});
    EXPECT_EQ(listing(m_source).size(), 2);
}

TEST_F(MoveDataFileTest, DeletesTheTargetWhenThereIsNoSource)
{
    put(m_target, "67.dat", "old");
    put(m_target, "68.dat", "kept");
    move("67.dat");
    EXPECT_EQ(listing(m_target), QStringList{QStringLiteral("68.dat=kept")});
}

TEST_F(MoveDataFileTest, FailsOnAFolderThatTakesNoFile)
{
    put(m_source, "67.dat", "new");
    try {
        MoveDataFile(m_source.path(), m_target.filePath(QStringLiteral("absent")), QStringLiteral("67.dat"));
        FAIL() << "no failure";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.failure(), Failure::PathOrFileAccess);
        EXPECT_TRUE(failure.text().contains(QLatin1String("67.dat")));
    }
}

} // namespace
} // namespace norvane::exchange
