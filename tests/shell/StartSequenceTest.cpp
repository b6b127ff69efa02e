// The start with a clock of the test's own: how long the splash stays, what the customer dialog does, what is
// set afterwards.
#include "shell/StartSequence.h"

#include "customers/CustomerFolders.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"

#include <QTest>
#include <QtWidgets>

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
                expectOnlyTheDialog();
                choose(*dialog);
            }
        });
        waitForDialog.start(0);
        const auto clock = [&readings, this] {
            return nextReading(readings);
        };
        const bool chosen = StartSequence(m_values, m_boxes, m_main, clock).run();
        EXPECT_EQ(readings, std::deque<double>{999}) << "exactly four seconds are not yet enough";
        return chosen;
    }
    void expectOnlyTheDialog()
    {
        EXPECT_EQ(m_main.statusBar1().panel(), u"Ready.....");
        EXPECT_EQ(shown(u"frmSplash"_s), nullptr);
        EXPECT_FALSE(m_main.isVisible());
    }
    double nextReading(std::deque<double>& readings)
    {
        if (QWidget* const splash = shown(u"frmSplash"_s))
            lookAt(*splash);
        const double reading = readings.front();
        readings.pop_front();
        return reading;
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

    void expectMoreFieldsThan(const QList<store::TableDefinition>& tables) const
    {
        for (const auto& table : tables) {
            const auto fields = store::Database(m_values.databasePath).table(table.name).fields.size();
            EXPECT_GT(fields, table.fields.size()) << table.name.toStdString();
        }
    }

    FrmMain m_main{m_values, m_boxes, {}};
};

/// The tables of a customer made by an older version: two of them lack their late fields.
QList<store::TableDefinition> olderTables()
{
    QList<store::TableDefinition> tables;
    for (const auto& [name, lateFields] :
         {std::pair{u"productmix"_s, u"unitdescription"_s}, {u"authoritylevel"_s, u"disallow"_s}}) {
        tables.append(*store::catalogueTable(name));
        tables.back().fields.removeIf([&late = lateFields](const auto& field) {
            return field.name.startsWith(late, Qt::CaseInsensitive);
        });
    }
    return tables;
}

/// A click on a customer writes its name, also when the user had cleared the text.
void clickCustomers(QWidget& dialog)
{
    EXPECT_EQ(dialog.windowTitle(), u"Select Customer");
    auto& list = *dialog.findChild<QListWidget*>(u"List1"_s);
    auto& name = *dialog.findChild<QLineEdit*>(u"text1"_s);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(name.text(), QString());
    const std::pair<int, QString> clicks[] = {{1, u"CAFE"_s}, {1, u"CAFE"_s}, {0, u"AROMA"_s}};
    for (const auto& [row, customer] : clicks) {
        name.clear();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
        EXPECT_EQ(name.text(), customer);
    }
}

TEST_F(StartSequenceTest, ACustomerTakenGivesAnUpgradedDatabaseAndAReadyWindow)
{
    const auto tables = olderTables();
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
    expectMoreFieldsThan(tables);
    EXPECT_TRUE(m_main.isVisible());
    EXPECT_EQ(m_main.statusBar1().statusText(), u"Customer Database cAFE") << "as typed";
}

/// Types refused names, then leaves the dialog after No and Yes.
void typeWrongNamesAndLeave(QWidget& dialog)
{
    for (const QString& typed : {u"   "_s, u"../x"_s, u"No/Where"_s}) {
        dialog.findChild<QLineEdit*>(u"text1"_s)->setText(typed);
        dialog.findChild<QPushButton*>(u"CSCmdBtn1"_s)->click();
        EXPECT_TRUE(dialog.isVisible()) << typed.toStdString();
    }
    dialog.close();
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(StartSequenceTest, AWrongNameIsToldAndOnlyYesEndsTheStart)
{
    m_boxes.answers = {false, true};
    EXPECT_FALSE(run({0, 4.1, 999}, typeWrongNamesAndLeave));
    const test::ShownBox invalid{u"Invalid Entry"_s, applicationTitle(), BoxIcon::Critical};
    const test::ShownBox refused{u"Error Creating Directory \rRe run software"_s, u"System Error"_s,
                                 BoxIcon::Critical};
    const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No};
    EXPECT_EQ(m_boxes.shown, (std::vector{invalid, refused, refused, question, question}));
    EXPECT_FALSE(m_main.isVisible());
    EXPECT_EQ(m_values.databasePath, QString());
}

TEST_F(StartSequenceTest, LostSettingsOfACustomerWithRecordsAreTold)
{
    const QString database = m_folder.path("app/Cafe/velmar.mdb");
    store::Database::create(database, store::catalogue());
    test::execute(database, u"insert into GROUPS (GROUPNO) values (1)"_s);
    QFile::remove(m_folder.path("app/Cafe/setup.ini"));
    EXPECT_TRUE(run({0, 4.1, 999}, [](QWidget& dialog) {
        child<QLineEdit>(dialog, "text1").setText(u"Cafe"_s);
        child<QPushButton>(dialog, "CSCmdBtn1").click();
    }));
    EXPECT_EQ(m_boxes.shown, (std::vector{test::ShownBox{customers::newSettingsReport(),
                                                         u"Settings Missing"_s, BoxIcon::Exclamation}}));
}

TEST_F(StartSequenceTest, ADamagedDatabaseIsToldAndLeftAsItIs)
{
    store::Database::create(m_folder.path("app/Cafe/velmar.mdb"), store::catalogue());
    const QByteArray damaged = m_folder.read("app/Cafe/velmar.mdb").chopped(100);
    m_folder.write("app/Cafe/velmar.mdb", damaged);
    m_boxes.answers = {true};
    EXPECT_FALSE(run({0, 4.1, 999}, [](QWidget& dialog) {
        child<QLineEdit>(dialog, "text1").setText(u"Cafe"_s);
        child<QPushButton>(dialog, "CSCmdBtn1").click();
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    }));
    const QString told =
        u"The database of this customer is damaged:\r%1\r\rThe file has %2 bytes and should have %3.\r\r"
        "Nothing was changed in it. Put a copy of the customer's folder in its place, then choose the "
        "customer "
        "again."_s.arg(m_values.customerPath + u"/velmar.mdb"_s)
            .arg(damaged.size())
            .arg(damaged.size() + 100);
    EXPECT_EQ(m_boxes.shown.front(), (test::ShownBox{told, u"Damaged Database"_s, BoxIcon::Critical}));
    EXPECT_EQ(m_folder.read("app/Cafe/velmar.mdb"), damaged);
}

} // namespace
} // namespace norvane::shell
