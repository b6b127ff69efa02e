// Screen files as their authors write them, odd ones included.
#include "screens/ScreenReader.h"

#include "screens/ComboRows.h"
#include "tests/platform/TestFolder.h"

namespace norvane::screens
{
namespace
{

using test::TestFolder;

class ScreenReaderTest : public testing::Test
{
protected:
    [[nodiscard]] ScreenReader reader(QByteArray text) const
    {
        m_folder.write("test.scn", text.replace("\n", "\r\n"));
        return ScreenReader(m_folder.path("test.scn"));
    }
    [[nodiscard]] ControlDefinition onlyControl(const QByteArray& type, const QByteArray& keys) const
    {
        const auto controls = reader("[Field1]\nControlType=" + type + "\n" + keys + "\n").controls();
        EXPECT_EQ(controls.size(), 1);
        return controls.value(0);
    }

    TestFolder m_folder;
};

TEST_F(ScreenReaderTest, ReadsEverySectionWithoutRegardToCase)
{
    const ScreenDefinition screen =
        reader(
            "[DATABASE]\nTable=GROUPS\nindex1=groupno\n"
            "[formname]\nNAME=\" Groups \"\nHelpHTML=topic\nwidth=6000\nHeight=4000.5\n"
            "[visiblekeys]\nShowAddRecord=yes\nShowNextRecord=Yes\nShowPreviousRecord=1\nShowSaveRecord=no\n"
            "[crystalreport]\nCrystalReportFile=groups.rpt\nCrystalReportTitle=All groups\n")
            .whole();
    EXPECT_EQ(screen.table.table, QStringLiteral("GROUPS"));
    EXPECT_EQ(screen.table.secondIndex, QStringLiteral("groupno")) << "the first index stands in";
    EXPECT_EQ(screen.window.height, 4000.5);
    EXPECT_TRUE(screen.buttons.add && screen.buttons.next);
    EXPECT_FALSE(screen.buttons.previous || screen.buttons.remove || screen.buttons.save ||
                 screen.buttons.print);
    EXPECT_EQ(screen.report.title, QStringLiteral("All groups"));
    EXPECT_TRUE(screen.controls.isEmpty());
}

TEST_F(ScreenReaderTest, AnEmptyOrMissingFileGivesAScreenWithNothing)
{
    const ScreenDefinition screen = ScreenReader(m_folder.path("none.scn")).whole();
    EXPECT_TRUE(screen.table.table.isEmpty() && screen.controls.isEmpty());
    EXPECT_TRUE(screen.buttons.save) << "a screen saves unless it says otherwise";
    EXPECT_TRUE(reader("[visiblekeys]\nShowsaverecord=\nShowAddrecord=\n").buttons().save);
}

TEST_F(ScreenReaderTest, TheScanEndsAtAGapAndPassesOverUnknownTypes)
{
    const auto controls = reader("[Field1]\nControlType=Slider\n[Field2]\nControlType=TEXTcontrol\n"
                                 "[Field3]\nControlType=\n[Field4]\nControlType=CheckControl\n")
                              .controls();
    ASSERT_EQ(controls.size(), 1);
    EXPECT_EQ(controls.front().section, QStringLiteral("Field2"));
}

TEST_F(ScreenReaderTest, ListsMayBeLongerThanOtherValuesAndGiveWayToAQuery)
{
    const QByteArray longText(300, 'x');
    EXPECT_EQ(onlyControl("LabelControl", "Description=" + longText).description.size(), 144);
    EXPECT_EQ(onlyControl("ComboControl", "List=" + longText).list.size(), 255);
    EXPECT_TRUE(onlyControl("ComboControl", "SQLCriteria=select * from x\nList=0;a").list.isEmpty());
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off,")).size(), 1) << "a closing comma makes no row";
    EXPECT_TRUE(rowsOfList({}).isEmpty());
}

TEST_F(ScreenReaderTest, GridColumnsEndAtTheFirstWithoutCaption)
{
    const auto columns =
        onlyControl("GridControl", "SQLCriteria=PLUDATA\nCaption0=No\nlocked0=True\nColwidth0=1500\n"
                                   "Caption1=Price\nnumberFormat1=0.00\nVisible1=0\nCaption3=Lost")
            .gridColumns;
    ASSERT_EQ(columns.size(), 2);
    EXPECT_TRUE(columns[0].locked && columns[0].visible);
    EXPECT_EQ(columns[0].width, 1500);
    EXPECT_EQ(columns[1].numberFormat, QStringLiteral("0.00"));
    EXPECT_FALSE(columns[1].locked || columns[1].visible);
}

TEST_F(ScreenReaderTest, BadNumbersAndWordsTellFileSectionAndKey)
{
    const struct {
        const char* type;
        const char* keys;
        int number;
    } cases[] = {{"TextControl", "Width=wide", 13},          {"TextControl", "Tabindex=1st", 13},
                 {"TextControl", "Tabindex=40000", 6},       {"CheckControl", "Enabled=yes", 13},
                 {"IntegerNumberControl", "Maxvalue=x", 13}, {"GridControl", "Caption0=a\nlocked0=on", 13}};
    for (const auto& [type, keys, number] : cases) {
        try {
            (void)onlyControl(type, keys);
            ADD_FAILURE() << keys;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), number) << keys;
            const QString key = QString::fromLatin1(keys).section(u'\n', -1).section(u'=', 0, 0);
            for (const QString& part : {m_folder.path("test.scn"), QStringLiteral("[Field1]"), key})
                EXPECT_TRUE(failure.text().contains(part)) << failure.what();
        }
    }
}

} // namespace
} // namespace norvane::screens
