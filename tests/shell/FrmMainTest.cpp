// The menu in the real main window, its child windows, the status bar and the end of the program.
#include "shell/FrmMain.h"

#include "shell/FrameOpeners.h"
#include "shell/MainStatusBar.h"
#include "tests/shell/ShellFixture.h"

#include <QSignalSpy>
#include <QTest>
#include <QtWidgets>

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
        m_main.emplace(m_values, m_boxes, m_openers);
        m_main->show();
    }

    void choose(const char* entry)
    {
        const auto* const menu = m_main->findChild<QMenu*>(QLatin1String(entry));
        (menu ? *menu->menuAction() : child<QAction>(*m_main, entry)).trigger();
    }
    QStringList captions(const QString& menu)
    {
        QWidget* const bar = m_main->menuBar();
        const auto actions = menu.isEmpty() ? bar->actions() : m_main->findChild<QMenu*>(menu)->actions();
        QStringList texts;
        for (const QAction* const entry : actions) {
            texts.append(entry->isSeparator() ? u"-"_s
                                              : entry->text() + (entry->isEnabled() ? u""_s : u" (grey)"_s));
        }
        return texts;
    }
    QStringList childWindows()
    {
        QStringList names;
        for (const QMdiSubWindow* const child : m_main->findChild<QMdiArea*>()->subWindowList())
            names.append(child->widget() ? child->widget()->objectName() : u"(empty frame)"_s);
        return names;
    }

    void changeCustomer(const QString& typed)
    {
        QTimer::singleShot(0, [typed] {
            QWidget* const dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            QTest::keyClicks(&child<QWidget>(*dialog, "text1"), typed);
            child<QPushButton>(*dialog, "CSCmdBtn1").click();
        });
        choose("ChangeCustomer");
    }
    void pressButtonsOf(QWidget& about)
    {
        EXPECT_EQ(child<QLabel>(about, "lblDescription").text(), u"Norvane Dorvik Programming Utility");
        child<QPushButton>(about, "cmdSysInfo").click();
        EXPECT_EQ(m_boxes.shown.back().text, u"System Information Is Unavailable At This Time");
        child<QPushButton>(about, "cmdOK").click();
    }

    FrmMain::Openers m_openers;
    QString m_opened; ///< the screen file, or the entry that asked for a form
    std::optional<FrmMain> m_main;
};

TEST_F(FrmMainTest, MenusShowTheirEntriesInOrderAndGreyedOnesCannotBeChosen)
{
    const std::pair<const char*, const char*> menus[] = {
        {"", "E&xit|&Files|&Communications|&Reports|&Utilities|&Keyboards|N&V Image (grey)|&Setup|&About|"
             "&Help (grey)"},
        {"Utils",
         "Transfer Current Price to &Euro|Transfer Euro Price to &Current|-|"
         "Transfer 1st Price To 2nd Price (Euro)|Transfer 2nd Price to 1st Price (Euro)|-|Reset Sales|"
         "&Reset Prices"},
    };
    for (const auto& [menu, expected] : menus)
        EXPECT_EQ(captions(QLatin1String(menu)).join(u'|'), QLatin1String(expected));
    EXPECT_TRUE(captions(u"SystemMenu"_s).endsWith(u"E.&J. && Detail Printing Options"_s));
}

TEST_F(FrmMainTest, EntriesOpenTheirFileOrForm)
{
    setModel("2");
    const QString app = m_values.appPath;
    const std::pair<const char*, QString> rows[] = {{"PLUMENU", app + u"/PLUVelmarv3.scn"_s},
                                                    {"EuroPrice", app + u"/plutble.scn"_s},
                                                    {"ViewMemorys", app + u"/Memory.scn"_s},
                                                    {"UploadVelmar", u"UploadVelmar"_s},
                                                    {"DownloadVelmar", u"DownloadVelmar"_s}};
    for (const auto& [entry, opened] : rows) {
        choose(entry);
        EXPECT_EQ(std::exchange(m_opened, {}), opened) << entry;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
}

TEST_F(FrmMainTest, SetupAndAboutStandOnceInTheMiddleAndSpeakInTheStatusBar)
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
    pressButtonsOf(child<QWidget>(*m_main, "frmAbout"));
    EXPECT_EQ(m_main->statusBar1().panel(), u"Ready.....");
    setup->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return childWindows().isEmpty(); }));
}

const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question, BoxAnswer::No};

TEST_F(FrmMainTest, AChangeOfCustomerKeepsTheDatabase)
{
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

TEST_F(FrmMainTest, EscapeInAChangeOfCustomerChangesNothing)
{
    QTimer::singleShot(0, [] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        QTest::keyClicks(&child<QWidget>(*dialog, "text1"), u"No/Where"_s);
        child<QPushButton>(*dialog, "CSCmdBtn1").click();
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    choose("ChangeCustomer");
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "only that the name is refused";
    EXPECT_TRUE(m_main->isVisible());
    EXPECT_EQ(m_values.customerName, u"Cafe"_s);
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Cafe"));
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
    EXPECT_EQ(m_boxes.shown, (std::vector{question, question, question}));
}

} // namespace
} // namespace norvane::shell
