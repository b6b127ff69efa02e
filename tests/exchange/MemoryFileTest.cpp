// The memory allocation row after a conversion that left a given text.
#include "exchange/MemoryFile.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "shell/CustomerSettings.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>

namespace norvane::exchange
{
namespace
{

/// 39 columns: counts with leading zeros, flags 45 in column 25, 70 in column 36.
constexpr const char* fullLine =
    "00100,020,00500,0000,05,0032,12,040,007,0001,0002,0003,0004,24,010,011,00050,06,00100,00200,00040,7,8,"
    "00099,45,12,76,60,20,04,77,40,02,06,55,70,70,0016,0321\r\n";

class MemoryFileTest : public testing::Test
{
protected:
    MemoryFileTest()
    {
        QDir::setCurrent(m_folder.path());
        m_values.appPath = m_folder.path();
        m_values.customerPath = m_folder.path();
        m_values.databasePath = m_folder.filePath(QStringLiteral("velmar.mdb"));
        store::Database::create(m_values.databasePath, store::catalogue());
        writeWholeFile(settingsPath(m_values), "[SetupOption]\r\nECRModel= 2\r\n");
    }
    ~MemoryFileTest() override { QDir::setCurrent(QDir::rootPath()); }

    /// Runs the procedure for a mem.dat of so many bytes, with a converter that leaves @p text.
    void fileMemory(int bytes, const QByteArray& text)
    {
        writeWholeFile(m_folder.filePath(QStringLiteral("MEM.DAT")), QByteArray(bytes, 'm'));
        FileMemory(m_values, m_boxes, [&](const QString& line) {
            m_lines << line;
            writeWholeFile(QStringLiteral("52.txt"), text);
            return true;
        });
    }
    [[nodiscard]] QString field(const char* name) const
    {
        store::Database database(m_values.databasePath);
        return database.openTable(QStringLiteral("memoryallocation")).value(QLatin1String(name)).toText();
    }
    [[nodiscard]] qint64 rows() const
    {
        store::Database database(m_values.databasePath);
        return database.openTable(QStringLiteral("memoryallocation")).recordCount();
    }

    QTemporaryDir m_folder;
    ApplicationValues m_values;
    norvane::test::RecordingBoxes m_boxes;
    QStringList m_lines;
};

TEST_F(MemoryFileTest, StoresEveryColumnOfTheNewerGeneration)
{
    fileMemory(78, fullLine);
    EXPECT_EQ(m_lines, QStringList{QStringLiteral("convert wVelmarn fMEM.dat t52.txt u352")});
    ASSERT_EQ(rows(), 1);
    const std::pair<const char*, const char*> fields[] = {
        {"PLU", "500"},
        {"PLUSTATUS", "0"},
        {"TIME/EMPLOYEE", "12"},
        {"TRACK4", "4"},
        {"TIMEPERIOD", "24"},
        {"LINES/PLU", "6"},
        {"LINE/EJ", "40"},
        {"LINES/TRANSACTIONS", "99"},
        {"PLUBYLEVEL", "True"},
        {"GROUPBYEMPLOYEE", "False"},
        {"CHECKTRACKSOFT", "False"},
        {"PROJECTIONS", "True"},
        {"STOREBITMAP", "False"},
        {"EATINTIMEPERIOD", "True"},
        {"TRACK1TIME", "True"},
        {"TRACK3TIME", "True"},
        {"TRACK2TIME", "False"},
        {"Z3GROUPTIME", "True"},
        {"Z4GROUPTIME", "True"},
        {"Z5GROUPTIME", "True"},
        {"Z2EMPLOYEE", "True"},
        {"Z4PLU", "True"},
        {"Z5PLU", "False"},
        {"Z1GROUP", "True"},
        {"Z5TIME", "True"},
        {"Z4TIME", "False"},
        {"Z5TIMEKEEP", "True"},
        {"CLERKINTERRUPT", "True"},
        {"Z3MIX", "True"},
        {"Z4MIX", "False"},
        {"CATEGORY", "16"},
    };
    for (const auto& [name, expected] : fields) {
        EXPECT_EQ(field(name).toStdString(), expected) << name;
    }
    EXPECT_EQ(field("HOTLIST").toInt(), 321);
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(MemoryFileTest, LeavesTheCardCountsOfTheOlderGenerationUnset)
{
    fileMemory(77, fullLine);
    EXPECT_EQ(m_lines, QStringList{QStringLiteral("convert wVelmarn fMEM.dat t52.txt u52")});
    EXPECT_EQ(field("CATEGORY"), QString());
    EXPECT_EQ(field("HOTLIST"), QString());
    EXPECT_EQ(field("Z3MIX"), QStringLiteral("True"));
}

TEST_F(MemoryFileTest, ReplacesTheRowAndTakesShortLines)
{
    fileMemory(78, fullLine);
    fileMemory(78, "1,2\r\n\r\n");
    EXPECT_EQ(rows(), 2) << "an empty line is a record too";
    EXPECT_EQ(field("PLU"), QStringLiteral("0"));
    EXPECT_EQ(field("Z1PLU"), QStringLiteral("False"));
    fileMemory(78, "");
    EXPECT_EQ(rows(), 0);
}

TEST_F(MemoryFileTest, AsksForAnUploadTwiceWhenTheFileIsEmpty)
{
    fileMemory(0, fullLine);
    EXPECT_EQ(m_lines, QStringList{QStringLiteral("convert wVelmarn fMEM.dat t52.txt u352")});
    ASSERT_EQ(m_boxes.shown.size(), 2U);
    EXPECT_EQ(m_boxes.shown[0].text, QStringLiteral("You must upload the data from the Velmar"));
    EXPECT_EQ(field("CATEGORY"), QString());
}

TEST_F(MemoryFileTest, FailsOnFlagsThatAreNoNumberAfterEmptyingTheTable)
{
    fileMemory(78, fullLine);
    QByteArray line = fullLine;
    line.replace(",45,12,", ",4x,12,");
    try {
        fileMemory(78, line);
        FAIL() << "no failure";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.failure(), Failure::TypeMismatch);
    }
    EXPECT_EQ(rows(), 0);
}

} // namespace
} // namespace norvane::exchange
