// A report on a print queue of the test's own: a print server that nobody else sees, with a queue that keeps
// what it gets.
#include "paper/DefaultPrinter.h"
#include "reports/Printing.h"
#include "reports/ReportRun.h"
#include "tests/platform/TestFolder.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/OtherPrograms.h"

#include <QPrinter>
#include <QStandardPaths>
#include <QtTest>

namespace norvane::test
{
namespace
{

/// Stands in for the system's print server as long as it lives.
class PrintServer
{
public:
    explicit PrintServer(const QString& program)
    {
        for (const char* part : {"root", "spool", "cache", "state"})
            QDir().mkpath(m_folder.path(part));
        m_folder.write("root/cupsd.conf",
                       "Listen " + m_folder.path("socket").toUtf8() +
                           "\nWebInterface No\nBrowsing No\n<Location />\nAllow all\n"
                           "</Location>\n<Policy default>\n<Limit All>\n</Limit>\n</Policy>\n");
        m_folder.write("root/files.conf",
                       QByteArray("FileDevice Yes\nServerRoot @/root\nRequestRoot @/spool\n"
                                  "CacheDir @/cache\nStateDir @/state\nAccessLog @/access\n"
                                  "ErrorLog @/errors\nPageLog @/pages\n")
                           .replace("@", m_folder.path().toUtf8()));
        m_server.start(program, {u"-f"_s, u"-c"_s, m_folder.path("root/cupsd.conf"), u"-s"_s,
                                 m_folder.path("root/files.conf")});
        qputenv("CUPS_SERVER", m_folder.path("socket").toUtf8());
    }
    ~PrintServer()
    {
        qunsetenv("CUPS_SERVER");
        m_server.kill();
        m_server.waitForFinished();
    }
    [[nodiscard]] bool isUp() const
    {
        return QTest::qWaitFor([this] { return QFile::exists(m_folder.path("socket")); }, 10000);
    }
    void addDefaultQueue(const QString& name) const
    {
        outputOf(u"lpadmin"_s, {u"-p"_s, name, u"-v"_s, u"file:/dev/null"_s, u"-E"_s, u"-m"_s, u"raw"_s});
        outputOf(u"lpadmin"_s, {u"-d"_s, name});
    }
    void removeQueue(const QString& name) const { outputOf(u"lpadmin"_s, {u"-x"_s, name}); }
    /// What the first job brought.
    [[nodiscard]] QString firstJob() const { return m_folder.path("spool/d00001-001"); }

private:
    TestFolder m_folder;
    QProcess m_server;
};

TEST(PrintQueueTest, GetsTheReportOnTheDefaultPrinterOrTellsThatThereIsNone)
{
    const QString program =
        QStandardPaths::findExecutable(u"cupsd"_s, {u"/usr/sbin"_s, u"/usr/local/sbin"_s});
    if (program.isEmpty() || QStandardPaths::findExecutable(u"lpadmin"_s).isEmpty())
        GTEST_SKIP() << "needs the programs cupsd and lpadmin";
    const PrintServer server(program);
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
