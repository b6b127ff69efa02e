// The exchange dialog as a user presses it, with the real tools, a bank of registers and a modem at the far
// end of a pseudo terminal.
#include "exchange/FrmComm.h"

#include "base/CustomerSettings.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"
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
    void upload()
    {
        values.exchangeMode = QStringLiteral("UPLOAD");
        press("Communicate");
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
    const auto top = [this](int index) {
        return box(index).mapTo(&form, QPoint()).y();
    };
    for (int index = 0; index < boxCount; ++index) {
        EXPECT_EQ(top(index) == top(0), index == 0 || index == 13 || index == 26) << index;
        EXPECT_GE(box(index).width(), box(index).sizeHint().width()) << index;
        EXPECT_FALSE(box(index).isChecked()) << index;
        EXPECT_EQ(box(index).accessibleName(), box(index).objectName());
    }
    EXPECT_EQ(box(11).text(), QStringLiteral("Printer Tables && KV Routing"));
    EXPECT_EQ(box(36).text(), QStringLiteral("Smartcard PLU Points"));
    for (const auto& [name, text] :
         {std::pair("Communicate", "&OK"), {"CSCmdBtn1", "E&xit"}, {"CSCmdBtn2", "&Select All"}})
        EXPECT_EQ(button(name).text(), QLatin1String(text));
}

TEST_F(FrmCommTest, NamesAToolThatIsMissingAndGoesByTheFormerResult)
{
    box(11).click();
    upload();
    EXPECT_EQ(status(), QString());
    const QString kept = joinPath(values.customerPath, QStringLiteral("43.dat"));
    const QByteArray bytes = readWholeFile(kept);
    EXPECT_TRUE(QFile::remove(existingPath(folder.appFile(QStringLiteral("43.dat")))));
    folder.removeTool("VELMARCOMM");
    box(11).click();
    upload();
    EXPECT_EQ(status(), QStringLiteral("The program VELMARCOMM was not found."));
    EXPECT_EQ(readWholeFile(kept), bytes) << "the only copy stays when nothing came";
    EXPECT_FALSE(box(11).isChecked());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmCommTest, EndsTheFileInWorkWhenLeftInTheMidst)
{
    box(2).click();
    QTimer::singleShot(0, &form, [this] { QTest::keyClick(&form, Qt::Key_Escape); });
    upload();
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(
        store::Database(values.databasePath).openTable(QStringLiteral("memoryallocation")).recordCount(), 1);
    EXPECT_FALSE(pathExists(joinPath(values.customerPath, QStringLiteral("1.dat"))));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FrmCommTest, DialsExchangesAndHangsUp)
{
    useModem();
    press("CSCmdBtn1");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(far.received(), QByteArray()) << "no connection type was read yet";
    form.show();
    box(2).click();
    const std::deque<PseudoModem::Answer> connects{{"OK"}, {"OK"}, {"CONNECT"}};
    const QByteArray call = "AT&F\rATZ1\rATD\r+++ATH\r";
    const struct {
        const char* name;
        std::deque<PseudoModem::Answer> answers;
        QByteArray received;
        bool moves;
        int failure; ///< that ends the run
    } calls[] = {
        {"no answer", {}, "AT&F\r+++ATH\r", false, 0},
        {"a call", connects, call, true, 0},
        {"a failure in the midst", connects, call, false, 13},
    };
    QByteArray expected;
    for (const auto& c : calls) {
        SCOPED_TRACE(c.name);
        boxes.shown.clear();
        box(2).setChecked(true);
        folder.setFaults(c.failure == 0 ? "" : "[Bad]\nTool=VELMARCOMM\nStatus=garbage\n");
        far.willAnswer(c.answers);
        upload();
        expected += c.received;
        EXPECT_EQ(far.received(), expected);
        EXPECT_EQ(box(2).isChecked(), !c.moves);
        const auto failure = test::takeFailure();
        EXPECT_EQ(failure ? failure->number() : 0, c.failure);
        EXPECT_EQ(boxes.shown, std::vector<test::ShownBox>(c.answers.empty() ? 1 : 0,
                                                           {QStringLiteral("Modem Failure"),
                                                            QStringLiteral("Communications Error")}));
        EXPECT_EQ(pathExists(folder.appFile(QStringLiteral("status.out"))), !c.answers.empty());
    }
    press("CSCmdBtn1");
    EXPECT_EQ(far.received(), expected + "+++ATH\r") << "leaving hangs up in any case";
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
    upload();
    EXPECT_EQ(shown, QStringLiteral("Resetting Modem .......AT&F"));
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(far.received(), QByteArray("AT&F\r+++ATH\r"));
    EXPECT_FALSE(pathExists(folder.appFile(QStringLiteral("status.out"))));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace norvane::exchange
