// The memory allocation row after a conversion that left a given text.
#include "records/MemoryFile.h"

#include "tests/records/Shop.h"

namespace norvane::records
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
    /// Runs the procedure for a mem.dat of so many bytes, with a converter that leaves @p text.
    void fileMemory(int bytes, const QByteArray& text)
    {
        m_shop.folder.write("MEM.DAT", QByteArray(bytes, 'm'));
        m_shop.converter = [this, text] {
            m_shop.folder.write("52.txt", text);
        };
        FileMemory(m_shop.context());
    }
    /// Compares the row with fields as "name=value", separated by blanks.
    void expectFields(const QString& expected) const
    {
        for (const QString& field : expected.split(u' ')) {
            const QByteArray name = field.section(u'=', 0, 0).toLatin1();
            EXPECT_EQ(m_shop.column("memoryallocation", name), field.section(u'=', 1).toStdString())
                << name.toStdString();
        }
    }

    records::test::Shop m_shop;
};

TEST_F(MemoryFileTest, StoresEveryColumn)
{
    fileMemory(78, fullLine);
    expectFields(u"PLU=500 PLUSTATUS=0 TIME/EMPLOYEE=12 TRACK4=4 TIMEPERIOD=24 LINES/PLU=6 LINE/EJ=40 "
                 "LINES/TRANSACTIONS=99 PLUBYLEVEL=True GROUPBYEMPLOYEE=False CHECKTRACKSOFT=False "
                 "PROJECTIONS=True STOREBITMAP=False EATINTIMEPERIOD=True TRACK1TIME=True TRACK3TIME=True "
                 "TRACK2TIME=False CLERKINTERRUPT=True Z3GROUPTIME=True Z4GROUPTIME=True Z5GROUPTIME=True "
                 "Z2EMPLOYEE=True Z4PLU=True Z5PLU=False Z1GROUP=True Z5TIME=True Z4TIME=False "
                 "Z5TIMEKEEP=True Z3MIX=True Z4MIX=False CATEGORY=16 HOTLIST=0321"_s);
    EXPECT_TRUE(m_shop.boxes.shown.empty());
}

TEST_F(MemoryFileTest, UsesTheGenerationThatTheFileSizeShows)
{
    fileMemory(78, fullLine);
    for (const int bytes : {77, 0}) {
        fileMemory(bytes, fullLine);
        expectFields(u"Z3MIX=True CATEGORY=null HOTLIST=null"_s);
    }
    ASSERT_EQ(m_shop.boxes.shown.size(), 2U) << "an empty memory file shows no generation";
    EXPECT_EQ(m_shop.boxes.shown[0].text, u"You must upload the data from the Velmar"_s);
    const QString line = u"convert wVelmaro fMEM.dat t52.txt "_s;
    EXPECT_EQ(m_shop.commands, (QStringList{line + "u352"_L1, line + "u52"_L1, line + "u352"_L1}));
}

TEST_F(MemoryFileTest, ReplacesTheRowWhateverTheLinesAre)
{
    fileMemory(78, fullLine);
    fileMemory(78, "1,2\r\n\r\n");
    expectFields(u"PLU=0|0 Z1PLU=False|False"_s); // an empty line is a record too
    for (const bool keeps : {false, true}) {
        m_shop.boxes.answers = {keeps};
        const QString refusal = norvane::test::failureTextOf(
            [&] { fileMemory(78, QByteArray(fullLine).replace(",45,12,", ",4x,12,")); });
        EXPECT_TRUE(refusal.startsWith(u"13 52.txt, line 1, column 25: Type mismatch"_s))
            << refusal.toStdString();
        EXPECT_EQ(m_shop.rows("memoryallocation"), keeps ? 0 : 2);
    }
}

} // namespace
} // namespace norvane::records
