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
        const auto clock = [&readings, this] {
            if (QWidget* const splash = shown(u"frmSplash"_s))
                lookAt(*splash);
            const double reading = readings.front();
            readings.pop_front();
            return reading;
        };
        const bool chosen = StartSequence(m_values, m_boxes, m_main, clock).run();
        EXPECT_EQ(readings, std::deque<double>{999}) << "exactly four seconds are not yet enough";
        return chosen;
    }
    void lookAt(QWidget& splash)
    {
        EXPECT_EQ(m_main.statusBar1().panel(), u"About.....");
        EXPECT_EQ(splash.windowTitle(), u"About Norvane Velmar and Dorvik Utility.");
        EXPECT_EQ(child<QLabel>(splash, "lblTitle").text(), applicationTitle());
        EXPECT_EQ(child<QLabel>(splash, "lblVersion").text(), u"Version " NORVANE_VERSION);
        QTest::mouseClick(&splash, Qt::LeftButton);
        QTest::keyClick(&splash, Qt::Key_Escape);
        splash.close();
        EXPECT_TRUE(splash.isVisible()) << "nobody shortens it";
    }

    FrmMain m_main{m_values, m_boxes, {}};
};

TEST_F(StartSequenceTest, ACustomerTakenGivesAnUpgradedDatabaseAndAReadyWindow)
{
    // As an older version made it.
    QList<store::TableDefinition> tables;
    for (const auto& [name, lateFields] :
         {std::pair{u"productmix"_s, u"unitdescription"_s}, {u"authoritylevel"_s, u"disallow"_s}}) {
        tables.append(*store::catalogueTable(name));
        tables.back().fields.removeIf([&late = lateFields](const auto& field) {
            return field.name.startsWith(late, Qt::CaseInsensitive);
        });
    }
    store::Database::create(m_folder.path("app/Cafe/velmar.mdb"), tables);
    EXPECT_TRUE(run({100, 102, 104, 104.1, 999}, [](QWidget& dialog) {
        QTest::keyClicks(&child<QWidget>(dialog, "text1"), u"cAFE"_s);
        child<QPushButton>(dialog, "CSCmdBtn1").click();
    }));
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe")) << "as it is on disk";
    EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"));
    for (const auto& table : tables) {
        const auto fields = store::Database(m_values.databasePath).table(table.name).fields.size();
        EXPECT_GT(fields, table.fields.size()) << table.name.toStdString();
    }
    EXPECT_TRUE(m_main.isVisible());
    EXPECT_EQ(m_main.statusBar1().statusText(), u"Customer Database cAFE") << "as typed";
}

TEST_F(StartSequenceTest, ClosingTheCustomerDialogAsksAndOnlyYesEndsTheStart)
{
    m_boxes.answers = {false, true};
    EXPECT_FALSE(run({0, 4.1, 999}, [](QWidget& dialog) {
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }));
    EXPECT_EQ(m_boxes.shown,
              std::vector(2, test::ShownBox{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question}));
    EXPECT_FALSE(m_main.isVisible());
    EXPECT_EQ(m_values.databasePath, QString());
}

} // namespace
} // namespace norvane::shell
