// A level filled from a list, by the mouse and by the keyboard alone, on both keyboards. Every key of the
// level holds a code that is in no table.
#include "platform/FilePaths.h"
#include "store/engine/CommitOnExit.h"
#include "tests/keys/KeyLayoutForm.h"

namespace norvane::keys
{
namespace
{

class KeyFillFormTest : public test::KeyLayoutForm, public testing::WithParamInterface<const KeyGeometry*>
{
protected:
    /// Drinks 1 to 40 are group 3; last month 9 sold better than 4.
    KeyFillFormTest() : test::KeyLayoutForm(*GetParam())
    {
        shop.execute("insert into GROUPS (GROUPNO, DESCRIPTION) values (3, 'Drinks'), (4, 'Nothing')");
        addDrinks();
        form->resize(1354, 720);
        press("WholeKeyboardButton");
        grid().setCurrentCell({2, 1});
        grid().setFocus();
    }

    void addDrinks() const
    {
        const auto database = shop.open();
        const store::CommitOnExit all(*database);
        for (int plu = 1; plu <= 40; ++plu) {
            test::addRecord(*database, "PLUDATA",
                            {{"PLUNUMBER", test::text(QByteArray::number(plu).rightJustified(18, '0'))},
                             {"DESCRIPTION", test::text("Drink")},
                             {"GROUPNO", test::whole(3)}});
        }
        for (const int plu : {4, 9}) {
            test::addRecord(*database, "PLUSALES",
                            {{"ID", test::text(QByteArray::number(plu).rightJustified(18, '0'))},
                             {"SALESDATE", store::Value::date(QDate::currentDate().addMonths(-1))},
                             {"PROMO", test::whole(0)},
                             {"WASTE", test::whole(0)},
                             {"COUNT1", test::whole(plu)}});
        }
    }
    [[nodiscard]] std::string plan() const { return label("FillText"); }
    [[nodiscard]] QTableView& plus() const { return control<QTableView>("plulist"); }
    /// The PLUs on the first keys of rows 2 and 3; "." for another key.
    [[nodiscard]] std::string block() const
    {
        QStringList shown;
        for (int key = 0; key < 10; ++key) {
            const QString text = QString::fromStdString(cell(2 + key / 5, key % 5));
            shown += text.startsWith(u'P') ? unfilledNumber(text.section(u' ', 0, 0).sliced(1)) : u"."_s;
        }
        return shown.join(u' ').toStdString();
    }
    [[nodiscard]] bool isChanged() const { return label("LevelChanged") == "*"; }
    void drag(KeyCell from, KeyCell to) const
    {
        const auto middle = [this](KeyCell cell) {
            return grid().visualRect(grid().model()->index(cell.row, cell.column)).center();
        };
        QWidget* const cells = grid().viewport();
        QTest::mousePress(cells, Qt::LeftButton, {}, middle(from));
        for (const int left : {1, 0})
            QTest::mouseMove(cells, middle(to) - QPoint(left, 0));
        QTest::mouseRelease(cells, Qt::LeftButton, {}, middle(to));
    }
    void fillFiveByMouse()
    {
        press("FillButton");
        control<QRadioButton>("plucode").click();
        click(plus(), 0);
        click(plus(), 4, 1, Qt::ShiftModifier);
        drag({2, 1}, {3, 3});
        QTest::mouseClick(&control<QCheckBox>("FillSkipsUsed"), Qt::LeftButton, {}, {8, 8});
    }
    void save()
    {
        boxes.answers = {true};
        press("CSCmdBtn1");
    }
    [[nodiscard]] std::string tables() const
    {
        return shop.column("KEYLINK", "KEYLINK") + shop.column("NLU", "NLU");
    }
};

constexpr auto empty = ". . . . . . . . . .";
constexpr auto five = ". 1 2 3 . . 4 5 . .";

TEST_P(KeyFillFormTest, TheMouseMarksRowsAndKeysSeesThePreviewAndPutsThemThereInOneStep)
{
    fillFiveByMouse();
    EXPECT_EQ(plan(), "5 keys, 5 of them in use.");
    EXPECT_EQ(block(), five);
    EXPECT_FALSE(isChanged()) << "it is a preview";
    control<QCheckBox>("FillSkipsUsed").click();
    EXPECT_EQ(plan(), "0 keys. Left out: 5 without room.") << "codes in no table may be in one later";
    EXPECT_EQ(block(), empty);
    EXPECT_FALSE(control<QPushButton>("FillPut").isEnabled());
    control<QCheckBox>("FillSkipsUsed").click();
    press("FillPut");
    EXPECT_EQ(block(), five);
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(grid().currentCell(), (KeyCell{3, 3})) << "the next key";
    EXPECT_FALSE(control<QWidget>("FillPut").isVisible());
    EXPECT_TRUE(status().ends_with("Filled 5 keys")) << status();
    EXPECT_FALSE(plus().selectionModel()->hasSelection());
    control<QAction>("Undo").trigger();
    EXPECT_EQ(block(), empty);
    EXPECT_FALSE(isChanged() || control<QAction>("Undo").isEnabled());
    press("FillButton");
    control<QComboBox>("ListChoice").setCurrentIndex(1);
    EXPECT_EQ(block(), ". . . . . . . . 9 4") << "what sold best, from the one key that is chosen";
}

TEST_P(KeyFillFormTest, TheKeyboardAloneFillsABlockFromAGroup)
{
    for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down})
        key(arrow, Qt::ShiftModifier);
    key(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(plan(), "Mark entries in the list: a group, a filter, rows.");
    while (qobject_cast<QRadioButton*>(QApplication::focusWidget()) == nullptr)
        key(Qt::Key_Backtab);
    key(Qt::Key_Left); // from WLU, the last of them
    key(Qt::Key_Space);
    key(Qt::Key_Tab);
    for (int entry = 0; entry < 3; ++entry)
        key(Qt::Key_Down);
    EXPECT_EQ(label("ListCount"), "0 of 42") << "the group without articles";
    EXPECT_EQ(plan(), "Mark entries in the list: a group, a filter, rows.");
    key(Qt::Key_Up);
    EXPECT_EQ(plan(), "0 keys. Left out: 40 without room.");
    EXPECT_TRUE(letter(Qt::Key_U, [this] { return block() == ". 1 2 3 . . 4 5 6 ."; }));
    EXPECT_EQ(plan(), "6 keys, 6 of them in use. Left out: 34 without room.");
    control<QLineEdit>("ListFilter").setFocus();
    QTest::keyClicks(QApplication::focusWidget(), u"20..22"_s);
    EXPECT_EQ(block(), ". 20 21 22 . . . . . .") << "two numbers replace the group";
    key(Qt::Key_Return);
    EXPECT_TRUE(grid().hasFocus() && isChanged());
    EXPECT_EQ(block(), ". 20 21 22 . . . . . .");
    key(Qt::Key_K, Qt::ControlModifier);
    key(Qt::Key_Escape);
    EXPECT_TRUE(grid().hasFocus() && form->isVisible()) << "Escape ends the fill alone";
}

TEST_P(KeyFillFormTest, UndoOfEverythingLeavesTheDatabaseByteForByte)
{
    save();
    const std::string before = tables();
    const QByteArray file = readWholeFile(shop.values.databasePath);
    fillFiveByMouse();
    press("FillPut");
    control<QAction>("Undo").trigger();
    save();
    EXPECT_EQ(readWholeFile(shop.values.databasePath), file);
    control<QAction>("Redo").trigger();
    save();
    EXPECT_NE(tables(), before);
    control<QAction>("Undo").trigger();
    save();
    EXPECT_EQ(tables(), before) << "also after a save";
}

TEST_P(KeyFillFormTest, ALevelThatIsReadMeanwhileGetsAPreviewOfItsOwn)
{
    fillFiveByMouse();
    boxes.answers = {false};
    press("CSCmdBtn4");
    EXPECT_EQ(grid().currentCell(), (KeyCell{3, 3}));
    EXPECT_EQ(block(), ". . . . . . . . 1 2") << "from the one key that is chosen now";
    EXPECT_FALSE(isChanged());
    press("FillCancel");
    EXPECT_EQ(block(), empty);
}

TEST_P(KeyFillFormTest, EnterWithSeveralRowsMarkedFillsAndFunction200IsAskedAbout)
{
    auto& functions = control<QTableView>("functionlist");
    click(functions, 0, 1, Qt::ShiftModifier);
    click(functions, 2, 1, Qt::ShiftModifier);
    EXPECT_FALSE(isChanged()) << "a click with Shift marks";
    functions.setFocus();
    key(Qt::Key_Return);
    EXPECT_TRUE(control<QCheckBox>("FillSkipsUsed").isVisible());
    control<QCheckBox>("FillSkipsUsed").click();
    for (const bool answer : {false, true}) {
        boxes.answers = {answer};
        functions.setFocus();
        key(Qt::Key_Return);
        EXPECT_EQ(boxes.shown.back().preset, BoxAnswer::No);
        EXPECT_EQ(isChanged(), answer);
    }
    EXPECT_EQ(cell(2, 1) + cell(2, 2) + cell(2, 3), "CASHCHECKPLU");
}

TEST_P(KeyFillFormTest, TheNextKeyFollowsEachEntryWhileThatIsSwitchedOn)
{
    QTest::mouseClick(&control<QCheckBox>("NextKey"), Qt::LeftButton, {}, {8, 8});
    put(0, {0, keyboard.columns - 1});
    click(control<QTableView>("functionlist"), 1);
    EXPECT_EQ(cell(0, keyboard.columns - 1) + cell(1, 0), "CASHCHECK");
    grid().setFocus();
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), "CHECK");
    EXPECT_FALSE(grid().hasFocus()) << "the next entry can be typed";
    put(0, {keyboard.rows - 1, keyboard.columns - 1});
    EXPECT_EQ(grid().currentCell(), (KeyCell{keyboard.rows - 1, keyboard.columns - 1}));
}

INSTANTIATE_TEST_SUITE_P(Keyboards, KeyFillFormTest, testing::Values(&velmarKeyboard(), &dorvikKeyboard()),
                         [](const auto& each) { return each.param->form.toString().toStdString(); });

} // namespace
} // namespace norvane::keys
