// The sales collection as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "sales/FrmsalesComm.h"

#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "sales/UnclearedSales.h"
#include "store/Database.h"
#include "store/Recordset.h"
#include "tests/support/LinkFormTest.h"

#include <algorithm>
#include <array>

namespace norvane::sales
{
namespace
{

using test::ShownBox;

const QString errorTitle = u"Communications Error"_s;
const QString checkTitle = u"Please Check"_s;
const ShownBox clearAgain{u"The sales are stored, but not all registers were cleared. Clear again?"_s,
                          checkTitle, BoxIcon::Question, BoxAnswer::No};
/// Rows of what ring() rings at two registers with 20 PLUs.
constexpr qint64 rowsOfDay = 2 + 20 + 1 + 1 + 1;
const char* const done = "Communications Successful....";

constexpr std::pair<const char*, const char*> reports[] = {
    {"190.txt", "10,100.05\r\n0,0\r\n1,2.5\r\n"},
    {"191.txt", "3,9.99\r\n"},
    {"194.txt", "1001,0,0,2,5.4,1,3.1\r\n"},
    {"218.txt", "7\r\n"},
};

/// Where a run ends, and how.
struct Exit {
    const char* faults;
    const char* text; ///< of the box, nullptr for none
    const char* status;
    bool imported = false;
    bool connects = true; ///< the modem, if there is one
};

/// Two registers that have sold something, and the form.
class FrmsalesCommTest : public test::LinkFormTest<FrmsalesComm>
{
protected:
    FrmsalesCommTest() : LinkFormTest(2, 20)
    {
        ring();
        EXPECT_FALSE(form.isModal()) << "the menus stay usable";
    }

    /// @p times the same sales.
    void ring(int times = 1) const
    {
        for (const char* totals : {"1/totals/", "2/totals/"}) {
            QDir().mkpath(bankPath(totals));
            for (const auto& [name, text] : reports)
                writeWholeFile(bankPath(totals) + QLatin1String(name), text);
            writeWholeFile(bankPath(totals) + "192.txt"_L1,
                           QByteArray("0,0\r\n").repeated(118) + QByteArray::number(times) + ",8.4\r\n");
        }
    }

    /// @p faults of the tools, as a section of a faults.ini.
    void collect(const QByteArray& faults = {})
    {
        folder.setFaults("[fault]\n" + faults + '\n');
        boxes.shown.clear();
        press("Communicate");
    }
    void expectEnd(const Exit& end)
    {
        std::vector<ShownBox> expected;
        if (end.text != nullptr)
            expected.push_back({QLatin1String(end.text), errorTitle});
        if (end.text != nullptr && end.imported)
            expected.push_back(clearAgain);
        EXPECT_EQ(status(), end.status);
        EXPECT_EQ(boxes.shown, expected);
    }
    [[nodiscard]] QString logged() const
    {
        return customers::lastLogged(values.customerPath, {u"collection"_s})->result;
    }
    /// Whether the sales still stand at the registers, open or consolidated.
    [[nodiscard]] bool registersHoldSales() const
    {
        return std::ranges::any_of(std::array{"1/totals", "1/consolidated", "2/totals", "2/consolidated"},
                                   [this](const char* sales) { return pathExists(bankPath(sales)); });
    }
    [[nodiscard]] qint64 rows() const
    {
        store::Database database(values.databasePath);
        qint64 count = 0;
        for (const char* table : {"FINANCIALSALES", "PLUSALES", "TIMESALES", "MIXSALES", "CLERKSALES"})
            count += database.openTable(QLatin1String(table)).recordCount();
        return count;
    }
    /// Net sales of all collections in hundredths; ring() rings 100.05 at each register.
    [[nodiscard]] int takings() const
    {
        store::Database database(values.databasePath);
        const auto sum = database.openQuery(u"select sum(value) from financialsales where id = 1"_s);
        return qRound(sum.value(0).toText().toDouble() * 100);
    }
    [[nodiscard]] QString bankPath(const char* name) const
    {
        return joinPath(folder.bankPath(), QLatin1String(name));
    }
};

constexpr const char* unknown = "Error 0 Sorry Error Unknown";
constexpr const char* memory = "Get Memory";
constexpr const char* consolidation = "Consolidate Reports";
constexpr const char* collection = "Collect Report Files";
constexpr Exit exits[] = {
    {"Command=fetch\nFile=52\nResult=1", "1. Bad Agrument Entry", memory},
    {"Command=fetch\nFile=52\nResult=6", "6. File Write Error", memory},
    {"Command=open\nResult=7", "7. Unknown Command", memory},
    {"Command=open\nResult=8", "8. Time Out", memory},
    {"Command=open\nResult=99", "Aborted by User", memory},
    {"Command=open\nResult=100", "Modem Failure", memory},
    {"Command=consolidate\nResult=12", "Machine Busy", consolidation},
    {"Command=consolidate\nResult=13", "Pre poll Error", consolidation},
    {"Command=consolidate\nResult=14", "Pre poll Error", consolidation},
    {"Command=consolidate\nResult=-12", unknown, consolidation},
    {"Command=consolidate\nRegister=2\nResult=8", "8. Time Out", consolidation},
    {"Command=collect\nResult=2", "2. File Open Error", collection},
    {"Command=collect\nResult=3", "3. File Information Is Wrong", collection},
    {"Command=collect\nResult=4", "4. File Size Mismatch", collection},
    {"Command=collect\nResult=5", "5. Argument Conversion Error", collection},
    {"Command=collect\nResult=9", "9. Packet Size Error", collection},
    {"Command=collect\nResult=10", "10. Packet Number Mismatch", collection},
    {"Command=collect\nResult=11", "11. Bad CRC", collection},
    {"Command=collect\nResult=-13", unknown, collection},
    {"Command=collect\nResult=77", unknown, collection},
    {"Command=clear\nResult=15", "Report Clear Error", "Clear Data at ECR", true},
};

TEST_F(FrmsalesCommTest, EndsAtAResultThatIsNotAccepted)
{
    for (const Exit& end : exits) {
        SCOPED_TRACE(end.faults);
        collect(QByteArray("Tool=VELMARCOMM\n") + end.faults);
        expectEnd(end);
        EXPECT_EQ(rows() > 0, end.imported);
        EXPECT_TRUE(registersHoldSales());
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(logged().endsWith(u"nothing stored"_s), !end.imported);
    }
    EXPECT_EQ(logged(), u"stopped at Clear Data at ECR: result 15: Report Clear Error; the sales are stored; "
                        u"still to do: clear the registers");
}

TEST_F(FrmsalesCommTest, AsksBeforeItStoresSalesWithThoseOfAnotherCustomer)
{
    const ApplicationValues other = folder.makeCustomer(u"Other Shop"_s);
    values.databasePath = other.databasePath;
    collect();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.contains(
        u"The sales of the registers of Corner Shop would be stored as sales of Other Shop"_s))
        << boxes.shown[0].text.toStdString();
    EXPECT_EQ(boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_EQ(rows(), 0);
    EXPECT_TRUE(registersHoldSales());

    boxes.answers = {true};
    collect();
    EXPECT_EQ(rows(), rowsOfDay);
    const auto logged = customers::lastLogged(other.customerPath, {u"collection"_s});
    EXPECT_EQ(logged ? logged->registers : QString(), u"registers 1 to 2 of Corner Shop"_s);
}

TEST_F(FrmsalesCommTest, CollectsSalesThatWait)
{
    collect("Command=collect\nResult=8");
    collect("Command=consolidate\nResult=-14");
    EXPECT_EQ(status(), done) << "as with the register's own -13";
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(registersHoldSales());
}

TEST_F(FrmsalesCommTest, ClearsAgainRightAfterAClearThatFailed)
{
    boxes.answers = {true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_EQ(boxes.shown, (std::vector<ShownBox>{{u"Report Clear Error"_s, errorTitle}, clearAgain}));
    EXPECT_EQ(status(), done);
    EXPECT_FALSE(registersHoldSales());
    ring();
    collect("Command=clear\nResult=15");
    store::Database(values.databasePath).execute(u"delete * from FINANCIALSALES"_s);
    collect();
    EXPECT_TRUE(boxes.shown.empty()) << "sales that were taken out of the tables are stored again";
    EXPECT_EQ(takings(), 2 * 10005);
}

/// While the question waits, the lock is free for others.
TEST_F(FrmsalesCommTest, ClearsAgainOnlyWhatNoOtherRunHasTouched)
{
    std::unique_ptr<FolderLock> other;
    test::RecordingBoxes othersBoxes;
    boxes.whileOpen = [&](const ShownBox& box) {
        if (box == clearAgain)
            other = FolderLock::take(values.customerPath, othersBoxes);
    };
    boxes.answers = {true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_NE(other, nullptr);
    EXPECT_EQ(boxes.shown.size(), 3U) << "the failure, the question, and who is at work";
    EXPECT_TRUE(registersHoldSales());
    other.reset();

    boxes.whileOpen = [this](const ShownBox& box) {
        if (box == clearAgain)
            noteNewerSales(values);
    };
    QDir(folder.bankPath() + u"/1/consolidated"_s).removeRecursively();
    ring(2);
    boxes.answers = {false, true, true};
    collect("Command=clear\nResult=15\nNth=1");
    EXPECT_EQ(status(), "Clear Data at ECR    Another run was at work since. Nothing was cleared.");
    EXPECT_TRUE(registersHoldSales());
}

/// The day after a clear that failed at register 2: a new day is rung at both.
struct NextDay {
    const char* what;
    std::deque<bool> answers;
    const char* faults;
    std::vector<const char*> boxes; ///< a part of each
    int takings;                    ///< in all, of one register and day
    bool holdsSales = false;
};

const char* const clearThem =
    "are stored, but were not cleared at all registers (result 8: Time Out). Clear them first?";
const char* const again = "would be counted twice.\r\rCollect all the same?";
const NextDay nextDays[] = {
    {"cleared first", {true}, "", {clearThem}, 4},
    {"nothing done", {}, "", {clearThem, again}, 2, true},
    {"the clear fails again",
     {true},
     "Command=clear\nResult=15",
     {clearThem, "Report Clear", "Clear again?"},
     2,
     true},
    {"and goes through then",
     {true, true},
     "Command=clear\nResult=15\nNth=1",
     {clearThem, "Report Clear", "Clear again?"},
     4},
    {"the tool crashes",
     {true},
     "Command=clear\nCrash=1",
     {clearThem, "still hold would be counted", "Clear again?"},
     2,
     true},
    {"counted twice", {false, true}, "", {clearThem, again}, 4, true},
};

TEST_F(FrmsalesCommTest, AsksToClearStoredSalesBeforeItCollectsAgain)
{
    for (const NextDay& day : nextDays) {
        SCOPED_TRACE(day.what);
        QDir(folder.bankPath() + u"/2/consolidated"_s).removeRecursively();
        ring();
        store::Database(values.databasePath).execute(u"delete * from FINANCIALSALES"_s);
        collect("Command=clear\nRegister=2\nResult=8");
        EXPECT_EQ(takings(), 2 * 10005);
        ring(2);
        writeWholeFile(folder.appFile(u"status.out"_s), "0");
        boxes.answers = day.answers;
        collect(day.faults);
        ASSERT_EQ(boxes.shown.size(), day.boxes.size());
        for (std::size_t box = 0; box < day.boxes.size(); ++box) {
            EXPECT_TRUE(boxes.shown[box].text.contains(QLatin1StringView(day.boxes[box])))
                << boxes.shown[box].text.toStdString();
        }
        EXPECT_EQ(boxes.shown.front().preset, BoxAnswer::No);
        EXPECT_EQ(takings(), day.takings * 10005);
        EXPECT_EQ(registersHoldSales(), day.holdsSales);
    }
}

/// Once newer sales were consolidated beside those that are stored, a clear would lose them.
TEST_F(FrmsalesCommTest, OffersNoClearThatWouldLoseNewerSales)
{
    collect("Command=clear\nRegister=2\nResult=8");
    ring(2);
    boxes.answers = {false, true};
    collect("Command=collect\nResult=8");
    collect();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.contains(u"newer sales, which clearing them now would lose"_s))
        << boxes.shown[0].text.toStdString();
    EXPECT_EQ(takings(), 2 * 10005);
    EXPECT_TRUE(pathExists(bankPath("1/consolidated")));
}

/// A clear that reports success and does nothing.
TEST_F(FrmsalesCommTest, AsksBeforeItStoresTheSameSalesAgain)
{
    for (const bool twice : {false, true}) {
        ring(twice ? 2 : 1);
        collect();
        const qint64 stored = rows();
        ring(twice ? 2 : 1);
        boxes.answers = {twice};
        collect();
        ASSERT_EQ(boxes.shown.size(), 1U);
        const ShownBox& asked = boxes.shown[0];
        EXPECT_TRUE(asked.text.contains(QDate::currentDate().toString(u"dd/MM/yyyy 'at' "_s)))
            << asked.text.toStdString();
        EXPECT_EQ(asked, (ShownBox{asked.text, checkTitle, BoxIcon::Question, BoxAnswer::No}));
        EXPECT_EQ(status(), done);
        EXPECT_FALSE(registersHoldSales());
        EXPECT_EQ(rows(), twice ? stored + rowsOfDay : stored);
    }
}

/// A step whose tool failed in silence, behind a collection of the day before.
struct Doubt {
    const char* fault;
    const char* told;
    /// After a Yes: another one may follow, for sales that are stored already, whose No clears nothing.
    std::size_t questions = 1;
    bool staysAtRegisters = false; ///< after these
};

constexpr Doubt doubts[] = {
    {"Tool=VELMARCOMM\nCommand=open\nCrash=1", "status.out of "},
    {"Tool=VELMARCOMM\nCommand=collect\nCrash=1", "poll218.dll of ", 2, true},
    {"Tool=VELMARCOMM\nCommand=collect\nStatus=none", "status.out of "},
    {"Tool=convert\nCommand=S194\nResult=1", "Found:\r\rpoll194.txt of "},
    {"Tool=convert\nCrash=1", "convert crashed. Found:\r\rpoll190.txt of ", 2, true},
    {"Tool=VELMARCOMM\nCommand=clear\nCrash=1", "end as successful", 1, true},
    {"Tool=VELMARCOMM\nCommand=consolidate\nCrash=1", "VELMARCOMM crashed. Found:\r\rstatus.out of ", 1,
     true},
};

TEST_F(FrmsalesCommTest, AsksBeforeItUsesWhatAFailedToolLeft)
{
    collect();
    EXPECT_TRUE(boxes.shown.empty()) << "nothing is asked in a good run";
    int day = 2;
    for (const auto& [fault, told, questions, staysAtRegisters] : doubts) {
        SCOPED_TRACE(fault);
        const bool clears = QLatin1StringView(fault).contains("clear"_L1);
        ring(day++);
        const qint64 before = rows();
        boxes.answers.clear();
        collect(fault);
        ASSERT_EQ(boxes.shown.size(), clears ? 2U : 1U);
        const ShownBox& asked = boxes.shown[0];
        EXPECT_TRUE(asked.text.contains(QLatin1StringView(told)) && asked.text.contains(u" old\r"))
            << asked.text.toStdString();
        EXPECT_EQ(asked, (ShownBox{asked.text, checkTitle, BoxIcon::Question, BoxAnswer::No}));
        EXPECT_EQ(rows(), clears ? before + rowsOfDay : before);
        EXPECT_TRUE(registersHoldSales());
        EXPECT_TRUE(status().find(done) == std::string::npos) << status();
        boxes.answers = {clears};
        collect();

        ring(day++);
        boxes.answers = {true, false};
        collect(fault);
        EXPECT_EQ(boxes.shown.size(), questions);
        EXPECT_EQ(registersHoldSales(), staysAtRegisters);
        boxes.answers = {clears};
        if (staysAtRegisters)
            collect();
        const QString first = boxes.shown.empty() ? QString() : boxes.shown.front().text;
        EXPECT_EQ(first.contains(u"(no result). Clear them first?"_s), clears) << first.toStdString();
        EXPECT_FALSE(registersHoldSales());
    }
}

TEST_F(FrmsalesCommTest, ImportsWhatTheConverterWroteInAnySpelling)
{
    for (const char* name : {"poll190.txt", "Poll190.TXT"}) {
        QFile old(folder.appFile(QLatin1String(name)));
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("1,0.01\r\n");
    }
    collect();
    EXPECT_EQ(takings(), 2 * 10005);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(QDir(folder.appPath()).entryList({u"poll190.txt"_s}).size(), 1);
}

TEST_F(FrmsalesCommTest, StopsAtRegistersThatSendDescriptions)
{
    const ShownBox advice{u"Please set\rS-Mode.\r5.System Option.\r"
                          u"13. Send PLU Description when polled to N"_s,
                          errorTitle};
    for (const char* stamp : {"42", "43", "41"}) {
        SCOPED_TRACE(stamp);
        ProfileFile::write(bankPath("1/register.ini"), u"Register"_s, u"Stamp"_s, QLatin1String(stamp));
        collect();
        const bool goesOn = QLatin1String(stamp) == "41"_L1;
        EXPECT_EQ(rows() > 0, goesOn);
        EXPECT_EQ(registersHoldSales(), !goesOn);
        EXPECT_EQ(status(), goesOn ? done : "Parse data....");
        EXPECT_EQ(boxes.shown, std::vector<ShownBox>(goesOn ? 0 : 1, advice));
    }
}

/// The third of five imports fails: the user says whether what came before stays; the registers keep
/// everything.
TEST_F(FrmsalesCommTest, ClearsNothingAfterAFailedImport)
{
    for (const bool keeps : {false, true}) {
        writeWholeFile(folder.appFile(u"POLL191.txt"_s), "1,2\r\n3");
        boxes.answers = {true, keeps};
        collect("Tool=convert\nCommand=S191\nResult=1");
        const auto failure = test::takeFailure();
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->number(), 62);
        EXPECT_TRUE(failure->text().contains(u"poll191.txt, record 2"_s)) << failure->what();
        ASSERT_EQ(boxes.shown.size(), 2U);
        EXPECT_TRUE(boxes.shown[1].text.startsWith(failure->text()));
        EXPECT_TRUE(registersHoldSales());
        EXPECT_EQ(rows(), keeps ? 2 + 20 + 1 : 0) << "financial lines, PLUs, time periods";
    }
}

TEST_F(FrmsalesCommTest, EndsWithoutClearingWhenLeftInTheMidst)
{
    EXPECT_EQ(form.windowTitle(), u"Collect Sales."_s);
    EXPECT_EQ(button("Communicate").text(), u"Collect Sales"_s);
    EXPECT_EQ(button("CSCmdBtn1").text(), u"E&xit"_s);
    pressEscapeSoon();
    collect();
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_TRUE(registersHoldSales());
    EXPECT_EQ(rows(), 0);
}

/// Exit while a tool hangs: told at once, and nothing is stored.
TEST_F(FrmsalesCommTest, EndsBetweenTwoToolsWhenLeft)
{
    const QString matched = joinPath(folder.bankPath(), u"faults.log"_s);
    for (const char* tool :
         {"VELMARCOMM\nCommand=collect", "convert\nCommand=S191", "convert\nCommand=S218"}) {
        SCOPED_TRACE(tool);
        form.show();
        std::string shown;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            if (shown.empty() && pathExists(matched)) {
                press("CSCmdBtn1");
                shown = status();
            }
        });
        user.start(20);
        collect(QByteArray("Hang=1\nTool=") + tool);
        EXPECT_TRUE(shown.ends_with("    Leaving after this step .......")) << shown;
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(rows(), 0);
        EXPECT_TRUE(registersHoldSales());
        EXPECT_EQ(pathExists(folder.appFile(u"POLL192.txt"_s)), QByteArray(tool).endsWith("S218"));
    }
    form.show();
    collect();
    EXPECT_EQ(rows(), rowsOfDay);
}

TEST_F(FrmsalesCommTest, NamesAToolThatIsMissing)
{
    collect();
    folder.removeTool("VELMARCOMM");
    collect();
    EXPECT_EQ(status(), "Get Memory    Ended at your answer No.");
    // Nothing comes: each step of the tool is asked about, and then the sales that are stored already.
    boxes.answers = {true, true, true, true, false};
    collect();
    EXPECT_EQ(boxes.shown.size(), 5U);
    EXPECT_TRUE(boxes.shown.back().text.contains(u"leaves the sales at the registers"_s));
    boxes.answers.assign(6, true);
    collect();
    EXPECT_EQ(status(), "Communications Successful....    The program VELMARCOMM was not found.");
}

TEST_F(FrmsalesCommTest, DialsCollectsAndHangsUp)
{
    useModem();
    boxes.whileOpen = [this](const ShownBox& box) {
        expectHungUp();
        EXPECT_TRUE(othersMayStart());
        if (box == clearAgain)
            willConnect(true);
    };
    for (const Exit& end :
         {Exit{"", "Error 100 Sorry Error Unknown", "Resetting Modem .......AT&F", false, false},
          {"Command=collect\nResult=8\n", "8. Time Out", "Collect Report Files"},
          {"", nullptr, done, true}}) {
        SCOPED_TRACE(end.status);
        willConnect(end.connects);
        collect(end.faults);
        expectHungUp();
        expectEnd(end);
    }
    ring(2);
    willConnect(true);
    boxes.answers = {true};
    collect("Command=clear\nResult=8\nNth=1");
    expectHungUp();
    EXPECT_EQ(status(), done);
    expectExitHangsUp();
}

} // namespace
} // namespace norvane::sales
