// The start with a clock of the test's own: how long the splash is shown, what the customer dialog does, what
// is set afterwards.
#include "shell/StartSequence.h"

#include "customers/CustomerFolders.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

#include <deque>

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

    /// Runs the start with these clock readings, the last of which is never read, and calls @p choose with
    /// the customer dialog.
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
        EXPECT_EQ(child<QLabel>(splash, "lblVersion").text(), u"Version " NORVANE_VERSION);
        QTest::mouseClick(&splash, Qt::LeftButton);
        QTest::keyClick(&splash, Qt::Key_Escape);
        splash.close();
        EXPECT_TRUE(splash.isVisible()) << "nobody shortens it";
    }

    FrmMain m_main{m_values, m_boxes, {}};
};

/// A click on a customer writes its name, also when the user had cleared the text.
void clickCustomers(QWidget& dialog)
{
    EXPECT_EQ(dialog.windowTitle(), u"Select Customer");
    auto& list = *dialog.findChild<QListWidget*>(u"List1"_s);
    auto& name = *dialog.findChild<QLineEdit*>(u"text1"_s);
    EXPECT_EQ(name.text(), QString());
    const std::pair<int, QString> clicks[] = {{1, u"CAFE"_s}, {1, u"CAFE"_s}, {0, u"AROMA"_s}};
    for (const auto& [row, customer] : clicks) {
        name.clear();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        EXPECT_EQ(name.text(), customer);
    }
}

TEST_F(StartSequenceTest, AChosenCustomerHasAnUpgradedDatabaseAndAWindow)
{
    // Made by an older version, which had no such fields.
    const QRegularExpression late(u"^(unitdescription|disallow)"_s,
                                  QRegularExpression::CaseInsensitiveOption);
    QList tables{*store::catalogueTable(u"productmix"_s), *store::catalogueTable(u"authoritylevel"_s)};
    for (auto& table : tables)
        table.fields.removeIf([&late](const auto& field) { return field.name.contains(late); });
    store::Database::create(m_folder.path("app/Cafe/velmar.mdb"), tables);
    m_folder.write("app/Aroma/setup.ini", "");
    EXPECT_TRUE(run({100, 102, 104, 104.1, 999}, [](QWidget& dialog) {
        clickCustomers(dialog);
        auto& name = child<QLineEdit>(dialog, "text1");
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

TEST_F(StartSequenceTest, AWrongNameIsReportedAndOnlyYesEndsTheStart)
{
    m_boxes.answers = {false, true};
    EXPECT_FALSE(run({0, 4.1, 999}, [](QWidget& dialog) {
        for (const QString& typed : {u"   "_s, u"../x"_s, u"No/Where"_s}) {
            child<QLineEdit>(dialog, "text1").setText(typed);
            child<QPushButton>(dialog, "CSCmdBtn1").click();
            EXPECT_TRUE(dialog.isVisible()) << typed.toStdString();
        }
        dialog.close(); // answered with No
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    }));
    const test::ShownBox invalid{u"Invalid Entry"_s, applicationTitle(), BoxIcon::Critical};
    const test::ShownBox refused{u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                                 BoxIcon::Critical};
    const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No};
    EXPECT_EQ(m_boxes.shown, (std::vector{invalid, refused, refused, question, question}));
    EXPECT_FALSE(m_main.isVisible());
    EXPECT_EQ(m_values.databasePath, QString());
}

void takeCafe(QWidget& dialog)
{
    dialog.findChild<QLineEdit*>(u"text1"_s)->setText(u"Cafe"_s);
    dialog.findChild<QPushButton*>(u"CSCmdBtn1"_s)->click();
}

TEST_F(StartSequenceTest, LostSettingsOfACustomerWithRecordsAreReported)
{
    const QString database = m_folder.path("app/Cafe/velmar.mdb");
    store::Database::create(database, store::catalogue());
    test::execute(database, u"insert into GROUPS (GROUPNO) values (1)"_s);
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    EXPECT_TRUE(run({0, 4.1, 999}, takeCafe));
    EXPECT_EQ(m_boxes.shown, (std::vector{test::ShownBox{customers::newSettingsReport(),
                                                         u"Settings Missing"_s, BoxIcon::Exclamation}}));
}

TEST_F(StartSequenceTest, ADamagedDatabaseIsReportedAndLeftUnchanged)
{
    store::Database::create(m_folder.path("app/Cafe/velmar.mdb"), store::catalogue());
    const QByteArray damaged = m_folder.read("app/Cafe/velmar.mdb").chopped(100);
    m_folder.write("app/Cafe/velmar.mdb", damaged);
    m_boxes.answers = {true};
    EXPECT_FALSE(run({0, 4.1, 999}, [](QWidget& dialog) {
        takeCafe(dialog);
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    }));
    EXPECT_EQ(m_boxes.shown.front().title, u"Damaged Database"_s);
    EXPECT_TRUE(m_boxes.shown.front().text.contains(u"should have %1."_s.arg(damaged.size() + 100)));
    EXPECT_EQ(m_folder.read("app/Cafe/velmar.mdb"), damaged);
}

} // namespace
} // namespace norvane::shell
