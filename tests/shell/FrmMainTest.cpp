// The menu in the real main window, its child windows, the status bar and the end of the program.
#include "shell/FrmMain.h"

#include "shell/FrameOpeners.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

namespace norvane::shell
{
namespace
{

class FrmMainTest : public ShellFixture
{
protected:
    FrmMainTest()
    {
        m_openers.screen = [this](FrmMain&, const QString& screenFilePath) {
            EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "the wait pointer";
            m_opened = screenFilePath;
        };
        m_openers.forms = makeFrameOpeners(m_values, m_boxes);
        m_openers.forms.insert(u"FrmComm"_s, [this](FrmMain&, const MenuEntry& entry) {
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
            m_opened = QString(entry.name);
        });
        m_openers.forms.insert(u"MoreReports"_s,
                               [this](FrmMain&, const MenuEntry& entry) { m_opened = QString(entry.name); });
        m_main.emplace(m_values, m_boxes, m_openers);
        m_main->show();
    }

    void choose(const char* entry)
    {
        const auto* const menu = m_main->findChild<QMenu*>(QLatin1String(entry));
        (menu ? *menu->menuAction() : child<QAction>(*m_main, entry)).trigger();
    }
    QStringList childWindows()
    {
        QStringList names;
        for (const QMdiSubWindow* const child : m_main->findChild<QMdiArea*>()->subWindowList())
            names.append(child->widget() ? child->widget()->objectName() : u"(empty frame)"_s);
        return names;
    }

    /// Enters a customer in the dialog, and leaves the dialog by Escape if it is still open then.
    void changeCustomer(const QString& typed)
    {
        QTimer::singleShot(0, [typed] {
            QPointer<QWidget> dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            QTest::keyClicks(&child<QWidget>(*dialog, "text1"), typed);
            child<QPushButton>(*dialog, "CSCmdBtn1").click();
            if (dialog && dialog->isVisible())
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        choose("ChangeCustomer");
    }

    FrmMain::Openers m_openers;
    QString m_opened; ///< the screen file, or the entry that asked for a form
    std::optional<FrmMain> m_main;
};

TEST_F(FrmMainTest, MenusShowTheirEntriesInOrderAndGreyedOnesCannotBeChosen)
{
    const auto bar = m_main->menuBar()->actions();
    EXPECT_EQ(bar.first()->text(), u"E&xit"_s);
    EXPECT_TRUE(bar.first()->isEnabled());
    EXPECT_EQ(bar.last()->text(), u"&Help"_s);
    EXPECT_FALSE(bar.last()->isEnabled());
    EXPECT_TRUE(m_main->findChild<QMenu*>(u"Utils"_s)->actions().at(2)->isSeparator());
    EXPECT_EQ(m_main->findChild<QMenu*>(u"SystemMenu"_s)->actions().last()->text(),
              u"E.&J. && Detail Printing Options"_s);
}

TEST_F(FrmMainTest, EntriesOpenTheirFileOrForm)
{
    setModel("2");
    const QString app = m_values.appPath;
    const std::pair<const char*, QString> rows[] = {{"PLUMENU", app + u"/PLUVelmarv3.scn"_s},
                                                    {"EuroPrice", app + u"/plutble.scn"_s},
                                                    {"DownloadVelmar", u"DownloadVelmar"_s}};
    for (const auto& [entry, opened] : rows) {
        choose(entry);
        EXPECT_EQ(std::exchange(m_opened, {}), opened) << entry;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
}

TEST_F(FrmMainTest, AKeyOpensTheReportsOutsideTheMenu)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*m_main));
    QTest::keyClick(&*m_main, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_opened, u"MoreReports"_s);
}

TEST_F(FrmMainTest, SetupAndAboutOpenOnceInTheMiddleAndUseTheStatusBar)
{
    choose("DataSetup");
    choose("DataSetup");
    EXPECT_EQ(m_main->statusBar1().panel(), u"Setup.....");
    QMdiSubWindow* const setup = m_main->findChild<QMdiArea*>()->subWindowList().first();
    EXPECT_EQ(setup->pos(),
              QPoint((m_main->width() - setup->width()) / 2, (m_main->height() - setup->height()) / 2));
    choose("About");
    EXPECT_EQ(m_main->statusBar1().panel(), u"About.....");
    EXPECT_EQ(childWindows(), (QStringList{u"FrmSetup"_s, u"frmAbout"_s}));
    child<QPushButton>(*m_main, "cmdOK").click();
    EXPECT_EQ(m_main->statusBar1().panel(), u"Ready.....");
    setup->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return childWindows().isEmpty(); }));
}

const test::ShownBox exitQuestion{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No};

TEST_F(FrmMainTest, AChangeOfCustomerKeepsTheDatabaseAndEscapeChangesNothing)
{
    changeCustomer(u"No/Where"_s);
    EXPECT_EQ(std::exchange(m_boxes.shown, {}).size(), 1U) << "only that the name is refused";
    EXPECT_EQ(m_values.customerName, u"Cafe"_s);
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe"));
    const QString database = m_values.databasePath;
    m_boxes.whileOpen = [](const test::ShownBox&) {
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the dialog has gone";
    };
    changeCustomer(u"New"_s);
    EXPECT_EQ(m_main->statusBar1().statusText(), u"Customer Database New");
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/New"));
    EXPECT_EQ(m_values.databasePath, database);
    const test::ShownBox made{
        u"Your new database has been created please\rupload program from your cash register.  \r"_s,
        u"Information "_s, BoxIcon::Information};
    EXPECT_EQ(m_boxes.shown, std::vector{made});
}

TEST_F(FrmMainTest, EveryWayOutAsksOnce)
{
    QSignalSpy ended(&*m_main, &FrmMain::unloaded);
    choose("DataSetup");
    m_boxes.answers = {false, false, true};
    choose("Exit");
    m_main->close();
    EXPECT_TRUE(m_main->isVisible());
    EXPECT_EQ(childWindows(), QStringList{u"FrmSetup"_s});
    EXPECT_EQ(ended.size(), 0);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    choose("ChangeCustomer");
    EXPECT_FALSE(m_main->isVisible());
    EXPECT_EQ(ended.size(), 1);
    EXPECT_EQ(m_boxes.shown, (std::vector{exitQuestion, exitQuestion, exitQuestion}));
}

} // namespace
} // namespace norvane::shell
