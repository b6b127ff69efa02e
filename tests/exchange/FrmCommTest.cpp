// The exchange dialog as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "exchange/FrmComm.h"

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
#include <QCheckBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QStatusBar>
#include <QtTest>

namespace norvane::exchange
{
namespace
{

using test::PseudoModem;
using test::QuickClock;

class FrmCommTest : public testing::Test
{
protected:
    void SetUp() override { form.show(); }
    void TearDown() override { EXPECT_FALSE(test::takeFailure()); }

    [[nodiscard]] QCheckBox& box(int index) const
    {
        return *form.findChild<QCheckBox*>(QStringLiteral("check1_%1").arg(index));
    }
    [[nodiscard]] QPushButton& button(const char* name) const
    {
        return *form.findChild<QPushButton*>(QLatin1String(name));
    }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    [[nodiscard]] QString status() const
    {
        return form.findChild<QStatusBar*>(QStringLiteral("StatusBar1"))->currentMessage();
    }
    [[nodiscard]] int tickedBoxes() const
    {
        int count = 0;
        for (int index = 0; index < boxCount; ++index) {
            count += box(index).isChecked() ? 1 : 0;
        }
        return count;
    }
    [[nodiscard]] qint64 memoryRows() const
    {
        store::Database database(values.databasePath);
        return database.openTable(QStringLiteral("memoryallocation")).recordCount();
    }
    /// Puts the modem at the far end of the line and makes it the customer's connection.
    void useModem()
    {
        for (const auto& [key, value] : {std::pair("Connectiontype", "1"), {"ModemDelay", "30"}}) {
            ProfileFile::write(settingsPath(values), QStringLiteral("SetupOption"), QLatin1String(key),
                               QLatin1String(value));
        }
        form.setSerialLine(makeSerialLine({far.device()}));
        auto quick = std::make_unique<QuickClock>(far);
        clock = quick.get();
        form.setClock(std::move(quick));
    }

    test::ProgramFolder folder;
    ApplicationValues values = folder.makeCustomer(QStringLiteral("Corner Shop"));
    test::RecordingBoxes boxes;
    PseudoModem far;
    QuickClock* clock = nullptr;
    FrmComm form{values, boxes};
};

TEST_F(FrmCommTest, ShowsItsBoxesInThreeColumnsUnticked)
{
    EXPECT_EQ(tickedBoxes(), 0);
    for (int index = 1; index < boxCount; ++index) {
        const QPoint here = box(index).mapTo(&form, QPoint());
        const QPoint before = box(index - 1).mapTo(&form, QPoint());
        if (index == 13 || index == 26) {
            EXPECT_GT(here.x(), before.x() + box(index - 1).width()) << index;
            EXPECT_EQ(here.y(), box(0).mapTo(&form, QPoint()).y()) << index;
        } else {
            EXPECT_EQ(here.x(), before.x()) << index;
            EXPECT_GT(here.y(), before.y()) << index;
        }
        EXPECT_GE(box(index).width(), box(index).sizeHint().width()) << index;
    }
    EXPECT_EQ(box(11).text(), QStringLiteral("Printer Tables && KV Routing"));
    EXPECT_EQ(box(36).text(), QStringLiteral("Smartcard PLU Points"));
    EXPECT_EQ(box(21).accessibleName(), QStringLiteral("check1_21"));
    EXPECT_EQ(button("Communicate").text(), QStringLiteral("&OK"));
    EXPECT_EQ(button("CSCmdBtn1").text(), QStringLiteral("E&xit"));
    EXPECT_EQ(button("CSCmdBtn2").text(), QStringLiteral("&Select All"));
    EXPECT_EQ(form.minimumSize(), form.maximumSize());
}

TEST_F(FrmCommTest, MovesAllThatSelectAllTicksAndUnticksIt)
{
    press("CSCmdBtn2");
    EXPECT_EQ(tickedBoxes(), 37);
    values.exchangeMode = QStringLiteral("UPLOAD");
    press("Communicate");
    EXPECT_EQ(tickedBoxes(), 0);
    box(23).click();
    values.exchangeMode = QStringLiteral("DOWNLOAD");
    press("Communicate");
    EXPECT_EQ(tickedBoxes(), 0);
    EXPECT_TRUE(boxes.shown.empty()) << "no note about the serial port devices for a box with two states";
    EXPECT_EQ(status(), QString());
}

TEST_F(FrmCommTest, NamesAToolThatIsMissing)
{
    values.exchangeMode = QStringLiteral("UPLOAD");
    press("Communicate");
    folder.removeTool("VELMARCOMM");
    press("Communicate");
    EXPECT_EQ(status(), QStringLiteral("The program VELMARCOMM was not found."));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmCommTest, LeavesByExitAndByEscape)
{
    useModem();
    press("CSCmdBtn1");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(far.received(), QByteArray()) << "no connection type was read yet";
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmCommTest, EndsTheFileInWorkWhenLeftInTheMidst)
{
    box(2).click();
    values.exchangeMode = QStringLiteral("UPLOAD");
    QTimer::singleShot(0, &button("CSCmdBtn1"), &QPushButton::click);
    press("Communicate");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(memoryRows(), 1);
    EXPECT_FALSE(pathExists(joinPath(values.customerPath, QStringLiteral("1.dat"))));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FrmCommTest, DialsExchangesAndHangsUp)
{
    useModem();
    far.willAnswer({{"OK"}, {"OK"}, {"CONNECT"}});
    values.exchangeMode = QStringLiteral("UPLOAD");
    press("Communicate");
    EXPECT_EQ(far.received(), QByteArray("AT&F\rATZ1\rATD\r+++ATH\r"));
    EXPECT_EQ(memoryRows(), 1);
    EXPECT_TRUE(boxes.shown.empty());
    press("CSCmdBtn1");
    EXPECT_TRUE(far.received().endsWith("ATH\r+++ATH\r")) << "leaving hangs up in any case";
}

TEST_F(FrmCommTest, RunsNothingWhenTheModemFails)
{
    useModem();
    values.exchangeMode = QStringLiteral("UPLOAD");
    box(2).click();
    press("Communicate");
    EXPECT_EQ(boxes.shown, (std::vector{test::ShownBox{QStringLiteral("Modem Failure"),
                                                       QStringLiteral("Communications Error")}}));
    EXPECT_EQ(far.received(), QByteArray("AT&F\r+++ATH\r"));
    EXPECT_FALSE(pathExists(folder.appFile(QStringLiteral("status.out"))));
    EXPECT_TRUE(box(2).isChecked());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(FrmCommTest, HangsUpWhenLeftWhileDialling)
{
    useModem();
    QString shown;
    clock->onEvents = [&, left = false]() mutable {
        if (!left && clock->now() > 36005) {
            left = true;
            shown = status();
            press("CSCmdBtn1");
        }
    };
    values.exchangeMode = QStringLiteral("UPLOAD");
    press("Communicate");
    EXPECT_EQ(shown, QStringLiteral("Resetting Modem .......AT&F"));
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(far.received(), QByteArray("AT&F\r+++ATH\r"));
    EXPECT_FALSE(pathExists(folder.appFile(QStringLiteral("status.out"))));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FrmCommTest, HangsUpWhenAFailureEndsTheRun)
{
    useModem();
    far.willAnswer({{"OK"}, {"OK"}, {"CONNECT"}});
    folder.setFaults("[None]\nTool=VELMARCOMM\nStatus=none\n");
    values.exchangeMode = QStringLiteral("UPLOAD");
    press("Communicate");
    const auto failure = test::takeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->failure(), Failure::FileNotFound);
    EXPECT_TRUE(far.received().endsWith("+++ATH\r"));
}

} // namespace
} // namespace norvane::exchange
