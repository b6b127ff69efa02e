// The setup dialog against the file: what it shows, what it writes, what it refuses.
#include "shell/FrmSetup.h"

#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using test::failureOf;

class FrmSetupTest : public ShellFixture
{
protected:
    void open() { m_form.emplace(m_values, m_status); }
    QComboBox& combo(const QString& name) { return *m_form->findChild<QComboBox*>(name); }
    QLineEdit& text(const QString& name) { return *m_form->findChild<QLineEdit*>(name); }
    void press(const QString& button) { m_form->findChild<QPushButton*>(button)->click(); }
    int opening(const QByteArray& lines)
    {
        m_folder.write("app/Cafe/setup.ini", "[setupoption]\r\n" + lines);
        return failureOf([this] { open(); });
    }

    MainStatusBar m_status;
    std::optional<FrmSetup> m_form;
};

TEST_F(FrmSetupTest, WithoutAFileTheDefaultsAreShownAndSaveMakesIt)
{
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    open();
    EXPECT_EQ(m_status.panel(), u"Setup.....");
    const std::pair<QString, QStringList> lists[] = {{u"CboPort"_s, {u"Port 1"_s, u"Port 4"_s}},
                                                     {u"CboBaud"_s, {u"2400"_s, u"19200"_s}},
                                                     {u"CboConnection"_s, {u"Direct"_s, u"Modem"_s}},
                                                     {u"CboECRs"_s, {u"1"_s, u"32"_s}},
                                                     {u"CboModel"_s, {u"Velmar -V2"_s, u"Dorvik"_s}}};
    for (const auto& [name, ends] : lists) {
        EXPECT_EQ(combo(name).currentIndex(), 0) << name.toStdString();
        EXPECT_EQ(combo(name).itemText(0), ends[0]);
        EXPECT_EQ(combo(name).itemText(combo(name).count() - 1), ends[1]);
    }
    EXPECT_EQ(text(u"TxtReset"_s).text(), u"AT&F");
    EXPECT_EQ(text(u"TxtString"_s).text(), u"ATZ1");
    EXPECT_EQ(text(u"TxtTelephone"_s).text(), QString());
    press(u"CmdSave"_s);
    EXPECT_EQ(m_folder.read("app/Cafe/setup.ini"),
              "[SetupOption]\r\nPort= 0\r\nBaud= 0\r\nConnectionType= 0\r\nNoOfECRs=0\r\nModemReset=AT&F\r\n"
              "ModemString=ATZ1\r\nTelephone=\r\nECRModel= 0\r\n");
    EXPECT_FALSE(m_form->isVisible());
}

TEST_F(FrmSetupTest, SaveUpperCasesTheTextsAndKeepsEveryOtherLine)
{
    ASSERT_EQ(opening("; by hand\r\nmodemdelay=45\r\nPORT= 3\r\nNoOfECRs=31\r\nConnectiontype=1\r\n"
                      "ModemReset=\r\n[other]\r\nPort=9\r\n"),
              0);
    EXPECT_EQ(combo(u"CboPort"_s).currentText(), u"Port 4");
    EXPECT_EQ(combo(u"CboECRs"_s).currentText(), u"32");
    EXPECT_EQ(text(u"TxtReset"_s).text(), u"AT&F") << "an empty value counts as absent here";
    text(u"TxtReset"_s).setText(u"at&f0"_s);
    text(u"TxtTelephone"_s).setText(u"01234 ext b"_s);
    combo(u"CboModel"_s).setCurrentIndex(3);
    combo(u"CboBaud"_s).setCurrentIndex(-1);
    press(u"CmdSave"_s);
    EXPECT_EQ(m_folder.read("app/Cafe/setup.ini"),
              "[setupoption]\r\n; by hand\r\nmodemdelay=45\r\nPort= 3\r\nNoOfECRs=31\r\nConnectionType= 1\r\n"
              "ModemReset=AT&F0\r\nBaud=-1\r\nModemString=ATZ1\r\nTelephone=01234 EXT B\r\nECRModel= 3\r\n"
              "[other]\r\nPort=9\r\n");
}

TEST_F(FrmSetupTest, EnterSavesAndEscapeAndExitLeave)
{
    open();
    m_form->show();
    combo(u"CboModel"_s).setCurrentIndex(1);
    QTest::keyClick(&text(u"TxtReset"_s), Qt::Key_Escape);
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(m_status.panel(), u"Ready.....");
    EXPECT_EQ(m_folder.read("app/Cafe/setup.ini"), "[SetupOption]\r\nECRModel= 0\r\n");
    m_form->show();
    QTest::keyClick(&text(u"TxtReset"_s), Qt::Key_Return);
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("ECRModel= 1"));
    m_form->show();
    combo(u"CboModel"_s).setCurrentIndex(3);
    press(u"CmdExit"_s);
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("ECRModel= 1"));
}

TEST_F(FrmSetupTest, AnIndexOutsideItsListIsAFailure)
{
    // Of two wrong values the first in the order of reading counts.
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
