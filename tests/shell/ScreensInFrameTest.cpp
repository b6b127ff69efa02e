// Screens and small windows in the real main window: access letters beside those of the menu, what the status
// bar tells, and what a screen shows after others have changed its record.
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "shell/Openers.h"
#include "tests/shell/ShellFixture.h"
#include "tests/store/Elsewhere.h"
#include "ui/NumberBox.h"

#include <QTest>
#include <QtWidgets>

namespace norvane::shell
{
namespace
{

const test::ShownBox changed{
    u"Since this record was shown here, it was changed by another screen, a price change or an upload.\r\r"
    "Save replaces those changes by what stands here.\rShow shows them here, and drops what you have typed. "
    "[&Save|S&how]"_s,
    u"Record Changed"_s, BoxIcon::Exclamation};

class ScreensInFrameTest : public ShellFixture
{
protected:
    ScreensInFrameTest()
    {
        makeCustomerDatabase();
        setModel("2");
        QFile::copy(QStringLiteral(DATA_DIR "/PLUVelmarv3.scn"), m_folder.path("app/PLUVelmarv3.scn"));
        addPlu(u"1001', 'Lager', '2.5"_s);
        addPlu(u"1002', 'Cider', '3"_s);
        m_main.emplace(m_values, m_boxes, makeOpeners(m_values, m_boxes));
        m_main->show();
        QApplication::setActiveWindow(&*m_main);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*m_main));
    }

    /// Adds a PLU; all numbers that its screen shows are 0.
    void addPlu(const QString& numberNamePrice) const
    {
        execute(u"insert into PLUDATA (PLUNUMBER, DESCRIPTION, PRICE1) values ('00000000000000%1')"_s.arg(
            numberNamePrice));
        for (const auto& field : store::catalogueTable(u"PLUDATA"_s)->fields) {
            if (field.type == store::FieldType::Long)
                execute(u"update PLUDATA set [%1] = 0"_s.arg(field.name));
        }
    }
    /// Names and first prices of the PLUs.
    [[nodiscard]] std::string plus() const
    {
        return test::rowsOf(m_values.databasePath,
                            u"select DESCRIPTION & ' ' & PRICE1 from PLUDATA order by PLUNUMBER"_s, u"|");
    }
    /// Chooses an entry. @return the form of the child window that is in front then.
    QWidget& open(const char* entry)
    {
        child<QAction>(*m_main, entry).trigger();
        return *m_main->findChild<QMdiArea*>()->activeSubWindow()->widget();
    }
    static void letter(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier); }
    static void type(QWidget& screen, const char* box, const char* text)
    {
        auto& edit = child<QLineEdit>(screen, box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }
    static std::string shown(const QWidget& screen, const char* box)
    {
        return child<QLineEdit>(screen, box).text().toStdString();
    }
    [[nodiscard]] std::string notice() { return m_main->statusBar1().notice().toStdString(); }
    template <typename Condition>
    static bool soon(Condition condition)
    {
        return QTest::qWaitFor(condition, 2000);
    }
    [[nodiscard]] bool allClosed()
    {
        return soon([this] { return m_main->findChild<QMdiArea*>()->subWindowList().isEmpty(); });
    }
    /// Opens the menu that @p act leads to. @return its name.
    QString menuBy(const std::function<void()>& act)
    {
        act();
        QWidget* const menu = QApplication::activePopupWidget();
        QString name = menu ? menu->objectName() : QString();
        if (menu)
            menu->close();
        return name;
    }

    static void save(const QWidget& screen) { child<QPushButton>(screen, "SaveRecord").click(); }
    void bringToFront(const QWidget& screen)
    {
        m_main->findChild<QMdiArea*>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow*>(screen.parentWidget()));
    }

    std::optional<FrmMain> m_main;
};

constexpr auto pluNumber = "TextControl_1";
constexpr auto pluName = "TextControl_2";
constexpr auto firstPrice = "DecimalNumberControl_1";

TEST_F(ScreensInFrameTest, TheLettersOfAScreenWinOverTheMenu)
{
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    letter(Qt::Key_S);
    EXPECT_TRUE(soon([this] { return plus() == "Stout 2.5|Cider 3"; })) << plus();
    EXPECT_EQ(notice(), "Saved PLU 1001");
    letter(Qt::Key_A);
    EXPECT_TRUE(soon([&] { return shown(screen, pluName).empty(); })) << "a new record";
    type(screen, pluNumber, "555");
    letter(Qt::Key_S);
    EXPECT_TRUE(soon([this] { return notice() == "Saved PLU 555"; })) << notice();
    m_boxes.answers = {true};
    letter(Qt::Key_D);
    EXPECT_TRUE(soon([this] { return plus() == "Stout 2.5|Cider 3"; })) << plus();
    letter(Qt::Key_X);
    EXPECT_TRUE(allClosed());
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "only the question before the deletion";
    EXPECT_EQ(notice(), "");
}

TEST_F(ScreensInFrameTest, ANewNumberForAnArticleIsAskedForWithWhatHoldsTheOldOne)
{
    const QString number = u"'000000000000001001'"_s;
    for (const char* key : {"1, '5'", "2, '0'", "3, '0'"})
        execute(u"insert into KEYLINK (ID, KEYLINK) values (%1)"_s.arg(QLatin1String(key)));
    for (const char* key : {"11", "12", "13"}) // belong together by their order
        execute(u"insert into NLU (ID, NLU) values (%1, %2)"_s.arg(QLatin1String(key), number));
    for (const char* line : {"1, 0, '1001', 1, '1001'", "2, 2, '1001', 0, '1002'", "3, 0, '7', 1, '1001'"})
        execute(u"insert into WLU (WLUno, wlutype1, codenumber1, wlutype50, codenumber50) values (%1)"_s.arg(
            QLatin1String(line)));
    execute(u"insert into PLUSTATUS (STATUSNO, LINKEDPLU) values (4, '1001')"_s);
    execute(u"update PLUDATA set STOCKLINK = '1001' where DESCRIPTION = 'Cider'"_s);

    QWidget& screen = open("PLUMENU");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(pluName)) << "not the number";
    type(screen, pluName, "Stout");
    const auto saveAs = [&](const char* plu) {
        m_boxes.shown.clear();
        type(screen, pluNumber, plu);
        save(screen);
        return m_boxes.shown.size() == 1 ? m_boxes.shown.front() : test::ShownBox{};
    };
    EXPECT_EQ(
        saveAs("999"),
        (test::ShownBox{u"PLU 1001 will get the number 999.\r\r1001 is used by 2 keys, 2 look-ups and 2 "
                        "links. They keep the old number and will not find this record any more.\r\r"
                        "Save it under the new number?"_s,
                        u"Please Check"_s, BoxIcon::Question, BoxAnswer::No}));
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    EXPECT_EQ(notice(), "Nothing was stored: PLU 1001 keeps its number");
    EXPECT_EQ(shown(screen, pluNumber), "000000000000001001");
    EXPECT_EQ(shown(screen, pluName), "Stout");
    EXPECT_EQ(saveAs("1002").title, u"Data Error Code3022"_s) << "another record has it";
    m_boxes.answers = {true};
    saveAs("999");
    EXPECT_EQ(plus(), "Stout 2.5|Cider 3");
    EXPECT_EQ(notice(), "Saved PLU 999");
    EXPECT_TRUE(saveAs("1001").text.contains(u"999 is used by no key, look-up or link.\r\rSave it"_s));
    letter(Qt::Key_A);
    EXPECT_TRUE(soon([] { return QApplication::focusWidget()->objectName() == QLatin1String(pluNumber); }))
        << "of a new record";
}

TEST_F(ScreensInFrameTest, CtrlZOpensAScreenAgainThatWasLeftWithTypedChanges)
{
    const auto key = [this](Qt::Key pressed) {
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : &*m_main, pressed, Qt::ControlModifier);
    };
    const auto front = [this]() -> QWidget& {
        return *m_main->findChild<QMdiArea*>()->activeSubWindow()->widget();
    };
    type(open("PLUMENU"), pluName, "Stout");
    EXPECT_TRUE(front().parentWidget()->isWindowModified()) << "the star of its title";
    child<QPushButton>(front(), "ExitForm").click();
    EXPECT_TRUE(allClosed());
    EXPECT_EQ(notice(), "Changes to PLU 1001 were not saved. Press Ctrl+Z to get them back");
    key(Qt::Key_Z);
    EXPECT_EQ(shown(front(), pluName), "Stout");
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    key(Qt::Key_W);
    EXPECT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(shown(front(), pluName), "Stout") << "cancelled";

    child<QPushButton>(front(), "NextRecord").click();
    QWidget& second = open("PLUMENU");
    key(Qt::Key_Z);
    EXPECT_EQ(shown(second, pluName), "Stout") << "also in another window of the same screen";
    m_boxes.unsavedAnswers = {UnsavedAnswer::Save};
    key(Qt::Key_W);
    EXPECT_TRUE(soon([this] { return plus() == "Stout 2.5|Cider 3"; })) << plus();
    EXPECT_EQ(notice(), "Saved PLU 1001");
}

TEST_F(ScreensInFrameTest, TheLettersOfTheSmallWindowsWinOverTheMenu)
{
    open("DataSetup");
    child<QLineEdit>(*m_main, "TxtTelephone").setText(u"0123"_s);
    letter(Qt::Key_S);
    EXPECT_TRUE(allClosed());
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("Telephone=0123"));
    EXPECT_EQ(notice(), "Saved Setup");
    open("About");
    letter(Qt::Key_S);
    EXPECT_TRUE(soon([this] { return !m_boxes.shown.empty(); })) << "system information";
    child<QPushButton>(*m_main, "cmdOK").click();
    EXPECT_TRUE(allClosed());
    for (const char* entry : {"DataSetup", "CollectSales"}) {
        open(entry);
        letter(Qt::Key_X);
        EXPECT_TRUE(allClosed()) << entry;
    }
    EXPECT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_main->isVisible());
}

TEST_F(ScreensInFrameTest, TheMenuKeepsItsLettersOtherwiseAndBehindF10)
{
    const QWidget& screen = open("PLUMENU");
    const auto functionKey = [] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_S);
    };
    EXPECT_EQ(menuBy(functionKey), u"Setup"_s) << "a button of the screen has it too";
    EXPECT_EQ(menuBy([] { letter(Qt::Key_F); }), u"Files"_s) << "no button of the screen has it";
    screen.parentWidget()->close();
    EXPECT_EQ(menuBy([this] { QTest::keyClick(&*m_main, Qt::Key_S, Qt::AltModifier); }), u"Setup"_s);
}

TEST_F(ScreensInFrameTest, AnUntouchedScreenFollowsAPriceChangeAndATouchedOneAsks)
{
    QWidget& touched = open("PLUMENU");
    type(touched, pluName, "Stout");
    QWidget& untouched = open("PLUMENU");
    EXPECT_NE(touched.parentWidget()->pos(), untouched.parentWidget()->pos()) << "none hides the other";
    m_boxes.answers = {true};
    child<QAction>(*m_main, "Transfer1to2").trigger(); // without a rate nothing changes
    EXPECT_EQ(shown(untouched, firstPrice), "2.50");
    m_boxes.answers = {true};
    child<QAction>(*m_main, "ResetPrice").trigger();
    EXPECT_EQ(shown(untouched, firstPrice), "0.00");
    EXPECT_EQ(shown(touched, firstPrice), "2.50");
    EXPECT_EQ(shown(touched, pluName), "Stout");

    m_boxes.shown.clear();
    save(touched);
    EXPECT_EQ(m_boxes.shown, std::vector{changed});
    EXPECT_EQ(plus(), "Lager 0.00|Cider 0.00");
    EXPECT_EQ(shown(touched, pluName), "Lager") << "read afresh";
    save(touched);
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "nothing to ask any more";
}

TEST_F(ScreensInFrameTest, MineIsKeptOnlyOnDemand)
{
    QWidget& first = open("PLUMENU");
    execute(u"update PLUDATA set STOCKLINK = '77', PRICE1 = '9'"_s);
    type(first, firstPrice, "9");
    save(first);
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "the stock link would be lost";
    m_boxes.answers = {true};
    type(first, firstPrice, "4");
    execute(u"update PLUDATA set PRICE1 = '8'"_s);
    save(first);
    EXPECT_EQ(plus(), "Lager 4|Cider 8");
    EXPECT_EQ(m_boxes.shown, (std::vector{changed, changed}));
}

TEST_F(ScreensInFrameTest, AScreenReadsItsRecordAgainWhenItComesToTheFront)
{
    QWidget& first = open("PLUMENU");
    QWidget& second = open("PLUMENU");
    type(second, pluName, "Stout");
    save(second);
    EXPECT_EQ(shown(first, pluName), "Lager");
    bringToFront(first);
    EXPECT_EQ(shown(first, pluName), "Stout");
    // An upload makes all records anew.
    execute(u"delete * from PLUDATA"_s);
    addPlu(u"1001', 'Porter', '3"_s);
    bringToFront(second);
    EXPECT_EQ(shown(second, pluName), "Porter") << "the record with this number";
}

TEST_F(ScreensInFrameTest, TheStatusBarSaysWhoseDataIsOpen)
{
    const auto& dataInUse = child<QWidget>(*m_main, "DataInUse");
    m_main->showCustomer();
    EXPECT_FALSE(dataInUse.isVisible());
    m_values.customerPath = m_folder.path("app/Bar");
    m_main->showCustomer();
    EXPECT_TRUE(dataInUse.isVisible());
    EXPECT_EQ(dataInUse.property("text"), u"Screens and exchange: data of Cafe"_s);
    const auto& chosen = child<QWidget>(*m_main, "StatusText");
    EXPECT_TRUE(soon([&] { return chosen.width() >= chosen.sizeHint().width(); })) << "whole beside it";
    m_values.databasePath = m_folder.path("app/Bar/velmar.mdb"); // as a key editor does
    open("DataSetup");
    EXPECT_FALSE(dataInUse.isVisible());
}

/// Another customer is chosen; the key editors lead over to its data, which is still empty.
TEST_F(ScreensInFrameTest, AKeyEditorThatCannotOpenClosesAlone)
{
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    m_folder.write("app/New/setup.ini", "[SetupOption]\r\nECRModel=2\r\n");
    store::Database::create(m_folder.path("app/New/velmar.mdb"), store::catalogue());
    m_values.customerName = u"New"_s;
    m_values.customerPath = m_folder.path("app/New");
    const auto& dataInUse = child<QWidget>(*m_main, "DataInUse");
    for (const char* entry : {"FunctionMenu", "KeyboardLocation", "WLUMenu"}) {
        m_values.databasePath = m_folder.path("app/Cafe/velmar.mdb");
        m_main->showCustomer();
        EXPECT_TRUE(dataInUse.isVisible());
        child<QAction>(*m_main, entry).trigger();
        EXPECT_TRUE(m_boxes.shown.back().text.startsWith(u"Run-time error '3021':\r\r"_s)) << entry;
        EXPECT_EQ(m_values.databasePath, m_folder.path("app/New/velmar.mdb")) << entry;
        EXPECT_FALSE(dataInUse.isVisible()) << entry;
        EXPECT_EQ(shown(screen, pluName), "Stout") << entry;
    }
    EXPECT_EQ(m_boxes.shown.front().text,
              u"Redeem Points for Tender Keys are programmed in the General Function Options"_s);
    EXPECT_EQ(m_boxes.shown.size(), 4U) << "a note for the function keys, a failure for each";
}

/// Setup stays open while another customer is chosen.
TEST_F(ScreensInFrameTest, SetupFollowsAChangeOfCustomer)
{
    m_folder.write("app/Bar/setup.ini", "[SetupOption]\r\nECRModel= 3\r\n");
    m_folder.write("app/Inn/setup.ini", "[SetupOption]\r\nECRModel=none\r\n");
    const auto change = [this](const char* name) {
        m_values.customerName = QLatin1String(name);
        m_values.customerPath = m_folder.path(QByteArray("app/") + name);
        child<QAction>(*m_main, "About").trigger();
        return m_main->statusBar1().notice();
    };
    QPointer<QWidget> setup = &open("DataSetup");
    EXPECT_EQ(change("Bar"), u"Setup now shows the settings of Bar");
    EXPECT_EQ(child<QComboBox>(*setup, "CboModel").currentText(), u"Dorvik");
    child<QComboBox>(*setup, "CboECRs").setCurrentIndex(4);
    EXPECT_EQ(change("Cafe"), u"Setup now shows the settings of Cafe. Changes for Bar were not saved");
    child<QPushButton>(*setup, "CmdSave").click();
    EXPECT_EQ(m_folder.read("app/Bar/setup.ini"), "[SetupOption]\r\nECRModel= 3\r\n");
    EXPECT_TRUE(m_folder.read("app/Cafe/setup.ini").contains("NoOfECRs=0\r\n"));

    setup = &open("DataSetup");
    (void)change("Inn");
    EXPECT_TRUE(soon([&] { return setup.isNull(); })) << "nothing of Cafe can be saved for Inn";
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_TRUE(m_boxes.shown[0].text.contains(u"ECRModel=none in "_s));
}

TEST_F(ScreensInFrameTest, AScreenThatCannotOpenClosesAlone)
{
    QFile::copy(QStringLiteral(DATA_DIR "/Group.scn"), m_folder.path("app/Group.scn"));
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    for (const char* entry : {"GroupMenu", "CardCat"})
        EXPECT_EQ(&open(entry), &screen) << entry;
    setModel("");
    EXPECT_EQ(&open("PLUStatusMenu"), &screen);
    m_folder.write("app/Cafe/setup.ini", "[SetupOption]\r\nPort=9\r\n");
    EXPECT_EQ(&open("DataSetup"), &screen);
    EXPECT_EQ(shown(screen, pluName), "Stout");
    QStringList told;
    for (const auto& box : m_boxes.shown)
        told += box.text.section(u'\r', 0, 0);
    EXPECT_EQ(told, (QStringList{u"Run-time error '3021':"_s, u"Run-time error '53':"_s,
                                 u"Run-time error '13':"_s, u"Run-time error '5':"_s}));
    EXPECT_TRUE(m_boxes.shown[1].text.endsWith(
        u"mem.dat\rUpload from the ECR first: each upload fetches this file."_s));
}

/// Entries, models and the form that opens.
constexpr const char* modalForms[][3] = {{"DorvikKeyboard", "2", "Dorvik"},
                                         {"Velmarkeyboard", "2", "Velmar"},
                                         {"KeyboardLocation", "0", "KeyLayoutVelmar"},
                                         {"KeyboardLocation", "2", "KeyLayoutVelmar"},
                                         {"KeyboardLocation", "3", "KeyLayoutDorvik"}};

TEST_F(ScreensInFrameTest, TheDesignersOfTwoKeyboardsAndTheLayoutOfTheModelAreModal)
{
    const QString keyRows = u"insert into %1 with recursive n(i) as (select 1 union all select i + 1 from n "
                            "where i < 845) select i, '5' from n"_s;
    for (const char* table : {"KEYLINK (ID, KEYLINK)", "NLU (ID, NLU)"})
        test::runElsewhere(m_values.databasePath, keyRows.arg(QLatin1String(table)).toUtf8());
    for (const auto& [entry, model, form] : modalForms) {
        setModel(model);
        QString modal;
        QTimer::singleShot(0, &*m_main, [&modal] {
            if (QWidget* const open = QApplication::activeModalWidget()) {
                modal = open->objectName();
                open->close();
            }
        });
        child<QAction>(*m_main, entry).trigger();
        EXPECT_EQ(modal, QLatin1String(form));
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(ScreensInFrameTest, ADesignerBesideTheMenuIsAskedBeforeTheEnd)
{
    QWidget& beside = open("Quelmontkeyboard");
    EXPECT_EQ(menuBy([] { letter(Qt::Key_C); }), u"Colours"_s) << "its own menu comes first";
    EXPECT_EQ(&open("Quelmontkeyboard"), &beside) << "one at a time";
    type(beside, "RichTextBox1_0", "TEA");
    m_main->close();
    EXPECT_TRUE(m_main->isVisible());
    m_main->unload();
    EXPECT_TRUE(m_main->isVisible());
    m_boxes.answers = {true, true};
    m_main->close();
    EXPECT_FALSE(m_main->isVisible());
    QStringList titles;
    for (const auto& box : m_boxes.shown)
        titles += box.title;
    const QString unsaved = u"Unsaved Changes"_s;
    EXPECT_EQ(titles, (QStringList{unsaved, unsaved, unsaved, u"Exit Program"_s}));
}

} // namespace
} // namespace norvane::shell
