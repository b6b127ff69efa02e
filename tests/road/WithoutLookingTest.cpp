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

/// What the program has said at once, wherever the focus is.
class Notices : public QObject
{
    Q_OBJECT

public:
    /// Programs send only the events that somebody has asked for.
    explicit Notices(QDBusConnection bus) : m_bus(std::move(bus))
    {
        auto call =
            QDBusMessage::createMethodCall(u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/registry"_s,
                                           u"org.a11y.atspi.Registry"_s, u"RegisterEvent"_s);
        call.setArguments({u"object:state-changed:showing"_s});
        m_bus.call(call);
        m_bus.connect({}, {}, u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, this,
                      SLOT(hear(QDBusMessage)));
    }
    void waitFor(const QString& notice) const
    {
        test::ReaderDesktop::waitUntil([&] { return m_heard.contains(notice); }, notice);
    }

private Q_SLOTS:
    void hear(const QDBusMessage& event)
    {
        if (event.arguments().value(0) != u"showing"_s)
            return;
        const test::Accessible shown(m_bus, {event.service(), QDBusObjectPath(event.path())});
        if (shown.role() == "notification"_L1)
            m_heard += shown.name();
    }

private:
    QDBusConnection m_bus;
    QStringList m_heard;
};

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
    Notices notices{desktop.bus()};
};

TEST_F(WithoutLooking, APluIsFoundItsPriceChangedAndSaved)
{
    chooseCustomer();
    fetchPlus();
    findPlu("1005");
    EXPECT_EQ(text("PLU number"), u"000000000000001005"_s);
    EXPECT_NE(storedPrice(), "1234.56");
    notices.waitFor(u"PLU 1005, Latte"_s);
    EXPECT_EQ(text("Price 1 level"), u"1"_s);
    EXPECT_EQ(control("combo box", "Group").text(), u"1"_s) << "its groups were not fetched";
    const test::Accessible price = control("text", "Price 1");
    price.setText(u"1234.56"_s);
    press("Save");
    notices.waitFor(u"Saved PLU 1005"_s);
    EXPECT_EQ(storedPrice(), "1234.56");

    press("Exit");
    desktop.chooseMenu({u"Exit"_s});
    EXPECT_EQ(control("alert message", "Exit Program").name(), u"Exit Program"_s);
    press("Yes");
    EXPECT_EQ(desktop.waitForEnd(), 0);
}

} // namespace
} // namespace norvane

#include "WithoutLookingTest.moc"
