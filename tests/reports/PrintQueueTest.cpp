// A report on a print queue of the test's own.
#include "paper/DefaultPrinter.h"
#include "reports/Printing.h"
#include "reports/ReportRun.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/PrintServer.h"

#include <QPrinter>

namespace norvane::test
{
namespace
{

TEST(PrintQueueTest, GetsTheReportOnTheDefaultPrinterOrTellsThatThereIsNone)
{
    if (!PrintServer::isInstalled())
        GTEST_SKIP() << "needs the programs cupsd and lpadmin";
    const PrintServer server;
    ASSERT_TRUE(server.isUp());
    reports::ReportData report = emptySales();
    addGroup(report, u"Drinks"_s, 3);
    EXPECT_THROW((void)reports::printReport(report, true, paper::defaultPrinter), reports::ReportError);
    server.addDefaultQueue(u"Office"_s);
    EXPECT_EQ(reports::printReport(report, true, paper::defaultPrinter), u"Office"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(server.firstJob()); }));
    EXPECT_TRUE(pdfLines(server.firstJob()).contains(u"Total Drinks 3.375 7.04"_s));
    const auto findAndLose = [&server] {
        auto printer = paper::defaultPrinter();
        server.removeQueue(u"Office"_s);
        return printer;
    };
    EXPECT_THROW((void)reports::printReport(report, true, findAndLose), reports::ReportError);
}

} // namespace
} // namespace norvane::test
