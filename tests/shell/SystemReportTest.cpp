// What the system information says of a shop.
#include "shell/SystemReport.h"

#include "customers/CustomerLog.h"
#include "tests/shell/ShellFixture.h"

namespace norvane::shell
{
namespace
{

using SystemReportTest = ShellFixture;

TEST_F(SystemReportTest, SaysWhatSupportAsksForAndOnlyTheEndOfTheLog)
{
    m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nECRModel= 2\r\nNoOfECRs=2\r\nPort= 1\r\n"
                                         "Telephone=555123\r\n");
    m_folder.write("app/velmarcomm", "a tool");
    makeCustomerDatabase();
    for (int line = 1; line <= 30; ++line)
        customers::writeLog(m_values.customerPath, {{}, u"upload %1"_s.arg(line), {}, u"done"_s, 1000});
    const QString report = systemReport(m_values, {u"Office"_s, u"Bar"_s});
    for (const QString& part :
         {u"Program: " NORVANE_VERSION "\n"_s, u"\nQt: %1\nSQLite: 3."_s.arg(QLatin1String(qVersion())),
          u"\nCustomer: Cafe\nCustomer's folder: "_s + m_values.customerPath, u"/velmar.mdb, "_s,
          u"\nModel: Velmar +V3\nRegisters: 3\nConnection: Direct, Port 2, 2400 baud\nVELMARCOMM: dated 20"_s,
          u"\nconvert: missing\nPrinters: Office, Bar\n"_s, u"\tupload 30\t"_s, u"\tupload 11\t"_s})
        EXPECT_TRUE(report.contains(part)) << part.toStdString() << '\n' << report.toStdString();
    EXPECT_FALSE(report.contains(u"upload 10\t"_s) || report.contains(u"555123"_s));
}

TEST_F(SystemReportTest, UnreadableSettingsAreReportedAndAMissingFolderHasNone)
{
    m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nNoOfECRs=99\r\n");
    const QString report = systemReport(m_values, {});
    EXPECT_TRUE(report.contains(u"\nRegisters: cannot be read: Invalid property value"_s))
        << report.toStdString();
    EXPECT_TRUE(report.contains(u"NoOfECRs=99 in "_s) && report.contains(u"/velmar.mdb, missing\n"_s));
    EXPECT_TRUE(report.contains(u"\nPrinters: none\n\nLast lines of norvane.log:\nnone\n"_s));
    m_values.customerPath += u'x';
    EXPECT_EQ(systemReport(m_values, {}), QString());
}

} // namespace
} // namespace norvane::shell
