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

using namespace Qt::Literals::StringLiterals;

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
        return *form.findChild<QCheckBox*>(u"check1_%1"_s.arg(index));
    }
    [[nodiscard]] QPushButton& button(const char* name) const
    {
        return *form.findChild<QPushButton*>(QLatin1String(name));
    }
    void press(const char* name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    [[nodiscard]] QString status() const
    {
        return form.findChild<QStatusBar*>(u"StatusBar1"_s)->currentMessage();
    }
    void upload()
    {
        press("Communicate");
    }
    /// Puts the modem at the far end of the line and makes it the customer's connection.
    void useModem()
    {
        for (const auto& [key, value] : {std::pair("Connectiontype", "1"), {"ModemDelay", "30"}}) {
            ProfileFile::write(settingsPath(values), u"SetupOption"_s, QLatin1String(key),
                               QLatin1String(value));
        }
        form.setSerialLine(makeSerialLine({far.device()}));
        auto quick = std::make_unique<QuickClock>(far);
        clock = quick.get();
        form.setClock(std::move(quick));
    }

    test::ProgramFolder folder;
    ApplicationValues values = folder.makeCustomer(u"Corner Shop"_s);
    test::RecordingBoxes boxes;
    PseudoModem far;
    QuickClock* clock = nullptr;
    FrmComm form{u"UPLOAD"_s, values, boxes};
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
    EXPECT_EQ(box(11).text(), u"Printer Tables && KV Routing"_s);
    EXPECT_EQ(box(36).text(), u"Smartcard PLU Points"_s);
    for (const auto& [name, text] :
         {std::pair("Communicate", "&OK"), {"CSCmdBtn1", "E&xit"}, {"CSCmdBtn2", "&Select All"}})
        EXPECT_EQ(button(name).text(), QLatin1String(text));
}

TEST_F(FrmCommTest, NamesAToolThatIsMissingAndGoesByTheFormerResult)
{
    box(11).click();
    upload();
    EXPECT_EQ(status(), QString());
    const QString kept = joinPath(values.customerPath, u"43.dat"_s);
    const QByteArray bytes = readWholeFile(kept);
    EXPECT_TRUE(QFile::remove(existingPath(folder.appFile(u"43.dat"_s))));
    folder.removeTool("VELMARCOMM");
    box(11).click();
    upload();
    EXPECT_EQ(status(), u"The program VELMARCOMM was not found."_s);
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
    EXPECT_EQ(store::Database(values.databasePath).openTable(u"memoryallocation"_s).recordCount(), 1);
    EXPECT_FALSE(pathExists(joinPath(values.customerPath, u"1.dat"_s)));
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
                                                           {u"Modem Failure"_s, u"Communications Error"_s}));
        EXPECT_EQ(pathExists(folder.appFile(u"status.out"_s)), !c.answers.empty());
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
    EXPECT_EQ(shown, u"Resetting Modem .......AT&F"_s);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(far.received(), QByteArray("AT&F\r+++ATH\r"));
    EXPECT_FALSE(pathExists(folder.appFile(u"status.out"_s)));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace norvane::exchange
