// The sales collection as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "customers/CustomerLog.h"
#include "tests/sales/CollectionTest.h"

using namespace std::string_literals;

namespace norvane::sales
{
namespace
{

/// Where a run ends, and how.
struct Exit {
    const char* faults;
    const char* text; ///< of the box, nullptr for none
    const char* status;
    bool imported = false;
    bool connects = true; ///< the modem, if there is one
};

class FrmsalesCommTest : public CollectionTest
{
protected:
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
    {"Command=collect\nResult=-13", unknown, collection},
    {"Command=collect\nResult=77", unknown, collection},
    {"Command=clear\nResult=15", "Report Clear Error", "Clear Data at ECR", true},
};

TEST_F(FrmsalesCommTest, EndsAtAResultThatIsNotAccepted)
{
    const auto logged = [this] {
        return customers::lastLogged(values.customerPath, {u"collection"_s})->result;
    };
    for (const Exit& end : exits) {
        SCOPED_TRACE(end.faults);
        collect(QByteArray("Tool=VELMARCOMM\n") + end.faults);
        expectEnd(end);
        EXPECT_EQ(rows() > 0, end.imported);
        EXPECT_TRUE(registersHoldSales());
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(logged().endsWith(u"nothing stored"_s), !end.imported);
    }
    EXPECT_EQ(logged(),
              u"stopped at Clear Data at ECR: result 15: Report Clear Error (VELMARCOMM: fault file: "
              u"result 15 at register 1); the sales are stored; still to do: clear the registers");
    const QString report = test::child<QPlainTextEdit>(form, "RunReport").toPlainText();
    EXPECT_TRUE(report.contains(u"Result 15 at Clear Data at ECR: a register did not clear its reports.\n"
                                u"The registers before this one"_s) &&
                report.endsWith(u"The sales are stored; the registers are still to be cleared."_s))
        << report.toStdString();
}

TEST_F(FrmsalesCommTest, AsksBeforeItStoresSalesWithThoseOfAnotherCustomer)
{
    const ApplicationValues other = folder.makeCustomer(u"Other Shop"_s);
    values.databasePath = other.databasePath;
    collect();
    ASSERT_EQ(boxes.shown.size(), 1U);
    expectAskedFirst(boxes.shown[0],
                     u"The sales of the registers of Corner Shop would be stored as sales of Other Shop");
    EXPECT_EQ(rows(), 0);
    EXPECT_TRUE(registersHoldSales());

    boxes.answers = {true};
    collect();
    EXPECT_EQ(rows(), rowsOfOneDay);
    const auto logged = customers::lastLogged(other.customerPath, {u"collection"_s});
    EXPECT_EQ(logged ? logged->registers : QString(), u"registers 1 to 2 of Corner Shop"_s);
}

TEST_F(FrmsalesCommTest, CollectsSalesThatWait)
{
    for (const char* name : {"poll190.txt", "Poll190.TXT"}) {
        QFile old(folder.appFile(QLatin1String(name)));
        ASSERT_TRUE(old.open(QIODevice::WriteOnly) && old.write("1,0.01\r\n") > 0);
    }
    collect("Command=collect\nResult=8");
    collect("Command=consolidate\nResult=-14");
    EXPECT_EQ(takings(), 2 * 10005) << "of what the converter wrote, in whatever spelling";
    EXPECT_EQ(QDir(folder.appPath()).entryList({u"poll190.txt"_s}).size(), 1);
    EXPECT_EQ(status(), done) << "as with the register's own -13";
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(registersHoldSales());
}

/// A clear that reports success and does nothing.
TEST_F(FrmsalesCommTest, AsksBeforeItStoresTheSameSalesAgain)
{
    collect();
    EXPECT_EQ(LinkFormTest::status(), done + "    25 rows of sales stored, 1 s"s);
    const qint64 stored = rows();
    ring();
    collect();
    ASSERT_EQ(boxes.shown.size(), 1U);
    expectAskedFirst(boxes.shown[0], QDate::currentDate().toString(u"dd/MM/yyyy 'at' "_s));
    EXPECT_EQ(LinkFormTest::status(), done + "    0 rows of sales stored, 1 s"s);
    EXPECT_FALSE(registersHoldSales());
    EXPECT_EQ(rows(), stored);
}

/// A step whose tool failed silently, after a collection of the day before.
struct Doubt {
    const char* fault;
    const char* message;
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

TEST_F(FrmsalesCommTest, AsksBeforeItUsesFilesThatAFailedToolLeft)
{
    collect();
    EXPECT_TRUE(boxes.shown.empty()) << "nothing is asked in a good run";
    int day = 2;
    for (const auto& [fault, message, questions, staysAtRegisters] : doubts) {
        SCOPED_TRACE(fault);
        const bool clears = QLatin1StringView(fault).contains("clear"_L1);
        ring(day++);
        const qint64 before = rows();
        boxes.answers.clear();
        collect(fault);
        ASSERT_EQ(boxes.shown.size(), clears ? 2U : 1U);
        for (const char* part : {message, " old\r"})
            expectAskedFirst(boxes.shown[0], QString::fromLatin1(part));
        EXPECT_EQ(rows(), clears ? before + rowsOfOneDay : before);
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

/// The third of five imports fails: the user says whether to keep the first two; the registers keep
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

/// Exit while a tool hangs: shown immediately, and nothing is stored.
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
    EXPECT_EQ(rows(), rowsOfOneDay);
}

TEST_F(FrmsalesCommTest, NamesAToolThatIsMissing)
{
    collect();
    folder.removeTool("VELMARCOMM");
    // Nothing comes: each step of the tool is asked about, and then the sales that are stored already.
    boxes.answers = {true, true, true, true, false};
    collect();
    EXPECT_EQ(boxes.shown.size(), 5U);
    EXPECT_TRUE(boxes.shown.back().text.contains(u"leaves the sales at the registers"_s));
    boxes.answers.assign(6, true);
    collect();
    EXPECT_TRUE(status().starts_with(done) && status().ends_with("The program VELMARCOMM was not found."));
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
