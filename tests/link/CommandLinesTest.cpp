// The tool's command lines from a customer's settings file, blank by blank.
#include "link/CommandLines.h"

#include "tests/platform/TestFolder.h"

namespace norvane::link
{
namespace
{

LinkSettings settingsFrom(const QByteArray& keys)
{
    const test::TestFolder folder;
    folder.write("setup.ini", "[setupoption]\r\n" + keys);
    ApplicationValues values;
    values.customerPath = folder.path();
    return readLinkSettings(values);
}

TEST(CommandLines, AreTheSettingsWordsToTheBlank)
{
    const struct {
        const char* keys;
        const char* upload;
        const char* opening;
        const char* send;
        const char* rate;
    } rows[] = {
        {"", "VELMARCOMM s2 c1  N67.DAT -U 67", "VELMARCOMM s2  c1 Nmem.DAT -U 52",
         "VELMARCOMM s2  F1 1T c1  N1.DAT -D 1", "1200"},
        {"Port= 0\r\nBaud= 2\r\nNoOfECRs=2\r\n", "VELMARCOMM s9 c1  N67.DAT -U 67",
         "VELMARCOMM s9  c1 Nmem.DAT -U 52", "VELMARCOMM s9  F1 3T c1  N1.DAT -D 1", "9600"},
        {"port=3\r\nbaud=3\r\nNoOfECRs=31\r\n", "VELMARCOMM s1 c4   N67.DAT -U 67",
         "VELMARCOMM s1  c4  Nmem.DAT -U 52", "VELMARCOMM s1  F1 32T c4   N1.DAT -D 1", "19200"},
        {"port=1\r\nbaud=1\r\nNoOfECRs=1\r\n", "VELMARCOMM s4 c2   N67.DAT -U 67",
         "VELMARCOMM s4  c2  Nmem.DAT -U 52", "VELMARCOMM s4  F1 2T c2   N1.DAT -D 1", "2400"},
        {"port=4\r\nbaud=-1\r\nNoOfECRs=-1\r\n", "VELMARCOMM s9 c1   N67.DAT -U 67",
         "VELMARCOMM s9  c1  Nmem.DAT -U 52", "VELMARCOMM s9  F1 0T c1   N1.DAT -D 1", "9600"},
    };
    for (const auto& row : rows) {
        const LinkSettings link = settingsFrom(row.keys);
        EXPECT_EQ(uploadLine(link, QStringLiteral("  N67.DAT -U 67")).toStdString(), row.upload);
        EXPECT_EQ(downloadOpeningLine(link, QLatin1String(memorySuffix)).toStdString(), row.opening);
        EXPECT_EQ(downloadLine(link, QStringLiteral("  N1.DAT -D 1")).toStdString(), row.send);
        EXPECT_EQ(bareRate(link.baudIndex).toStdString(), row.rate);
    }
}

TEST(LinkSettings, TakesDefaultsAndKeepsEmptyTexts)
{
    const LinkSettings absent = settingsFrom("");
    EXPECT_EQ(absent.connectionType, QStringLiteral("DIRECT"));
    EXPECT_EQ(absent.resetString, QStringLiteral("AT&F\r"));
    EXPECT_EQ(absent.setUpString, QStringLiteral("ATZ1\r"));
    EXPECT_EQ(absent.dialString, QStringLiteral("ATD\r"));
    EXPECT_EQ(absent.modemDelay, 0);

    const LinkSettings set = settingsFrom("CONNECTIONTYPE=1\r\nmodemreset=\r\nModemString=ATX3\r\n"
                                          "Telephone=0,0201 55\r\nModemDelay=45 s\r\n");
    EXPECT_TRUE(set.isModem());
    EXPECT_EQ(set.resetString, QStringLiteral("\r"));
    EXPECT_EQ(set.setUpString, QStringLiteral("ATX3\r"));
    EXPECT_EQ(set.dialString, QStringLiteral("ATD0,0201 55\r"));
    EXPECT_EQ(set.modemDelay, 45);
    EXPECT_FALSE(settingsFrom("Connectiontype=7\r\n").isModem());
    EXPECT_EQ(settingsFrom("ModemDelay=32767\r\n").modemDelay, 32767);
    EXPECT_EQ(test::failureOf([] { (void)settingsFrom("ModemDelay=32768\r\n"); }), 6);
}

} // namespace
} // namespace norvane::link
