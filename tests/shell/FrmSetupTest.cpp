// The setup dialog against the file: what it shows, what it writes, what it refuses.
#include "shell/FrmSetup.h"

#include "shell/MainStatusBar.h"
#include "tests/platform/FullDisk.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{
namespace
{

using test::failureOf;

class FrmSetupTest : public ShellFixture
{
protected:
    void open() { m_form.emplace(m_values, m_status); }
    QComboBox& combo(const char* name) { return child<QComboBox>(*m_form, name); }
    QLineEdit& text(const char* name) { return child<QLineEdit>(*m_form, name); }
    void press(const char* button) { child<QPushButton>(*m_form, button).click(); }
    QByteArray settings() { return m_folder.read("app/Cafe/setup.ini"); }
    int opening(const QByteArray& lines)
    {
        m_folder.write("app/Cafe/setup.ini", "[setupoption]\r\n" + lines);
        return failureOf([this] { open(); });
    }

    MainStatusBar m_status;
    std::optional<FrmSetup> m_form;
};

/// Lists with their default and their last entry.
constexpr std::pair<const char*, const char*> defaultLists[] = {{"CboPort", "Port 1 Port 4"},
                                                                {"CboBaud", "2400 19200"},
                                                                {"CboConnection", "Direct Modem"},
                                                                {"CboECRs", "1 32"},
                                                                {"CboModel", "Velmar -V2 Dorvik"}};

TEST_F(FrmSetupTest, WithoutAFileTheDefaultsAreShownAndSaveMakesIt)
{
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    open();
    EXPECT_EQ(m_status.panel(), u"Setup.....");
    for (const auto& [name, ends] : defaultLists) {
        const QComboBox& list = combo(name);
        EXPECT_EQ(list.currentText() + u' ' + list.itemText(list.count() - 1), QLatin1String(ends)) << name;
    }
    EXPECT_EQ(text("TxtReset").text() + text("TxtString").text() + text("TxtTelephone").text(), u"AT&FATZ1");
    press("CmdSave");
    EXPECT_EQ(settings(),
              "[SetupOption]\r\nPort= 0\r\nBaud= 0\r\nConnectionType= 0\r\nNoOfECRs=0\r\nModemReset=AT&F\r\n"
              "ModemString=ATZ1\r\nTelephone=\r\nECRModel= 0\r\n");
    EXPECT_FALSE(m_form->isVisible());
}

TEST_F(FrmSetupTest, SaveUpperCasesTheTextsAndKeepsEveryOtherLine)
{
    ASSERT_EQ(opening("; by hand\r\nmodemdelay=45\r\nPORT= 3\r\nNoOfECRs=31\r\nConnectiontype=1\r\n"
                      "ModemReset=\r\n[other]\r\nPort=9\r\n"),
              0);
    EXPECT_EQ(combo("CboPort").currentText(), u"Port 4");
    EXPECT_EQ(combo("CboECRs").currentText(), u"32");
    EXPECT_EQ(text("TxtReset").text(), u"AT&F") << "an empty value counts as absent here";
    text("TxtReset").setText(u"at&f0"_s);
    text("TxtTelephone").setText(u"01234 ext b"_s);
    combo("CboModel").setCurrentIndex(3);
    combo("CboBaud").setCurrentIndex(-1);
    press("CmdSave");
    EXPECT_EQ(settings(),
              "[setupoption]\r\n; by hand\r\nmodemdelay=45\r\nPort= 3\r\nNoOfECRs=31\r\nConnectionType= 1\r\n"
              "ModemReset=AT&F0\r\nBaud=-1\r\nModemString=ATZ1\r\nTelephone=01234 EXT B\r\nECRModel= 3\r\n"
              "[other]\r\nPort=9\r\n");
}

TEST_F(FrmSetupTest, EnterSavesAndEscapeAndExitLeave)
{
    open();
    const std::pair<std::function<void()>, const char*> ways[] = {
        {[this] { QTest::keyClick(&text("TxtReset"), Qt::Key_Escape); }, "ECRModel= 0"},
        {[this] { press("CmdExit"); }, "ECRModel= 0"},
        {[this] { QTest::keyClick(&text("TxtReset"), Qt::Key_Return); }, "ECRModel= 1"}};
    combo("CboModel").setCurrentIndex(1);
    for (const auto& [leave, stored] : ways) {
        m_form->show();
        leave();
        EXPECT_FALSE(m_form->isVisible());
        EXPECT_TRUE(settings().contains(stored)) << settings().constData();
    }
    EXPECT_EQ(m_status.panel(), u"Ready.....");
}

TEST_F(FrmSetupTest, AFailedSaveIsShownInTheStatusBar)
{
    open();
    combo("CboModel").setCurrentIndex(1);
    {
        const test::FullDisk disk(10);
        press("CmdSave");
    }
    EXPECT_EQ(m_status.notice(), u"Nothing was stored: %1 cannot be written, or the disk is full"_s.arg(
                                     m_folder.path("app/Cafe/setup.ini")));
    EXPECT_EQ(settings(), "[SetupOption]\r\nECRModel= 0\r\n");
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(m_status.panel(), u"Ready.....");
}

TEST_F(FrmSetupTest, AnIndexOutsideItsListIsAFailure)
{
    // Of two wrong values the one that is read first is reported.
    const std::pair<const char*, int> cases[] = {{"Port=4", 5},       {"Baud=-2", 5},
                                                 {"NoOfECRs=32", 5},  {"Connectiontype=2", 5},
                                                 {"ECRModel=4", 5},   {"ECRModel=x", 13},
                                                 {"Port=99999", 6},   {"Baud=-1", 0},
                                                 {"NoOfECRs=1.5", 0}, {"Baud=9\r\nECRModel=x", 13}};
    for (const auto& [lines, number] : cases)
        EXPECT_EQ(opening(lines), number) << lines;
}

} // namespace
} // namespace norvane::shell
