// Screens in the real main window: access letters beside those of the menu, what the status bar shows, and
// what a screen shows after others have changed its record.
#include "tests/shell/FrameFixture.h"

namespace norvane::shell
{
namespace
{

using ScreensInFrameTest = FrameFixture;

const test::ShownBox changed{
    u"Since this record was shown here, it was changed by another screen, a price change or an upload.\r\r"
    "Save replaces those changes by the values shown here.\rShow shows them here, and drops what you have "
    "typed. "
    "[&Save|S&how]"_s,
    u"Record Changed"_s, BoxIcon::Exclamation};

TEST_F(ScreensInFrameTest, AccessLettersOfAScreenComeBeforeTheMenu)
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
    for (const char* line : {"1, 0, '1001', 1, '1001'", "2, 2, '1001', 0, '1002'", "3, 0, '7', 1, '1001'"}) {
        execute(u"insert into WLU (WLUno, wlutype1, codenumber1, wlutype50, codenumber50) values (%1)"_s.arg(
            QLatin1String(line)));
    }
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
    EXPECT_TRUE(
        saveAs("1001").text.contains(u"999 is used by no key, look-up, link or recipe.\r\rSave it"_s));
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

TEST_F(ScreensInFrameTest, TheMenuKeepsItsOtherLettersAndAllAfterF10)
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
    EXPECT_EQ(shown(touched, pluName), "Lager") << "read again";
    save(touched);
    EXPECT_EQ(m_boxes.shown.size(), 1U) << "nothing to ask any more";
}

TEST_F(ScreensInFrameTest, MineIsKeptOnlyOnRequest)
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

TEST_F(ScreensInFrameTest, ItsRecordIsCopiedToAnotherCustomer)
{
    m_folder.write("app/BAR/setup.ini", "[SetupOption]\r\nECRModel= 3\r\n");
    const QString bar = m_folder.path("app/BAR/velmar.mdb");
    store::Database::create(bar, store::catalogue());
    execute(u"update PLUDATA set POINT1 = 5"_s);
    open("PLUMENU");
    QTimer::singleShot(0, &*m_main, [] {
        QWidget& dialog = *QApplication::activeModalWidget();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(&child<QListWidget>(dialog, "CustomerList"), Qt::Key_Space);
        EXPECT_TRUE(soon([&] { return child<QPushButton>(dialog, "CopyButton").isEnabled(); }));
        letter(Qt::Key_O);
        EXPECT_TRUE(
            soon([&] { return child<QLabel>(dialog, "State").text() == "Copied to 1 of 1 customer."_L1; }));
        letter(Qt::Key_C);
    });
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(test::rowsOf(bar, u"select DESCRIPTION, PRICE1, POINT1 from PLUDATA"_s), "Lager|2.5|0");
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
    // An upload creates all records again.
    execute(u"delete * from PLUDATA"_s);
    addPlu(u"1001', 'Porter', '3"_s);
    bringToFront(second);
    EXPECT_EQ(shown(second, pluName), "Porter") << "the record with this number";
}

TEST_F(ScreensInFrameTest, TheEndAsksForEachWindowWithUnsavedChanges)
{
    QSignalSpy ended(&*m_main, &FrmMain::unloaded);
    type(open("PLUMENU"), pluName, "Stout");
    QWidget& second = open("PLUMENU");
    child<QPushButton>(second, "NextRecord").click();
    type(second, pluName, "Perry");
    open("PLUMENU");
    const auto end = [this](std::deque<UnsavedAnswer> unsaved) {
        m_boxes.shown.clear();
        m_boxes.answers = {true};
        m_boxes.unsavedAnswers = std::move(unsaved);
        m_main->close();
        QStringList texts;
        for (const test::ShownBox& box : m_boxes.shown)
            texts += box.text.section(u" ["_s, 0, 0);
        return texts;
    };
    EXPECT_EQ(end({UnsavedAnswer::Save, UnsavedAnswer::Cancel}),
              (QStringList{u"Are You Sure?"_s, u"Changes to PLU 1001 are not saved."_s,
                           u"Changes to PLU 1002 are not saved."_s}));
    EXPECT_EQ(ended.size(), 0);
    EXPECT_EQ(&front(), &second) << "the one that was asked about";
    EXPECT_EQ(end({UnsavedAnswer::Discard}),
              (QStringList{u"Are You Sure?"_s, u"Changes to PLU 1002 are not saved."_s}));
    EXPECT_EQ(ended.size(), 1);
    EXPECT_EQ(plus(), "Stout 2.5|Cider 3");
}

} // namespace
} // namespace norvane::shell
