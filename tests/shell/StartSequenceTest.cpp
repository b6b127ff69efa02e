// The start with a clock of the test's own: how long the splash stays, what the choice of a customer sets.
#include "shell/StartSequence.h"

#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <deque>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

QWidget* shown(const QString& name)
{
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible())
            return window;
    }
    return nullptr;
}

class StartSequenceTest : public ShellFixture
{
protected:
    StartSequenceTest() { m_values.databasePath.clear(); }

    /// Runs the start with these clock readings and then acts on the customer dialog.
    bool run(std::deque<double> readings, const std::function<void(QWidget&)>& choose)
    {
        m_readings = std::move(readings);
        QTimer waitForDialog;
        QObject::connect(&waitForDialog, &QTimer::timeout, [&] {
            if (QWidget* const dialog = shown(u"FrmCustomer"_s)) {
                waitForDialog.stop();
                EXPECT_EQ(m_main.statusBar1().panel(), u"Ready.....");
                EXPECT_EQ(shown(u"frmSplash"_s), nullptr);
                EXPECT_FALSE(m_main.isVisible());
                choose(*dialog);
            }
        });
        waitForDialog.start(0);
        return StartSequence(m_values, m_boxes, m_main, [this] { return nextReading(); }).run();
    }
    static void take(QWidget& dialog, const QString& name)
    {
        QTest::keyClicks(dialog.findChild<QWidget*>(u"text1"_s), name);
        dialog.findChild<QPushButton*>(u"CSCmdBtn1"_s)->click();
    }

    FrmMain m_main{m_values, m_boxes, {}};
    std::function<void(QWidget&)> m_onSplash = [](QWidget&) {
    };
    std::deque<double> m_readings;

private:
    double nextReading()
    {
        if (QWidget* const splash = shown(u"frmSplash"_s))
            m_onSplash(*splash);
        const double reading = m_readings.front();
        m_readings.pop_front();
        return reading;
    }
};

TEST_F(StartSequenceTest, TheSplashStaysALittleOverFourSecondsAndNobodyShortensIt)
{
    m_onSplash = [this](QWidget& splash) {
        EXPECT_EQ(m_main.statusBar1().panel(), u"About.....");
        EXPECT_EQ(splash.windowTitle(), u"About Norvane Velmar and Dorvik Utility.");
        EXPECT_EQ(splash.findChild<QLabel*>(u"lblTitle"_s)->text(), applicationTitle());
        EXPECT_EQ(splash.findChild<QLabel*>(u"lblVersion"_s)->text(), u"Version " NORVANE_VERSION);
        QTest::mouseClick(&splash, Qt::LeftButton);
        QTest::keyClick(&splash, Qt::Key_Escape);
        splash.close();
        EXPECT_TRUE(splash.isVisible());
    };
    EXPECT_TRUE(run({100, 102, 104, 104.1, 999}, [](QWidget& dialog) { take(dialog, u"Cafe"_s); }));
    EXPECT_EQ(m_readings, std::deque<double>{999}) << "exactly four seconds are not yet enough";
}

TEST_F(StartSequenceTest, AStartBeforeMidnightWaitsForTheNextDay)
{
    EXPECT_TRUE(run({86'398, 86'399, 1, 5, 40'000, 86'397, 86'402.5},
                    [](QWidget& dialog) { take(dialog, u"Cafe"_s); }));
    EXPECT_TRUE(m_readings.empty());
}

TEST_F(StartSequenceTest, ACustomerTakenGivesDatabaseLateFieldAndReadyWindow)
{
    store::TableDefinition mix = *store::catalogueTable(u"productmix"_s);
    mix.fields.removeIf(
        [](const auto& field) { return field.name.compare(u"unitdescription", Qt::CaseInsensitive) == 0; });
    store::Database::create(m_folder.path("app/Cafe/velmar.mdb"), {mix});
    EXPECT_TRUE(run({0, 5}, [](QWidget& dialog) { take(dialog, u"CAFE"_s); }));
    EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"));
    EXPECT_EQ(store::Database(m_values.databasePath).table(u"productmix"_s).fields.size(),
              mix.fields.size() + 1);
    EXPECT_TRUE(m_main.isVisible());
    EXPECT_EQ(m_main.statusBar1().statusText(), u"Customer Database CAFE");
}

TEST_F(StartSequenceTest, AFolderWithoutADatabaseReachesTheMainWindowAllTheSame)
{
    EXPECT_TRUE(run({0, 5}, [](QWidget& dialog) { take(dialog, u"cafe"_s); }));
    EXPECT_TRUE(m_main.isVisible());
    EXPECT_FALSE(QFile::exists(m_values.databasePath));
}

TEST_F(StartSequenceTest, ClosingTheCustomerDialogEndsTheStart)
{
    m_boxes.answers = {true};
    EXPECT_FALSE(run({0, 5}, [](QWidget& dialog) { dialog.close(); }));
    EXPECT_FALSE(m_main.isVisible());
    EXPECT_EQ(m_values.databasePath, QString());
}

} // namespace
} // namespace norvane::shell
