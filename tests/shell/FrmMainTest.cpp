// The menu in the real main window, the windows in it, the status bar and the way out.
#include "shell/FrmMain.h"

#include "shell/FrameOpeners.h"
#include "shell/MainStatusBar.h"
#include "shell/NotYetBuilt.h"
#include "tests/shell/ShellFixture.h"
#include "tests/support/FormTest.h"

#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

class FrmMainTest : public ShellFixture
{
protected:
    FrmMainTest()
    {
        for (const MenuEntry& entry : menuTree()) {
            if (entry.opens == Opens::Form || entry.opens == Opens::ModelForm)
                record(targetOfForm(entry));
        }
        record(u"OptionForm"_s);
        m_openers.insert(makeFrameOpeners(m_values, m_boxes));
        m_main.emplace(m_values, m_boxes, m_openers);
        m_main->show();
    }

    static QString targetOfForm(const MenuEntry& entry)
    {
        return entry.opens == Opens::ModelForm ? u"KeyLayoutVelmar"_s : QString(entry.target);
    }
    void record(const QString& form)
    {
        m_openers.insert(form, [this, form](FrmMain&, const MenuEntry& entry) {
            m_opened.append(QString(entry.name) + u" "_s +
                            (form == u"OptionForm" ? m_values.screenFilePath : form));
            m_waiting = QGuiApplication::overrideCursor() != nullptr;
        });
    }
    QAction& action(const QString& name)
    {
        if (auto* const menu = m_main->findChild<QMenu*>(name))
            return *menu->menuAction();
        return *m_main->findChild<QAction*>(name);
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
    QString panel() { return m_main->statusBar1().panel(); }

    FrmMain::Openers m_openers;
    QStringList m_opened;
    bool m_waiting = false;
    std::optional<FrmMain> m_main;
};

TEST_F(FrmMainTest, MenusShowTheirEntriesInOrderAndGreyedOnesCannotBeChosen)
{
    const std::pair<QString, QStringList> menus[] = {
        {u""_s,
         {u"E&xit"_s, u"&Files"_s, u"&Communications"_s, u"&Reports"_s, u"&Utilities"_s, u"&Keyboards"_s,
          u"N&V Image (grey)"_s, u"&Setup"_s, u"&About"_s, u"&Help (grey)"_s}},
        {u"MessagesMenu"_s,
         {u"&Logo Message"_s, u"&Error Message"_s, u"&System Descriptors (grey)"_s, u"&Report Descriptors"_s,
          u"Che&que Endorsement Message"_s, u"&Guest Check Logo Message"_s, u"&Validation Message"_s}},
        {u"Utils"_s,
         {u"Transfer Current Price to &Euro"_s, u"Transfer Euro Price to &Current"_s, u"-"_s,
          u"Transfer 1st Price To 2nd Price (Euro)"_s, u"Transfer 2nd Price to 1st Price (Euro)"_s, u"-"_s,
          u"Reset Sales"_s, u"&Reset Prices"_s}},
    };
    for (const auto& [menu, expected] : menus)
        EXPECT_EQ(captions(menu), expected) << menu.toStdString();
    EXPECT_TRUE(captions(u"SystemMenu"_s).endsWith(u"E.&J. && Detail Printing Options"_s));
}

TEST_F(FrmMainTest, EveryEntryThatIsBuiltOpensItsFileOrFormAndNoOther)
{
    setModel("2");
    const QString app = m_values.appPath;
    const std::pair<QString, QString> rows[] = {{u"PLUMENU"_s, app + u"/PLUVelmarv3.scn"_s},
                                                {u"EuroPrice"_s, app + u"/plutble.scn"_s},
                                                {u"PLUStatusMenu"_s, app + u"/PLUstatVelmarv3.scn"_s},
                                                {u"GroupMenu"_s, app + u"/Group.scn"_s},
                                                {u"ProductMixMenu"_s, app + u"/pmix.scn"_s},
                                                {u"MixNMatchTable"_s, app + u"/mix.scn"_s},
                                                {u"ViewMemorys"_s, app + u"/Memory.scn"_s},
                                                {u"UploadVelmar"_s, u"FrmComm"_s},
                                                {u"DownloadVelmar"_s, u"FrmComm"_s}};
    for (const auto& [entry, opened] : rows) {
        m_opened.clear();
        action(entry).trigger();
        EXPECT_EQ(m_opened, QStringList{entry + u" "_s + opened});
    }
    action(u"PLUMENU"_s).trigger();
    EXPECT_TRUE(m_waiting) << "the wait pointer while a screen builds itself";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    m_opened.clear();
    for (const QLatin1StringView entry : notYetBuilt()) {
        ASSERT_TRUE(menuEntry(entry)) << entry.data();
        EXPECT_TRUE(action(entry).isEnabled()) << entry.data();
        action(entry).trigger();
    }
    EXPECT_EQ(m_opened, QStringList()) << "nothing stands behind them";
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(FrmMainTest, SetupAndAboutStandOnceInTheMiddleAndSpeakInTheStatusBar)
{
    EXPECT_EQ(panel(), u"Ready.....");
    action(u"DataSetup"_s).trigger();
    action(u"DataSetup"_s).trigger();
    EXPECT_EQ(childWindows(), QStringList{u"FrmSetup"_s});
    EXPECT_EQ(panel(), u"Setup.....");
    QMdiSubWindow* const child = m_main->findChild<QMdiArea*>()->subWindowList().first();
    EXPECT_EQ(child->pos(),
              QPoint((m_main->width() - child->width()) / 2, (m_main->height() - child->height()) / 2));

    action(u"About"_s).trigger();
    EXPECT_EQ(panel(), u"About.....");
    EXPECT_EQ(childWindows(), (QStringList{u"FrmSetup"_s, u"frmAbout"_s}));
    QWidget* const about = m_main->findChild<QWidget*>(u"frmAbout"_s);
    EXPECT_EQ(about->windowTitle(), u"About Norvane Velmar and Dorvik Utility.");
    EXPECT_EQ(about->findChild<QLabel*>(u"lblVersion"_s)->text(), u"Version " NORVANE_VERSION);
    EXPECT_EQ(about->findChild<QLabel*>(u"lblDescription"_s)->text(), u"Norvane Dorvik Programming Utility");
    about->findChild<QPushButton*>(u"cmdSysInfo"_s)->click();
    EXPECT_EQ(m_boxes.shown.back().text, u"System Information Is Unavailable At This Time");
    about->findChild<QPushButton*>(u"cmdOK"_s)->click();
    EXPECT_EQ(panel(), u"Ready.....");
    EXPECT_TRUE(QTest::qWaitFor([this] { return childWindows() == QStringList{u"FrmSetup"_s}; }));
    child->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return childWindows().isEmpty(); }));
}

TEST_F(FrmMainTest, AWrongSettingsFileIsAFailureOfTheWholeProgram)
{
    setModel("17");
    QTimer::singleShot(0, &action(u"DataSetup"_s), &QAction::trigger);
    std::optional<RuntimeFailure> failure;
    ASSERT_TRUE(QTest::qWaitFor([&failure] { return (failure = test::takeFailure()).has_value(); }));
    EXPECT_EQ(failure->number(), 5);
    EXPECT_TRUE(failure->text().contains(u"ECRModel=17 in "_s + m_folder.path("app/Cafe/setup.ini")));
    EXPECT_EQ(childWindows(), QStringList());
}

TEST_F(FrmMainTest, AChangeOfCustomerKeepsTheDatabase)
{
    m_folder.write("app/Aroma/setup.ini", "");
    const QString database = m_values.databasePath;
    QTimer::singleShot(0, [] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        QTest::keyClicks(dialog->findChild<QWidget*>(u"text1"_s), u"AROMA"_s);
        dialog->findChild<QPushButton*>(u"CSCmdBtn1"_s)->click();
    });
    QSignalSpy ended(&*m_main, &FrmMain::unloaded);
    action(u"ChangeCustomer"_s).trigger();
    EXPECT_EQ(m_main->statusBar1().statusText(), u"Customer Database AROMA");
    EXPECT_EQ(m_values.customerPath, m_folder.path("app/Aroma"));
    EXPECT_EQ(m_values.databasePath, database);
    EXPECT_EQ(ended.size(), 0);

    m_boxes.answers = {true};
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    action(u"ChangeCustomer"_s).trigger();
    EXPECT_EQ(ended.size(), 1) << "closing the dialog and Yes ends the program";
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "with one question, not two";
}

TEST_F(FrmMainTest, LeavingAsksAndNoLeavesEverythingAsItWas)
{
    QSignalSpy ended(&*m_main, &FrmMain::unloaded);
    action(u"DataSetup"_s).trigger();
    m_boxes.answers = {false, false, true};
    action(u"Exit"_s).trigger();
    m_main->close();
    EXPECT_TRUE(m_main->isVisible());
    EXPECT_EQ(childWindows(), QStringList{u"FrmSetup"_s});
    EXPECT_EQ(ended.size(), 0);
    action(u"Exit"_s).trigger();
    EXPECT_FALSE(m_main->isVisible());
    EXPECT_EQ(ended.size(), 1);
    const test::ShownBox question{u"Are You Sure?"_s, u"Exit Program"_s, BoxIcon::Question};
    EXPECT_EQ(m_boxes.shown, std::vector(3, question));
}

} // namespace
} // namespace norvane::shell
