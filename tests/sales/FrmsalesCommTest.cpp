// The sales collection as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "sales/FrmsalesComm.h"

#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
#include "shell/CustomerSettings.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/support/FormTest.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/PseudoModem.h"
#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QPushButton>
#include <QStatusBar>
#include <QtTest>

namespace norvane::sales
{
namespace
{

using test::PseudoModem;

const std::vector<const char*> salesTables{"FINANCIALSALES", "PLUSALES", "TIMESALES", "MIXSALES",
                                           "CLERKSALES"};

/// Two registers that have sold something, and the form.
class Collection
{
public:
    Collection()
    {
        sell(1);
        sell(2);
        form.show();
    }
    ~Collection() { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); }
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

    [[nodiscard]] QPushButton& button(const char* name) const
    {
        return *form.findChild<QPushButton*>(QLatin1String(name));
    }
    void collect() { QTest::mouseClick(&button("Communicate"), Qt::LeftButton); }
    [[nodiscard]] std::string status() const
    {
        return form.findChild<QStatusBar*>(QStringLiteral("StatusBar1"))->currentMessage().toStdString();
    }
    /// Whether the sales still stand at the registers, open or consolidated.
    [[nodiscard]] bool registersHoldSales() const
    {
        return pathExists(registerPath(1, "totals")) || pathExists(registerPath(1, "consolidated"));
    }
    [[nodiscard]] qint64 rowsOf(const char* table) const
    {
        store::Database database(values.databasePath);
        return database.openTable(QLatin1String(table)).recordCount();
    }
    [[nodiscard]] qint64 allRows() const
    {
        qint64 rows = 0;
        for (const char* table : salesTables)
            rows += rowsOf(table);
        return rows;
    }
    [[nodiscard]] double sumOf(const char* table, const char* field) const
    {
        store::Database database(values.databasePath);
        store::Recordset records = database.openTable(QLatin1String(table));
        double sum = 0;
        for (; !records.atEnd(); records.moveNext())
            sum += records.value(QLatin1String(field)).toNumber();
        return sum;
    }
    void sell(int number) const
    {
        const QString totals = registerPath(number, "totals");
        QDir().mkpath(totals);
        const std::pair<const char*, QByteArray> reports[] = {
            {"190.txt", "10,100.05\r\n0,0\r\n1,2.5\r\n"},
            {"191.txt", "3,9.99\r\n"},
            {"192.txt", QByteArray("0,0\r\n").repeated(118) + "4,8.4\r\n"},
            {"194.txt", "1001,0,0,2,5.4,1,3.1\r\n"},
            {"218.txt", "7\r\n"},
        };
        for (const auto& [name, text] : reports)
            writeWholeFile(joinPath(totals, QLatin1String(name)), text);
    }
    void useModem()
    {
        for (const auto& [key, value] : {std::pair("Connectiontype", "1"), {"ModemDelay", "30"}}) {
            ProfileFile::write(settingsPath(values), QStringLiteral("SetupOption"), QLatin1String(key),
                               QLatin1String(value));
        }
        form.setSerialLine(makeSerialLine({far.device()}));
        form.setClock(std::make_unique<test::QuickClock>(far));
    }

    test::ProgramFolder folder{2, 2, 20};
    ApplicationValues values = folder.makeCustomer(QStringLiteral("Corner Shop"));
    test::RecordingBoxes boxes;
    PseudoModem far;
    FrmsalesComm form{values, boxes};

private:
    [[nodiscard]] QString registerPath(int number, const char* name) const
    {
        return joinPath(folder.bankPath(), QStringLiteral("%1/%2").arg(number).arg(QLatin1String(name)));
    }
};

TEST(FrmsalesComm, BringsTheSalesHomeAndClearsTheRegisters)
{
    Collection shop;
    EXPECT_EQ(shop.form.windowTitle(), QStringLiteral("Collect Sales."));
    EXPECT_EQ(shop.button("Communicate").text(), QStringLiteral("Collect Sales"));
    EXPECT_EQ(shop.button("CSCmdBtn1").text(), QStringLiteral("E&xit"));
    EXPECT_FALSE(shop.form.isModal());
    shop.collect();
    EXPECT_EQ(shop.status(), "Communications Successful....");
    EXPECT_TRUE(shop.boxes.shown.empty());
    EXPECT_FALSE(shop.registersHoldSales());
    EXPECT_EQ(shop.rowsOf("FINANCIALSALES"), 2) << "without the zeros";
    EXPECT_EQ(shop.rowsOf("PLUSALES"), 20) << "with the zeros";
    EXPECT_DOUBLE_EQ(shop.sumOf("FINANCIALSALES", "VALUE"), 205.1);
    QTest::keyClick(&shop.form, Qt::Key_Escape);
    EXPECT_FALSE(shop.form.isVisible());
}

struct ErrorExit {
    const char* name;
    const char* faults;
    const char* text;   ///< of the box
    const char* status; ///< of the status bar
    bool imported = false;
};

const char* const unknown = "Error 0 Sorry Error Unknown";

TEST(FrmsalesComm, EndsAtAResultThatIsNotAccepted)
{
    const ErrorExit exits[] = {
        {"memory", "Command=fetch\nFile=52\nResult=1", "1. Bad Agrument Entry", "Get Memory"},
        {"memory not written", "Command=fetch\nFile=52\nResult=6", "6. File Write Error", "Get Memory"},
        {"opening", "Command=open\nResult=7", "7. Unknown Command", "Get Memory"},
        {"opening time out", "Command=open\nResult=8", "8. Time Out", "Get Memory"},
        {"aborted", "Command=open\nResult=99", "Aborted by User", "Get Memory"},
        {"modem by the tool", "Command=open\nResult=100", "Modem Failure", "Get Memory"},
        {"consolidation busy", "Command=consolidate\nResult=12", "Machine Busy", "Consolidate Reports"},
        {"consolidation 13", "Command=consolidate\nResult=13", "Pre poll Error", "Consolidate Reports"},
        {"consolidation 14", "Command=consolidate\nResult=14", "Pre poll Error", "Consolidate Reports"},
        {"consolidation -12", "Command=consolidate\nResult=-12", unknown, "Consolidate Reports"},
        {"a later register", "Command=consolidate\nRegister=2\nResult=8", "8. Time Out",
         "Consolidate Reports"},
        {"collecting", "Command=collect\nResult=2", "2. File Open Error", "Collect Report Files"},
        {"wrong information", "Command=collect\nResult=3", "3. File Information Is Wrong",
         "Collect Report Files"},
        {"wrong size", "Command=collect\nResult=4", "4. File Size Mismatch", "Collect Report Files"},
        {"conversion", "Command=collect\nResult=5", "5. Argument Conversion Error", "Collect Report Files"},
        {"packet size", "Command=collect\nResult=9", "9. Packet Size Error", "Collect Report Files"},
        {"packet number", "Command=collect\nResult=10", "10. Packet Number Mismatch", "Collect Report Files"},
        {"damaged", "Command=collect\nResult=11", "11. Bad CRC", "Collect Report Files"},
        {"collecting -13", "Command=collect\nResult=-13", unknown, "Collect Report Files"},
        {"unknown code", "Command=collect\nResult=77", unknown, "Collect Report Files"},
        {"clearing", "Command=clear\nResult=15", "Report Clear Error", "Clear Data at ECR", true},
    };
    Collection shop;
    for (const ErrorExit& c : exits) {
        SCOPED_TRACE(c.name);
        shop.boxes.shown.clear();
        shop.folder.setFaults(QByteArray("[fault]\nTool=VELMARCOMM\n") + c.faults + '\n');
        shop.collect();
        EXPECT_EQ(shop.boxes.shown, (std::vector{test::ShownBox{QLatin1String(c.text),
                                                                QStringLiteral("Communications Error")}}));
        EXPECT_EQ(shop.status(), c.status);
        EXPECT_EQ(shop.allRows() > 0, c.imported);
        EXPECT_TRUE(shop.registersHoldSales());
        EXPECT_TRUE(shop.form.isVisible());
    }
}

/// Sales that were consolidated by a run that ended before it cleared them are collected by the next.
TEST(FrmsalesComm, CollectsWhatWaitsFromAnEarlierRun)
{
    for (const char* faults : {"", "[fault]\nCommand=consolidate\nResult=-14\n"}) {
        Collection shop;
        shop.folder.setFaults("[fault]\nCommand=collect\nResult=8\n");
        shop.collect();
        shop.folder.setFaults(faults);
        shop.collect();
        EXPECT_EQ(shop.status(), "Communications Successful....");
        EXPECT_EQ(shop.boxes.shown.size(), 1U);
        EXPECT_DOUBLE_EQ(shop.sumOf("FINANCIALSALES", "VALUE"), 205.1);
        EXPECT_FALSE(shop.registersHoldSales());
    }
}

/// The stamp is the test's own: a tool that crashes leaves the former result and the former files standing.
TEST(FrmsalesComm, StopsAtRegistersThatSendDescriptions)
{
    for (const char stamp : {'\x41', '\x42', '\x43'}) {
        SCOPED_TRACE(static_cast<int>(stamp));
        Collection shop;
        shop.collect();
        const qint64 rows = shop.allRows();
        shop.sell(1);
        writeWholeFile(shop.folder.appFile(QStringLiteral("poll194.dll")), QByteArray("RPT\x01", 4) + stamp);
        shop.folder.setFaults(
            "[kept]\nCommand=collect\nCrash=1\n[old]\nTool=convert\nCommand=S194\nResult=1\n");
        shop.collect();
        const bool goesOn = stamp == '\x41';
        EXPECT_EQ(shop.boxes.shown.empty(), goesOn);
        EXPECT_EQ(shop.allRows() > rows, goesOn);
        EXPECT_EQ(shop.registersHoldSales(), !goesOn);
        if (!goesOn) {
            EXPECT_EQ(shop.boxes.shown.at(0),
                      (test::ShownBox{QStringLiteral("Please set\rS-Mode.\r5.System Option.\r"
                                                     "13. Send PLU Description when polled to N"),
                                      QStringLiteral("Communications Error")}));
            EXPECT_EQ(shop.status(), "Parse data....");
        }
    }
}

/// The third of five imports fails: what came before stays, and the registers keep everything.
TEST(FrmsalesComm, ClearsNothingAfterAFailedImport)
{
    Collection shop;
    writeWholeFile(shop.folder.appFile(QStringLiteral("POLL191.txt")), "1,2\r\n3");
    shop.folder.setFaults("[old]\nTool=convert\nCommand=S191\nResult=1\n");
    shop.collect();
    const auto failure = test::takeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 62);
    EXPECT_TRUE(failure->text().contains(QStringLiteral("poll191.txt, record 2"))) << failure->what();
    EXPECT_TRUE(shop.registersHoldSales());
    EXPECT_EQ(shop.rowsOf("FINANCIALSALES"), 2);
    EXPECT_EQ(shop.rowsOf("TIMESALES"), 1);
    EXPECT_EQ(shop.rowsOf("MIXSALES") + shop.rowsOf("CLERKSALES"), 0);
}

TEST(FrmsalesComm, EndsWithoutClearingWhenLeftInTheMidst)
{
    Collection shop;
    QTimer::singleShot(0, &shop.button("CSCmdBtn1"), &QPushButton::click);
    shop.collect();
    EXPECT_FALSE(shop.form.isVisible());
    EXPECT_TRUE(shop.boxes.shown.empty());
    EXPECT_TRUE(shop.registersHoldSales());
    EXPECT_EQ(shop.allRows(), 0);
}

TEST(FrmsalesComm, NamesAToolThatIsMissing)
{
    Collection shop;
    shop.collect();
    shop.folder.removeTool("VELMARCOMM");
    shop.collect();
    EXPECT_EQ(shop.status(), "Communications Successful....    The program VELMARCOMM was not found.");
}

TEST(FrmsalesComm, DialsCollectsAndHangsUp)
{
    struct {
        const char* name;
        const char* faults;
        std::deque<PseudoModem::Answer> answers;
        QByteArray received;
        const char* text;
        const char* status;
    } const cases[] = {
        {"goes through",
         "",
         {{"OK"}, {"OK"}, {"CONNECT"}},
         "AT&F\rATZ1\rATD\r+++ATH\r",
         nullptr,
         "Communications Successful...."},
        {"no answer",
         "",
         {},
         "AT&F\r+++ATH\r",
         "Error 100 Sorry Error Unknown",
         "Resetting Modem .......AT&F"},
        {"a step fails",
         "[f]\nCommand=collect\nResult=8\n",
         {{"OK"}, {"OK"}, {"CONNECT"}},
         "AT&F\rATZ1\rATD\r+++ATH\r",
         "8. Time Out",
         "Collect Report Files"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Collection shop;
        shop.useModem();
        shop.far.willAnswer(c.answers);
        shop.folder.setFaults(c.faults);
        QByteArray receivedAtBox;
        shop.boxes.whileOpen = [&](const test::ShownBox&) {
            receivedAtBox = shop.far.received();
        };
        shop.collect();
        EXPECT_EQ(shop.far.received(), c.received);
        EXPECT_EQ(shop.status(), c.status);
        ASSERT_EQ(shop.boxes.shown.size(), c.text == nullptr ? 0U : 1U);
        if (c.text != nullptr) {
            EXPECT_EQ(shop.boxes.shown.front().text, QLatin1String(c.text));
            EXPECT_EQ(receivedAtBox, c.received) << "the line is free while the box stands";
        }
        QTest::mouseClick(&shop.button("CSCmdBtn1"), Qt::LeftButton);
        EXPECT_TRUE(shop.far.received().endsWith("+++ATH\r+++ATH\r"));
        EXPECT_FALSE(shop.form.isVisible());
    }
}

} // namespace
} // namespace norvane::sales
