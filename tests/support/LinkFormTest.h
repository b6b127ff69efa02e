// For the tests of forms that communicate with registers: a customer, the real tools, a bank of registers,
// and a modem on a pseudo terminal.
#pragma once

#include "base/CustomerSettings.h"
#include "platform/FolderLock.h"
#include "platform/ProfileFile.h"
#include "tests/support/FormTest.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/PseudoModem.h"

#include <QRegularExpression>

namespace norvane::test
{

/// Makes and shows a @p Form. No test may leave a failure that it has not taken, nor the wait pointer.
template <typename Form>
class LinkFormTest : public testing::Test
{
protected:
    /// @param registers, plus as ProgramFolder takes them; @param first arguments of the form ahead of values
    /// and boxes.
    template <typename... First>
    explicit LinkFormTest(int registers, int plus, const First&... first)
        : folder(2, registers, plus), form(first..., values, boxes)
    {
        form.show();
    }
    void TearDown() override
    {
        EXPECT_FALSE(takeFailure());
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }

    void press(const char* name) { test::press(form, name); }
    /// Escape, as soon as the form handles events.
    void pressEscapeSoon()
    {
        QTimer::singleShot(0, &form, [this] { QTest::keyClick(&form, Qt::Key_Escape); });
    }
    /// Of the status bar; a run takes one second here.
    [[nodiscard]] std::string status() const
    {
        QString text = child<QStatusBar>(form, "StatusBar1").currentMessage();
        return text.replace(QRegularExpression(u", \\d+ s"_s), u", 1 s"_s).toStdString();
    }

    /// Whether another run could start now.
    [[nodiscard]] bool othersMayStart() const
    {
        RecordingBoxes refusals;
        return FolderLock::take(values.appPath, refusals) && FolderLock::take(values.customerPath, refusals);
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
    /// Lets the modem connect the next call or remain silent.
    void willConnect(bool connects)
    {
        far.willAnswer(connects ? std::deque<PseudoModem::Answer>{{"OK"}, {"OK"}, {"CONNECT"}}
                                : std::deque<PseudoModem::Answer>{});
        expectedCommands += connects ? "AT&F\rATZ1\rATD\r+++ATH\r" : "AT&F\r+++ATH\r";
    }
    /// The calls were made as announced, and the line is free again.
    void expectHungUp() { EXPECT_EQ(far.received(), expectedCommands); }
    void expectExitHangsUp()
    {
        press("CSCmdBtn1");
        expectedCommands += "+++ATH\r";
        expectHungUp();
        EXPECT_FALSE(form.isVisible());
    }

    ProgramFolder folder;
    ApplicationValues values = folder.makeCustomer(u"Corner Shop"_s);
    RecordingBoxes boxes;
    PseudoModem far;
    QuickClock* clock = nullptr;
    QByteArray expectedCommands;
    Form form;
};

} // namespace norvane::test
