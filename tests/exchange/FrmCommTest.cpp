// The exchange dialog as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "exchange/FrmComm.h"

#include "customers/CustomerLog.h"
#include "platform/FilePaths.h"
#include "platform/FolderLock.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "tests/support/AskedFirst.h"
#include "tests/support/LinkFormTest.h"

namespace norvane::exchange
{
namespace
{

using test::child;

/// In the log: what the tool said.
const QString said = u" (VELMARCOMM: fault file: result 8 at register 1)"_s;

class FrmCommTest : public test::LinkFormTest<FrmComm>
{
protected:
    FrmCommTest() : LinkFormTest(1, 0, u"UPLOAD"_s) {}

    [[nodiscard]] QCheckBox& box(int index) const
    {
        return *form.findChild<QCheckBox*>(u"check1_%1"_s.arg(index));
    }
    [[nodiscard]] QString kept(int file) const
    {
        return joinPath(values.customerPath, u"%1.dat"_s.arg(file));
    }
    void upload() { press("Communicate"); }
    static void expectFailure(int number)
    {
        const auto failure = test::takeFailure();
        EXPECT_EQ(failure ? failure->number() : 0, number);
    }
    [[nodiscard]] customers::LogLine logged() const
    {
        return customers::lastLogged(values.customerPath, {u"upload"_s}).value_or(customers::LogLine());
    }
};

TEST_F(FrmCommTest, ShowsItsBoxesInThreeColumnsUnticked)
{
    const auto top = [this](int index) {
        return box(index).mapTo(&form, QPoint()).y();
    };
    for (int index = 0; index < boxCount; ++index) {
        EXPECT_EQ(top(index) == top(0), index == 0 || index == 13 || index == 26) << index;
        EXPECT_FALSE(box(index).isChecked()) << index;
    }
    EXPECT_EQ(box(11).text(), u"Printer Tables && KV Routing"_s);
}

TEST_F(FrmCommTest, NamesAToolThatIsMissingAndAsksBeforeTheFormerResultCounts)
{
    box(11).click();
    upload();
    EXPECT_EQ(status(), "5 files from register 1, 1 s");
    const QByteArray bytes = readWholeFile(kept(43));
    EXPECT_TRUE(QFile::remove(existingPath(folder.appFile(u"43.dat"_s))));
    folder.removeTool("VELMARCOMM");
    box(11).click();
    boxes.whileOpen = [](const test::ShownBox&) {
        QThread::msleep(1000);
    };
    QElapsedTimer timer;
    timer.start();
    upload();
    EXPECT_LE(logged().milliseconds, timer.elapsed() - 950) << "while a question waits nothing is done";
    boxes.whileOpen = {};
    EXPECT_EQ(status(), "Ended at your answer No.");
    EXPECT_TRUE(box(11).isChecked());
    ASSERT_EQ(boxes.shown.size(), 1U);
    test::expectAskedFirst(boxes.shown[0], u"The program VELMARCOMM was not found.");

    boxes.answers.assign(20, true);
    upload();
    EXPECT_EQ(status(), "5 files from register 1, 1 s    The program VELMARCOMM was not found.");
    EXPECT_EQ(readWholeFile(kept(43)), bytes) << "the only copy is kept when nothing was received";
    EXPECT_FALSE(box(11).isChecked());
}

/// Of a tool that says too much, in bytes that no window can show, asks something, and leaves a process
/// behind that holds on to its output.
TEST_F(FrmCommTest, ShowsWhatTheToolsOfARunSaid)
{
    const auto& report = child<QPlainTextEdit>(form, "RunReport");
    box(2).click();
    upload();
    EXPECT_TRUE(report.isHidden()) << "nothing was said";
    folder.precede("VELMARCOMM", "read answer; sleep 30 & head -c 3000000 /dev/zero | tr '\\0' x\n"
                                 "printf '\\n\\033[31mGel\\366scht\\033[0m\\007\\n' >&2");
    folder.setFaults("[Off]\nFile=1\nResult=8\n");
    box(2).click();
    upload();
    EXPECT_TRUE(report.isVisible());
    EXPECT_GE(report.y(), child<QStatusBar>(form, "StatusBar1").geometry().bottom());
    const QString text = report.toPlainText();
    EXPECT_TRUE(text.contains(u"\nUpload Group, file 1:\n...\nxxx"_s));
    EXPECT_TRUE(text.contains(u"xxx\nGelöscht\\x07\nVELMARCOMM: fault file: result 8 at register 1\n\n"
                              u"Result 8 at file 1 (Group): a register did not answer.\nSwitch it on"_s))
        << text.right(300).toStdString();
    EXPECT_EQ(logged().result, u"stopped at file 1: result 8: Time Out%1; still to do: Group"_s.arg(said));
    EXPECT_EQ(boxes.shown.back().text, u"Communications Error 8");

    QFile::remove(folder.appFile(u"VELMARCOMM"_s));
    EXPECT_TRUE(QFile::rename(folder.appFile(u"VELMARCOMM.real"_s), folder.appFile(u"VELMARCOMM"_s)));
    folder.setFaults("");
    upload();
    EXPECT_TRUE(report.isHidden());
}

TEST_F(FrmCommTest, ShowsHowFarItIsAndFromTheSecondTimeOnHowLongItWillTake)
{
    const auto& progress = child<QLabel>(form, "Progress");
    folder.setFaults("[Slow]\nFile=29\nHang=1\n");
    for (const auto& last : {u"file 2 of 2"_s, u"file 2 of 2, about 1 s left"_s}) {
        QStringList shown;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (progress.isVisible() && !shown.contains(progress.text()))
                shown << progress.text();
        });
        look.start(20);
        for (const int index : {2, 5})
            box(index).setChecked(true);
        upload();
        EXPECT_TRUE(shown.contains(last)) << shown.join(u'|').toStdString();
        EXPECT_TRUE(progress.isHidden());
    }
}

/// As after a change of customer: the tables of the former shop are still open.
TEST_F(FrmCommTest, AsksBeforeItFillsTheTablesOfAnotherCustomer)
{
    const auto way = [this] {
        return form.findChild<QLabel*>(u"Way"_s)->text();
    };
    EXPECT_EQ(way(), u"From register 1 to the tables of Corner Shop");
    const ApplicationValues other = folder.makeCustomer(u"Other Shop"_s);
    values.databasePath = other.databasePath;
    form.hide();
    form.show();
    EXPECT_EQ(way(), u"From register 1 of Corner Shop to the tables of Other Shop");
    box(2).setChecked(true);
    upload();
    ASSERT_EQ(boxes.shown.size(), 1U);
    test::expectAskedFirst(boxes.shown[0],
                           u"The open database is that of Other Shop, but the customer chosen is "
                           u"Corner Shop.\r\rThe upload would replace the tables of Other Shop");
    EXPECT_FALSE(pathExists(folder.appFile(u"status.out"_s)));

    boxes.answers = {true};
    upload();
    EXPECT_FALSE(box(2).isChecked());
    EXPECT_GT(store::Database(other.databasePath).openTable(u"GROUPS"_s).recordCount(), 0);
    EXPECT_TRUE(pathExists(kept(1)));
    EXPECT_FALSE(customers::lastLogged(values.customerPath, {u"upload"_s}));
    const auto logged = customers::lastLogged(other.customerPath, {u"upload"_s});
    EXPECT_EQ(logged ? logged->registers : QString(), u"register 1 of Corner Shop"_s);
    for (const QString& held : {other.customerPath, values.appPath}) {
        const auto otherRun = FolderLock::take(held, boxes);
        box(2).setChecked(true);
        boxes.answers = {true};
        upload();
        EXPECT_TRUE(boxes.shown.back().text.startsWith("Nothing was started"_L1));
        EXPECT_TRUE(box(2).isChecked());
    }
}

TEST_F(FrmCommTest, FinishesTheCurrentFileWhenTheUserLeaves)
{
    box(2).click();
    pressEscapeSoon();
    upload();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(store::Database(values.databasePath).openTable(u"memoryallocation"_s).recordCount(), 1);
    EXPECT_FALSE(pathExists(kept(1)));
    EXPECT_EQ(logged().result, u"stopped at file 1: left by the user; still to do: Group");
}

/// A box that nobody closes must not keep the other shops from collecting at night.
TEST_F(FrmCommTest, LetsOtherRunsStartWhileItsLastBoxIsOpen)
{
    folder.setFaults("[Off]\nCommand=open\nResult=8\n");
    bool isCallOpen = false;
    QStringList results;
    boxes.whileOpen = [&](const test::ShownBox& box) {
        EXPECT_EQ(othersMayStart(), !isCallOpen) << box.text.toStdString();
        results << logged().result;
    };
    upload();
    EXPECT_EQ(results.takeLast(), u"stopped at the opening exchange: result 8: Time Out"_s + said);
    useModem();
    for (const auto& [connects, beginning, result] :
         {std::tuple(true, "Communications Error 8", "stopped at the opening exchange: result 8: Time Out"),
          {false, "Modem Failure", "stopped at the call: result 100: Modem Failure"},
          {true, "No safety copy could be made", "No safety copy could be made"}}) {
        willConnect(connects);
        isCallOpen = connects;
        box(2).setChecked(true);
        boxes.shown.clear();
        upload();
        expectHungUp();
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_TRUE(boxes.shown[0].text.startsWith(QLatin1StringView(beginning)));
        EXPECT_TRUE(box(2).isChecked());
        EXPECT_TRUE(results.takeLast().startsWith(QLatin1StringView(result)));
        QDir(joinPath(values.customerPath, u"copies"_s)).removeRecursively();
        writeWholeFile(joinPath(values.customerPath, u"copies"_s), "a file where the copies should be");
    }
}

/// After an error, a failure that ends the program, and a run that leaves nothing.
TEST_F(FrmCommTest, ShowsAtTheNextOpeningWhatAnExchangeLeftUndone)
{
    const auto reopen = [this] {
        boxes.shown.clear();
        form.hide();
        form.show();
    };
    const std::pair<const char*, int> faults[] = {{"[Off]\nFile=9\nResult=8\n", 0},
                                                  {"[Bad]\nFile=9\nStatus=garbage\n", 13}};
    for (const auto& [fault, failure] : faults) {
        for (const int index : {2, 4, 6})
            box(index).setChecked(true);
        folder.setFaults(fault);
        upload();
        expectFailure(failure);
        EXPECT_TRUE(pathExists(kept(8)) && !pathExists(kept(10)))
            << "what was received of the current box is kept";
        reopen();
        ASSERT_EQ(boxes.shown.size(), 1U) << fault;
        const QString today = QDate::currentDate().toString(u"dd/MM/yyyy"_s);
        for (const QString& part :
             {u"The upload of "_s + today, u"Still to do: All System Options, All Messages.\r"_s})
            EXPECT_TRUE(boxes.shown[0].text.contains(part)) << boxes.shown[0].text.toStdString();
    }
    for (const int index : {4, 6})
        box(index).setChecked(false);
    reopen();
    EXPECT_FALSE(box(4).isChecked()) << "No ticks nothing";
    boxes.answers = {true};
    reopen();
    EXPECT_TRUE(box(4).isChecked() && box(6).isChecked() && !box(2).isChecked());
    folder.setFaults("");
    upload();
    reopen();
    EXPECT_TRUE(boxes.shown.empty());
}

/// Waits for the look in the background, then takes what the dialog says below its boxes.
std::string changesIn(const FrmComm& dialog)
{
    const auto& label = child<QLabel>(dialog, "Changes");
    EXPECT_TRUE(QTest::qWaitFor([&label] { return !label.text().startsWith("Looking"_L1); }, 30000));
    return label.text().toStdString();
}

TEST_F(FrmCommTest, MarksWhatWasNotSentAndTicksIt)
{
    box(2).click();
    upload();
    EXPECT_EQ(changesIn(form), "There are no changes that were not sent.");
    store::Database(values.databasePath).execute(u"update GROUPS set DESCRIPTION='Mine' where GROUPNO < 3"_s);
    form.hide();
    form.show();
    EXPECT_EQ(changesIn(form), "A dot marks changes that were not sent: an upload replaces them.");
    EXPECT_EQ(box(2).accessibleDescription(), u"2 records not sent");
    EXPECT_EQ(box(2).toolTip(), u"2 records not sent");
    EXPECT_EQ(box(4).accessibleDescription(), QString());

    FrmComm download(u"DOWNLOAD"_s, values, boxes);
    download.show();
    EXPECT_EQ(changesIn(download), "A dot marks what was not sent to all registers.");
    test::press(download, "TickChanged");
    for (int index = 0; index < boxCount; ++index)
        EXPECT_EQ(child<QCheckBox>(download, u"check1_%1"_s.arg(index)).isChecked(), index == 2);
    test::press(download, "Communicate");
    EXPECT_EQ(changesIn(download), "There are no changes that were not sent.");
    EXPECT_FALSE(child<QPushButton>(download, "TickChanged").isEnabled());
    EXPECT_EQ(child<QCheckBox>(download, "check1_2").accessibleDescription(), QString());

    writeWholeFile(values.databasePath, "damaged");
    download.hide();
    download.show();
    EXPECT_TRUE(
        changesIn(download).starts_with("What was not sent is not known: Unrecognized database format"));
    EXPECT_FALSE(child<QPushButton>(download, "TickChanged").isEnabled());
}

TEST_F(FrmCommTest, KeepsTheFormerCopyOfAFileThatComesEmpty)
{
    QByteArray former;
    for (const char* fault : {"", "[Cut]\nFile=43\nBytesLeft=0\n", "[Cut]\nFile=43\nBytesLeft=0\n"}) {
        folder.setFaults(fault);
        box(11).setChecked(true);
        upload();
        former = former.isEmpty() ? readWholeFile(kept(43)) : former;
    }
    EXPECT_FALSE(former.isEmpty());
    EXPECT_EQ(readWholeFile(kept(43)), QByteArray());
    EXPECT_EQ(readWholeFile(kept(43) + u".former"_s), former);
}

TEST_F(FrmCommTest, DialsExchangesAndHangsUp)
{
    useModem();
    press("CSCmdBtn1");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(far.received(), QByteArray()) << "no connection type was read yet";
    form.show();
    for (const auto& [fault, failure] :
         {std::pair("", 0), {"[Bad]\nTool=VELMARCOMM\nStatus=garbage\n", 13}}) {
        box(2).setChecked(true);
        folder.setFaults(fault);
        willConnect(true);
        upload();
        expectHungUp();
        expectFailure(failure);
        EXPECT_EQ(box(2).isChecked(), failure != 0);
        EXPECT_TRUE(boxes.shown.empty());
    }
    expectExitHangsUp();
}

TEST_F(FrmCommTest, HangsUpWhenLeftWhileDialling)
{
    useModem();
    std::string shown;
    clock->onEvents = [&, left = false]() mutable {
        if (!left && clock->now() > 36005) {
            left = true;
            shown = status();
            press("CSCmdBtn1");
        }
    };
    upload();
    EXPECT_EQ(shown, "Resetting Modem .......AT&F");
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(far.received(), QByteArray("AT&F\r+++ATH\r"));
    EXPECT_FALSE(pathExists(folder.appFile(u"status.out"_s)));
}

} // namespace
} // namespace norvane::exchange
