// The tool's command lines from a customer's settings file, blank by blank.
#include "link/CommandLines.h"

#include "platform/RuntimeFailure.h"
#include "shell/CustomerSettings.h"

#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

#include <ostream>

namespace norvane::link
{
namespace
{

class SettingsFile
{
public:
    explicit SettingsFile(const QByteArray& keys)
    {
        m_values.customerPath = m_folder.path();
        QFile file(settingsPath(m_values));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[setupoption]\r\n" + keys);
    }
    [[nodiscard]] LinkSettings read() const { return readLinkSettings(m_values); }

private:
    QTemporaryDir m_folder;
    ApplicationValues m_values;
};

struct LineCase {
    const char* name;
    const char* keys;
    const char* upload;
    const char* opening;
    const char* send;
    const char* rate;
};

std::ostream& operator<<(std::ostream& out, const LineCase& c)
{
    return out << c.name;
}

class Lines : public testing::TestWithParam<LineCase>
{
};

TEST_P(Lines, AreTheSettingsWordsToTheBlank)
{
    const LinkSettings link = SettingsFile(GetParam().keys).read();
    EXPECT_EQ(uploadLine(link, QStringLiteral("  N67.DAT -U 67")).toStdString(), GetParam().upload);
    EXPECT_EQ(downloadOpeningLine(link, QLatin1String(memorySuffix)).toStdString(), GetParam().opening);
    EXPECT_EQ(downloadLine(link, QStringLiteral("  N1.DAT -D 1")).toStdString(), GetParam().send);
    EXPECT_EQ(bareRate(link.baudIndex).toStdString(), GetParam().rate);
}

INSTANTIATE_TEST_SUITE_P(
    Settings, Lines,
    testing::Values(LineCase{"nothing set", "", "VELMARCOMM s2 c1  N67.DAT -U 67",
                             "VELMARCOMM s2  c1 Nmem.DAT -U 52", "VELMARCOMM s2  F1 1T c1  N1.DAT -D 1",
                             "1200"},
                    LineCase{"as the set-up dialog writes", "Port= 0\r\nBaud= 2\r\nNoOfECRs=2\r\n",
                             "VELMARCOMM s9 c1  N67.DAT -U 67", "VELMARCOMM s9  c1 Nmem.DAT -U 52",
                             "VELMARCOMM s9  F1 3T c1  N1.DAT -D 1", "9600"},
                    LineCase{"last of each list", "port=3\r\nbaud=3\r\nNoOfECRs=31\r\n",
                             "VELMARCOMM s1 c4   N67.DAT -U 67", "VELMARCOMM s1  c4  Nmem.DAT -U 52",
                             "VELMARCOMM s1  F1 32T c4   N1.DAT -D 1", "19200"},
                    LineCase{"second of each list", "port=1\r\nbaud=1\r\nNoOfECRs=1\r\n",
                             "VELMARCOMM s4 c2   N67.DAT -U 67", "VELMARCOMM s4  c2  Nmem.DAT -U 52",
                             "VELMARCOMM s4  F1 2T c2   N1.DAT -D 1", "2400"},
                    LineCase{"outside the lists", "port=4\r\nbaud=-1\r\nNoOfECRs=-1\r\n",
                             "VELMARCOMM s9 c1   N67.DAT -U 67", "VELMARCOMM s9  c1  Nmem.DAT -U 52",
                             "VELMARCOMM s9  F1 0T c1   N1.DAT -D 1", "9600"}));

TEST(LinkSettings, TakesDefaultsAndKeepsEmptyTexts)
{
    const LinkSettings absent = SettingsFile("").read();
    EXPECT_EQ(absent.connectionType, QStringLiteral("DIRECT"));
    EXPECT_EQ(absent.resetString, QStringLiteral("AT&F\r"));
    EXPECT_EQ(absent.setUpString, QStringLiteral("ATZ1\r"));
    EXPECT_EQ(absent.dialString, QStringLiteral("ATD\r"));
    EXPECT_EQ(absent.modemDelay, 0);

    const LinkSettings set = SettingsFile("CONNECTIONTYPE=1\r\nmodemreset=\r\nModemString=ATX3\r\n"
                                          "Telephone=0,0201 55\r\nModemDelay=45 s\r\n")
                                 .read();
    EXPECT_TRUE(set.isModem());
    EXPECT_EQ(set.resetString, QStringLiteral("\r"));
    EXPECT_EQ(set.setUpString, QStringLiteral("ATX3\r"));
    EXPECT_EQ(set.dialString, QStringLiteral("ATD0,0201 55\r"));
    EXPECT_EQ(set.modemDelay, 45);
    EXPECT_FALSE(SettingsFile("Connectiontype=7\r\n").read().isModem());
}

TEST(LinkSettings, RefusesATimeOutBeyondASmallNumber)
{
    EXPECT_EQ(SettingsFile("ModemDelay=32767\r\n").read().modemDelay, 32767);
    try {
        (void)SettingsFile("ModemDelay=32768\r\n").read();
        FAIL() << "no failure";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.failure(), Failure::Overflow);
    }
}

} // namespace
} // namespace norvane::link
