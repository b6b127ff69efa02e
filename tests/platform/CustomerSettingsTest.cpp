// What readers of setup.ini get, from files as dealers edit them by hand.
#include "shell/CustomerSettings.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

using test::failureOf;
using test::TestFolder;

class CustomerSettingsTest : public testing::Test
{
protected:
    CustomerSettingsTest() { m_values.customerPath = m_folder.path("cafe"); }

    TestFolder m_folder;
    ApplicationValues m_values;
};

TEST_F(CustomerSettingsTest, ReadsTheCustomersFileAfreshEachTime)
{
    m_folder.write("Cafe/Setup.INI", "[setupoption]\r\ntelephone= 0123 \r\nModemReset=\r\n");
    EXPECT_EQ(readSetting(m_values, QStringLiteral("Telephone"), QStringLiteral(" ")),
              QStringLiteral("0123"));
    EXPECT_EQ(readSetting(m_values, QStringLiteral("ModemReset"), QStringLiteral("AT&F ")), QString());
    EXPECT_EQ(readSetting(m_values, QStringLiteral("ModemString"), QStringLiteral("ATZ1 ")),
              QStringLiteral("ATZ1"));
    EXPECT_EQ(ecrModel(m_values), 0) << "without the key";
    for (const char* value : {"", "two", "2x"}) {
        m_folder.write("Cafe/Setup.INI", QByteArray("[SetupOption]\r\nECRModel=") + value + "\r\n");
        EXPECT_EQ(failureOf([this] { (void)ecrModel(m_values); }), 13) << value;
    }
}

} // namespace
} // namespace norvane
