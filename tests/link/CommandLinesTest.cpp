// The command lines and modem settings from a customer's settings file.
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

TEST(CommandLines, AreTheWordsOfTheSettingsWithTheirBlanks)
{
    constexpr const char* rows[][3] = {
        {"", "VELMARCOMM s2  F1 1T c1  N1.DAT -D 1", "1200"},
        {"port=1\r\nbaud=1\r\nNoOfECRs=1", "VELMARCOMM s4  F1 2T c2   N1.DAT -D 1", "2400"},
        {"Port= 0\r\nBaud= 2\r\nNoOfECRs=2", "VELMARCOMM s9  F1 3T c1  N1.DAT -D 1", "9600"},
        {"port=3\r\nbaud=3\r\nNoOfECRs=31", "VELMARCOMM s1  F1 32T c4   N1.DAT -D 1", "19200"},
        {"port=4\r\nbaud=-1\r\nNoOfECRs=-1", "VELMARCOMM s9  F1 0T c1   N1.DAT -D 1", "9600"},
    };
    for (const auto& [keys, download, rate] : rows) {
        const LinkSettings link = settingsFrom(keys);
        EXPECT_EQ(downloadLine(link, u"  N1.DAT -D 1"_s).toStdString(), download);
        EXPECT_EQ(bareRate(link.baudIndex).toStdString(), rate);
    }
    const LinkSettings link = settingsFrom("port=3\r\nbaud=3");
    EXPECT_EQ(uploadLine(link, u"  N67.DAT -U 67"_s), u"VELMARCOMM s1 c4   N67.DAT -U 67"_s);
    EXPECT_EQ(downloadOpeningLine(link, memorySuffix), u"VELMARCOMM s1  c4  Nmem.DAT -U 52"_s);
}

const struct {
    const char* keys;
    bool isModem;
    QStringList strings; ///< reset, set-up, dial
    int delay;
} settings[] = {
    {"", false, {u"AT&F\r"_s, u"ATZ1\r"_s, u"ATD\r"_s}, 0},
    {"CONNECTIONTYPE=1\r\nmodemreset=\r\nModemString=ATX3\r\nTelephone=0,0201 55\r\nModemDelay=45 s",
     true,
     {u"\r"_s, u"ATX3\r"_s, u"ATD0,0201 55\r"_s},
     45},
    {"Connectiontype=7\r\nModemDelay=32767", false, {u"AT&F\r"_s, u"ATZ1\r"_s, u"ATD\r"_s}, 32767}};

TEST(LinkSettings, TakesDefaultsAndKeepsEmptyTexts)
{
    for (const auto& [keys, isModem, strings, delay] : settings) {
        const LinkSettings link = settingsFrom(keys);
        EXPECT_EQ(link.isModem(), isModem) << keys;
        EXPECT_EQ((QStringList{link.resetString, link.setUpString, link.dialString}), strings) << keys;
        EXPECT_EQ(link.modemDelay, delay);
    }
    EXPECT_EQ(test::failureOf([] { (void)settingsFrom("ModemDelay=32768\r\n"); }), 6);
}

} // namespace
} // namespace norvane::link
