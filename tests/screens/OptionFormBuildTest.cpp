// How a screen file becomes a window.
#include "screens/FieldPanel.h"
#include "screens/GridControl.h"
#include "tests/screens/FormFixture.h"
#include "ui/ValueList.h"

#include <QCheckBox>
#include <QLabel>

namespace norvane::screens
{
namespace
{

using test::failureOf;
using test::ShownBox;

class OptionFormBuildTest : public test::FormFixture
{
protected:
    const QByteArray m_groups = "[Database]\ntable=GROUPS\nIndex1=groupno\n";
};

TEST_F(OptionFormBuildTest, PlacesControlsInPixelsAndNamesThemByElement)
{
    const Form form =
        open(m_groups + "[FormName]\nName=Groups\nWidth=9000\nHeight=4500\n"
                        "[Field1]\nControlType=LabelControl\nDescription=Na&me\nX=150\nY=300\nWidth=1500\n"
                        "[Field2]\nControlType=TextControl\nX=1800\nY=300\nWidth=3000\nVisible=True\n"
                        "[Field3]\nControlType=TextControl\nX=1800\nY=750\n"
                        "[Field4]\nControlType=LabelControl\nDescription=Hidden\n"
                        "[Field5]\nControlType=LabelControl\nDescription=R && D\nX=150\nY=1200\nVisible=1\n");
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Groups"));
    EXPECT_EQ(form->size(), QSize(600, 300));
    EXPECT_EQ(control(form, "TextControl_1")->geometry().topLeft(), QPoint(120, 20));
    EXPECT_EQ(control(form, "TextControl_1")->width(), 200);
    EXPECT_FALSE(control(form, "TextControl_2")->isVisible()) << "hidden unless the file shows it";
    EXPECT_TRUE(control(form, "LabelControl_0")->isVisible()) << "the first label is in view";
    EXPECT_FALSE(control(form, "LabelControl_1")->isVisible());
    EXPECT_EQ(control(form, "TextControl_1")->accessibleDescription(), QStringLiteral("Name"));
    EXPECT_EQ(control<QLabel>(form, "LabelControl_0")->buddy(), control(form, "TextControl_1"));
    EXPECT_EQ(control<QLabel>(form, "LabelControl_2")->text(), QStringLiteral("R & D"));
}

TEST_F(OptionFormBuildTest, ThePanelEndsBelowTheLargestCountedValue)
{
    const struct {
        const char* lowest;
        int height; ///< pixels
    } cases[] = {
        {"ControlType=TextControl\nY=2990", 200},  {"ControlType=FindControl\nY=2990", 200},
        {"ControlType=ComboControl\nY=2990", 200}, {"ControlType=CheckControl\nY=2990", 21},
        {"ControlType=LabelControl\nY=2990", 21},  {"ControlType=GridControl\nY=9000\nHeight=2990", 200}};
    for (const auto& [lowest, height] : cases) {
        const Form form =
            open(m_groups + "[Field1]\nControlType=IntegerNumberControl\nY=305\n[Field2]\n" + lowest + "\n");
        EXPECT_EQ(control<FieldPanel>(form, "CSPict1")->widget()->height(), height) << lowest;
    }
}

TEST_F(OptionFormBuildTest, ButtonsAreThoseOfTheFile)
{
    const Form form =
        open(m_groups + "[visiblekeys]\nShownextrecord=YES\nShowdeleterecord=yes\nShowprintrecord=YES\n");
    QByteArray shown;
    for (const char* name : {"PreviousRecord", "NextRecord", "AddRecord", "DeleteRecord", "SaveRecord",
                             "PrintReport", "ExitForm"})
        shown += control(form, name)->isVisible() ? 'x' : '.';
    EXPECT_EQ(shown, ".x.xxxx");
    EXPECT_FALSE(control(form, "PrintReport")->isEnabled()) << "nothing behind it";
    press(form, "ExitForm");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(OptionFormBuildTest, TabFollowsTheFilesOrderAndEndsInTheButtons)
{
    const Form form = open(
        m_groups + "[visiblekeys]\nShownextrecord=YES\n"
                   "[Field1]\nControlType=TextControl\nVisible=True\nTabindex=2\n"
                   "[Field2]\nControlType=CheckControl\nVisible=True\n"
                   "[Field3]\nControlType=IntegerNumberControl\nVisible=True\nTabindex=1\nReadOnly=True\n");
    EXPECT_EQ(QApplication::focusWidget(), control(form, "TextControl_1")) << "the first that takes an entry";
    control(form, "IntegerNumberControl_1")->setFocus();
    QStringList visited;
    for (int stop = 0; stop < 6; ++stop) {
        visited += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(
        visited.join(u' '),
        QStringLiteral("IntegerNumberControl_1 TextControl_1 CheckControl_1 NextRecord SaveRecord ExitForm"));
}

TEST_F(OptionFormBuildTest, ControlsTakeTheirPropertiesFromTheFile)
{
    const Form form = open(
        m_groups + "[Field1]\nControlType=TextControl\nVisible=True\nMaxvalue=5\nCharacters=numeric\n"
                   "[Field2]\nControlType=CheckControl\nVisible=True\nEnabled=False\nDescription=&Tax\n"
                   "[Field3]\nControlType=ComboControl\nVisible=True\nValuecol=1\nList=a;5,b;6\n"
                   "[Field4]\nControlType=ComboControl\nVisible=True\nDataField=LINK\nColumnwidth=450;1500\n"
                   "SQLCriteria=select GROUPNO, DESCRIPTION from GROUPS order by GROUPNO\n");
    type(form, "TextControl_1", "12a3456");
    EXPECT_EQ(text(form, "TextControl_1"), QStringLiteral("12345"));
    EXPECT_FALSE(control(form, "CheckControl_1")->isEnabled());
    EXPECT_EQ(control<QCheckBox>(form, "CheckControl_1")->text(), QStringLiteral("&Tax"));
    auto* const fixed = control<ui::ValueList>(form, "ComboControl_1");
    QTest::keyClick(fixed, Qt::Key_Down);
    EXPECT_EQ(fixed->value(), QStringLiteral("5"));
    auto* const groups = control<ui::ValueList>(form, "ComboControl_2");
    EXPECT_EQ(groups->count(), 4);
    EXPECT_EQ(groups->currentText(), QStringLiteral("3  Food"));
}

TEST_F(OptionFormBuildTest, ATableThatIsNotGivenIsToldAndThenFails)
{
    const struct {
        const char* screen;
        std::vector<const char*> missing;
    } cases[] = {{"", {"database table", "index"}},
                 {"[Database]\nIndex1=groupno\n", {"database table"}},
                 {"[Database]\ntable=GROUPS\n", {"index"}}};
    for (const auto& [screen, missing] : cases) {
        m_boxes.shown.clear();
        m_shop.screen(screen);
        EXPECT_EQ(failureOf([&] { open(); }), 3265) << screen;
        std::vector<ShownBox> expected;
        expected.reserve(missing.size());
        for (const char* what : missing) {
            expected.push_back({QStringLiteral("No %1 defined in %2 file")
                                    .arg(QLatin1String(what), m_shop.values.screenFilePath),
                                QStringLiteral("Initialisation Error"), BoxIcon::Critical});
        }
        EXPECT_EQ(m_boxes.shown, expected) << screen;
    }
}

TEST_F(OptionFormBuildTest, FaultsOfTheFileFailWithItsName)
{
    const struct {
        const char* screen;
        int number;
    } cases[] = {
        {"[Database]\ntable=NOTABLE\nIndex1=groupno\n", 3265},
        {"[Database]\ntable=GROUPS\nIndex1=noindex\n", 3265},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=TextControl\nDatafield=NOFIELD\n",
         3265},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=TextControl\nX=left\n", 13},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=ComboControl\nSQLCriteria=select a "
         "from b\n",
         3061},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=ComboControl\nSQLCriteria=select "
         "GROUPNO from GROUPS\n",
         3265},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=GridControl\nSQLCriteria=NOTABLE\n",
         3061},
        {"[Database]\ntable=GROUPS\nIndex1=groupno\n[Field1]\nControlType=IntegerNumberControl\nDatafield="
         "LONGLINK\n",
         13}};
    for (const auto& [screen, number] : cases) {
        m_shop.screen(screen);
        try {
            open();
            ADD_FAILURE() << screen;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), number) << screen;
            EXPECT_TRUE(failure.text().contains(m_shop.values.screenFilePath)) << failure.what();
        }
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormBuildTest, AnEmptyTableHasNothingToShow)
{
    m_shop.execute("delete * from GROUPS");
    m_shop.screen(m_groups + "[Field1]\nControlType=TextControl\nDatafield=DESCRIPTION\n");
    EXPECT_EQ(failureOf([&] { open(); }), 3021);
}

} // namespace
} // namespace norvane::screens
