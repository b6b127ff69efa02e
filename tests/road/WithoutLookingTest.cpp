// A price change by somebody who does not see the screen: the real program, read and worked as a screen
// reader does it.
#include "platform/FilePaths.h"
#include "tests/store/Rows.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/ReaderDesktop.h"

namespace norvane
{
namespace
{

using test::Spoken;

constexpr auto button = "push button";

class WithoutLooking : public testing::Test
{
protected:
    WithoutLooking()
    {
        EXPECT_TRUE(QFile::copy(QStringLiteral(NORVANE), folder.appFile(u"norvane"_s)));
        desktop.start(folder.appFile(u"norvane"_s));
    }
    void press(const char* words) { control(button, words).act(u"Press"_s); }
    test::Accessible control(const char* role, const char* words)
    {
        return desktop.find(QLatin1String(role), QString::fromUtf8(words));
    }
    void chooseCustomer()
    {
        control("list item", "CORNER SHOP").act(u"Toggle"_s);
        press("Ok");
        EXPECT_EQ(control("label", "Customer Database CORNER SHOP").role(), u"label"_s);
    }
    void fetchPlus()
    {
        desktop.chooseMenu({u"Communications"_s, u"Upload Program Files ECR"_s});
        const test::Accessible plus = control("check box", "PLU");
        plus.act(u"Toggle"_s);
        desktop.waitFor(plus, Spoken::Checked, true);
        press("OK");
        desktop.waitFor(plus, Spoken::Checked, false);
        desktop.waitFor(control(button, "OK"), Spoken::Enabled, true);
        press("Exit");
        desktop.waitUntilGone(u"dialog"_s, u"Upload From ECR"_s);
    }
    void findPlu(const char* number)
    {
        desktop.chooseMenu({u"Files"_s, u"P-Mode Programming"_s, u"PLU"_s, u"PLU"_s});
        press("Find");
        control("text", "Find the record with this PLU number, or the next:").setText(QLatin1String(number));
        press("Find");
        desktop.waitUntilGone(u"dialog"_s, u"Find Record....."_s);
    }
    QString text(const char* words) { return control("text", words).text(); }
    [[nodiscard]] std::string storedPrice() const
    {
        return test::rowsOf(values.databasePath,
                            u"select PRICE1 from PLUDATA where PLUNUMBER = '000000000000001005'"_s);
    }

    test::ProgramFolder folder;
    const ApplicationValues values = folder.makeCustomer(u"Corner Shop"_s);
    test::ReaderDesktop desktop;
};

TEST_F(WithoutLooking, APluIsFetchedItsPriceChangedAndSaved)
{
    chooseCustomer();
    fetchPlus();
    findPlu("1005");
    EXPECT_EQ(text("PLU number"), u"000000000000001005"_s);
    EXPECT_NE(storedPrice(), "1234.56");
    const test::Accessible price = control("text", "Price 1");
    price.setText(u"1234.56"_s);
    press("Save");
    EXPECT_EQ(control("label", "Saved PLU 1005").role(), u"label"_s) << "told in the status bar";
    EXPECT_EQ(storedPrice(), "1234.56");

    press("Exit");
    desktop.chooseMenu({u"Exit"_s});
    EXPECT_EQ(control("alert message", "Exit Program").name(), u"Exit Program"_s);
    press("Yes");
    EXPECT_EQ(desktop.waitForEnd(), 0);
}

} // namespace
} // namespace norvane
