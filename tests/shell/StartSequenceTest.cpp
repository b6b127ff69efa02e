// The start with a clock of the test's own: how long the splash stays, the customer dialog as the user meets
// it there, what the choice sets.
#include "shell/StartSequence.h"

#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
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
    m_folder.write("app/Aroma/setup.ini", "");
    EXPECT_TRUE(run({100, 102, 104, 104.1, 999}, [](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Select Customer");
        auto& list = child<QListWidget>(dialog, "List1");
        auto& name = child<QLineEdit>(dialog, "text1");
        EXPECT_EQ(list.count(), 2);
        EXPECT_EQ(name.text(), QString());
        const std::pair<int, QString> clicks[] = {{1, u"CAFE"_s}, {1, u"CAFE"_s}, {0, u"AROMA"_s}};
        for (const auto& [row, customer] : clicks) {
            name.clear();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                              list.visualItemRect(list.item(row)).center());
            EXPECT_EQ(name.text(), customer);
        }
        name.setText(u"cAFE"_s);
        QTest::keyClick(&name, Qt::Key_Return);
    }));
    EXPECT_TRUE(m_boxes.shown.empty());
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe")) << "as it is on disk";
    EXPECT_EQ(m_values.databasePath, m_folder.path("app/Cafe/velmar.mdb"));
    for (const auto& table : tables) {
        const auto fields = store::Database(m_values.databasePath).table(table.name).fields.size();
        EXPECT_GT(fields, table.fields.size()) << table.name.toStdString();
    }
    EXPECT_TRUE(m_main.isVisible());
    EXPECT_EQ(m_main.statusBar1().statusText(), u"Customer Database cAFE") << "as typed";
}

TEST_F(StartSequenceTest, AWrongNameIsToldAndOnlyYesEndsTheStart)
{
    const test::ShownBox refused{u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                                 BoxIcon::Critical};
    const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question};
    m_boxes.answers = {false, true};
    EXPECT_FALSE(run({0, 4.1, 999}, [](QWidget& dialog) {
        for (const QString& typed : {u"   "_s, u"../x"_s, u"No/Where"_s}) {
            child<QLineEdit>(dialog, "text1").setText(typed);
            child<QPushButton>(dialog, "CSCmdBtn1").click();
            EXPECT_TRUE(dialog.isVisible()) << typed.toStdString();
        }
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }));
    EXPECT_EQ(m_boxes.shown,
              (std::vector<test::ShownBox>{{u"Invalid Entry"_s, applicationTitle(), BoxIcon::Critical},
                                           refused,
                                           refused,
                                           question,
                                           question}));
    EXPECT_FALSE(m_main.isVisible());
    EXPECT_EQ(m_values.databasePath, QString());
}

} // namespace
} // namespace norvane::shell
