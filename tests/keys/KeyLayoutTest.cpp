// The keyboard layout editor as a user works it, by keys and by mouse.
#include "keys/layout/KeyLayout.h"

#include "store/engine/CommitOnExit.h"
#include "tests/keys/KeyLayoutForm.h"
#include "ui/ValueList.h"

namespace norvane::keys
{
namespace
{

const norvane::test::ShownBox saveChanges{u"Save Changes?"_s, u"Save Details."_s, BoxIcon::Question,
                                          BoxAnswer::Yes};

using KeyLayoutTest = test::KeyLayoutForm;

TEST_F(KeyLayoutTest, AScreenReaderReadsNumberStateAndActionOfEachKey)
{
    auto& key = *QAccessible::queryAccessibleInterface(&grid())->tableInterface()->cellAt(9, 0);
    const auto said = [&key] {
        return (key.text(QAccessible::Name) + u": "_s + key.text(QAccessible::Description)).toStdString();
    };
    grid().setCurrentCell({9, 0});
    control<QRadioButton>("plucode").click();
    click(control<QTableView>("plulist"), 1);
    EXPECT_EQ(said(), "P00000000000001002 Lemonade: Key 1, PLU");
    control<QAction>("Mark").trigger();
    EXPECT_EQ(said(), "P00000000000001002 Lemonade: Key 1, PLU, marked");
    grid().setCurrentCell({0, 0});
    EXPECT_FALSE(key.state().selected);
    key.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(key.state().selected);
}

TEST_F(KeyLayoutTest, IsUsableByKeyboardAndStoresOnlyOnSave)
{
    EXPECT_EQ(shop.values.databasePath, shop.folder.path("velmar.mdb"));
    EXPECT_EQ(form->windowTitle(), u"Keyboard Level. 1"_s);
    EXPECT_EQ(grid().currentCell(), (KeyCell{0, 0}));
    for (int down = 0; down < 9; ++down)
        key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"functionlist"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"ch"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"e"_s);
    EXPECT_EQ(label("ListCount"), "1 of 3");
    control<QTableView>("functionlist").setFocus();
    key(Qt::Key_Return);
    EXPECT_TRUE(grid().hasFocus());
    EXPECT_EQ(cell(9, 0), "CHECK");
    EXPECT_EQ(label("LevelChanged"), "*");
    EXPECT_EQ(status(), "Key 1: CHECK    Level 1 key 1");
    EXPECT_TRUE(letter(Qt::Key_S, [this] { return boxes.shown.size() == 1; }));
    EXPECT_EQ(stored(1), "1001 000000000000001001") << "the question was closed";
    boxes.answers = {true};
    EXPECT_TRUE(letter(Qt::Key_S, [this] { return boxes.shown.size() == 2; }));
    EXPECT_EQ(boxes.shown, (std::vector{saveChanges, saveChanges}));
    EXPECT_EQ(stored(1), "6 000000000000000001");
    EXPECT_EQ(stored(158), "1158 000000000000000158");
    EXPECT_EQ(label("LevelChanged"), "");
    EXPECT_TRUE(letter(Qt::Key_X, [this] { return !form->isVisible(); }));
    EXPECT_EQ(boxes.shown.size(), 2U) << "Exit asks nothing";
}

TEST_F(KeyLayoutTest, ClicksInTheListsFillTheCurrentCell)
{
    grid().setCurrentCell({9, 0});
    control<QRadioButton>("plucode").click();
    click(control<QTableView>("plulist"), 1);
    EXPECT_EQ(cell(9, 0), "P00000000000001002 Lemonade");
    control<QRadioButton>("WLUfunction").click();
    EXPECT_FALSE(control<QTableView>("plulist").isVisible());
    grid().setCurrentCell({8, 0});
    click(control<QTableView>("wlulist"), 0);
    EXPECT_EQ(cell(8, 0), "W00000000000000012 Breakfast");
    EXPECT_EQ(grid().currentIndex().data(Qt::ToolTipRole).toString(),
              u"Key 2 of level 1: Window look-up\nW00000000000000012 Breakfast\n"
              "Key link 271, look-up code 001200000000000000"_s);
    shop.execute("delete * from wlu");
    grid().setCurrentCell({7, 0});
    click(control<QTableView>("wlulist"), 0);
    EXPECT_EQ(cell(7, 0), "WLU ITEM");
    control<QRadioButton>("function1").click();
    put(0, {0, 1});
    EXPECT_EQ(cell(0, 1), "CASH");
    boxes.answers = {true, true};
    press("CSCmdBtn1");
    EXPECT_EQ(stored(1), "0 000000000000001002");
    EXPECT_EQ(stored(2), "271 001200000000000002");
    EXPECT_EQ(stored(3), "1003 000000000000000003") << "an item that is gone changes nothing";
    press("CSCmdBtn3");
    EXPECT_EQ(cell(0, 1), "Journal Feed\rFIXED");
}

TEST_F(KeyLayoutTest, AsksOnLeavingALevelAndRemainsWhenTheQuestionIsClosed)
{
    put(0);
    press("CSCmdBtn4");
    EXPECT_EQ(label("Label1"), "Keyboard Level. 1");
    EXPECT_EQ(cell(9, 0), "CASH");
    EXPECT_TRUE(control<QPushButton>("CSCmdBtn3").isChecked());
    boxes.answers = {false, true};
    grid().selectAll();
    press("CSCmdBtn4");
    EXPECT_EQ(form->windowTitle(), u"Keyboard Level. 2"_s);
    EXPECT_EQ(grid().chosenCells().size(), 1U);
    press("CSCmdBtn3");
    EXPECT_EQ(cell(9, 0), "Function Key") << "No has thrown the change away";
    EXPECT_FALSE(control<QAction>("Undo").isEnabled());
    EXPECT_EQ(boxes.shown, (std::vector{saveChanges, saveChanges, saveChanges})) << "changed or not";

    put(0);
    form->close();
    EXPECT_TRUE(form->isVisible());
    boxes.answers = {true};
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(stored(1), "5 000000000000000001");
}

/// Keys pressed in the grid, and the first three cells of its lowest row afterwards; "." for unprogrammed.
const struct {
    std::vector<Qt::Key> moves;
    Qt::Key letter; ///< with Ctrl
    const char* cells;
} presses[] = {
    {{}, Qt::Key_Z, ".CASH."},
    {{}, Qt::Key_Z, "CASH.."},
    {{Qt::Key_Left}, Qt::Key_M, "CASH.."},
    {{Qt::Key_Right, Qt::Key_Right}, Qt::Key_E, "..CASH"},
    {{}, Qt::Key_X, "..."},
    {{Qt::Key_Left}, Qt::Key_V, ".CASH."},
    {{}, Qt::Key_Z, "..."},
    {{}, Qt::Key_Y, ".CASH."},
    {{}, Qt::Key_C, ".CASH."},
    {{Qt::Key_Left}, Qt::Key_V, "CASHCASH."},
};

TEST_F(KeyLayoutTest, KeysAreDraggedCopiedAndSwappedAndComeBack)
{
    put(0);
    grid().setFocus();
    dropAt({9, 1}, false);
    EXPECT_EQ(cells(9), ".CASH..");
    dropAt({9, 2}, true);
    EXPECT_EQ(cells(9), ".CASHCASH.");
    EXPECT_EQ(boxes.beeps, 0);
    dropAt({0, 0}, false);
    EXPECT_EQ(boxes.beeps, 1);
    EXPECT_NE(status().find("A fixed key"), std::string::npos);
    grid().setCurrentCell({9, 1});
    for (const auto& [moves, letter, expected] : presses) {
        for (const Qt::Key move : moves)
            key(move);
        key(letter, Qt::ControlModifier);
        EXPECT_EQ(cells(9), std::string(expected) + '.') << letter;
    }
}

TEST_F(KeyLayoutTest, TheMouseDragsWhatIsChosenOrTheOneCellItBeganOn)
{
    put(0);
    put(1, {9, 1});
    grid().setCurrentCell({9, 0});
    drag({9, 1}, {8, 2}, true);
    EXPECT_EQ(cells(8), "..CHECK.") << "and not CASH, where the cursor was";
    EXPECT_EQ(cells(9), "CASHCHECK..");
    grid().setCurrentCell({9, 0});
    click(grid(), 9, 1, Qt::ControlModifier);
    drag({9, 1}, {8, 1}, false);
    EXPECT_EQ(cells(8), "CASHCHECKCHECK.");
    EXPECT_EQ(cells(9), "....") << "both changed places";
    click(grid(), 8, 1, Qt::ControlModifier);
    EXPECT_EQ(grid().currentCell(), (KeyCell{8, 0}))
        << "the cell taken out of the block is not the current one";
}

TEST_F(KeyLayoutTest, AsksBeforeAnEntryThatComesBackAsAPluOrIsOnMoreThanThreeKeys)
{
    for (const bool answer : {false, true}) {
        boxes.answers = {answer};
        put(2);
        EXPECT_EQ(boxes.shown.back().preset, BoxAnswer::No);
        EXPECT_EQ(cell(9, 0), answer ? "PLU" : "Function Key");
    }
    auto& list = control<QTableView>("functionlist");
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), u"5"_s);
    EXPECT_TRUE(list.columnWidth(0) > 0 && !list.isColumnHidden(0)) << "the filter finds the number, too";
    EXPECT_FALSE(control<QAction>("Paste").isEnabled());
    grid().setCurrentCell({8, 0});
    click(grid(), 9, 1, Qt::ControlModifier);
    click(grid(), 7, 3, Qt::ControlModifier);
    click(list, 0);
    EXPECT_EQ(cell(8, 0) + cell(9, 1) + cell(7, 3), "CASHCASHCASH");
    EXPECT_EQ(boxes.shown.size(), 2U);
    grid().setCurrentCell({0, 0});
    grid().setFocus();
    key(Qt::Key_A, Qt::ControlModifier);
    for (const bool answer : {false, true}) {
        boxes.answers = {answer};
        click(list, 1);
        EXPECT_TRUE(boxes.shown.back().text.contains(u"158 keys are selected"_s));
        EXPECT_EQ(boxes.shown.back().preset, BoxAnswer::No);
        EXPECT_EQ(cell(8, 0) + cell(5, 5), answer ? "CHECKCHECK" : "CASHFunction Key");
    }
    EXPECT_EQ(cell(0, 0), "Receipt Feed\rFIXED");
    control<QAction>("Undo").trigger();
    EXPECT_EQ(cell(8, 0) + cell(5, 5), "CASHFunction Key");
    control<QAction>("Copy").trigger();
    EXPECT_TRUE(control<QAction>("Paste").isEnabled());
}

TEST_F(KeyLayoutTest, ALevelThatCannotBeSavedRemainsInTheEditor)
{
    put(0);
    const auto other = shop.open();
    {
        const store::CommitOnExit held(*other);
        boxes.answers = {true, true};
        press("CSCmdBtn4");
        EXPECT_FALSE(form->close());
    }
    ASSERT_EQ(boxes.shown.size(), 4U);
    const QString& message = boxes.shown[1].text;
    EXPECT_TRUE(
        message.startsWith(u"Level 1 was not saved: rows 1 to 158 of the tables KEYLINK and NLU are as they "
                           "were. The database is in use by another program."_s));
    EXPECT_TRUE(
        message.contains(u"Wait until the other program has finished, or close it, and save again."_s));
    EXPECT_EQ(label("Label1"), "Keyboard Level. 1");
    boxes.answers = {true};
    press("CSCmdBtn1");
    EXPECT_EQ(stored(1), "5 000000000000000001");
}

TEST_F(KeyLayoutTest, FindsKeysOfTheLevelAndTheItemOnAllLevels)
{
    shop.execute("update keylink set keylink = '5' where id in (20, 30, 317)");
    shop.execute("update keylink set keylink = '6' where id = 21");
    boxes.answers = {false};
    press("CSCmdBtn3");
    key(Qt::Key_F, Qt::AltModifier);
    QTest::keyClicks(QApplication::focusWidget(), u"c"_s);
    QTest::keyClicks(QApplication::focusWidget(), u"as"_s);
    EXPECT_EQ(label("KeyFindOutcome"), "2 found");
    const KeyCells cells{keyboard.walk()[19], keyboard.walk()[29]};
    for (const KeyCell found : cells)
        EXPECT_TRUE(grid().model()->index(found.row, found.column).data(KeyGridModel::FoundRole).toBool());
    key(Qt::Key_Return);
    EXPECT_TRUE(std::ranges::count(cells, grid().currentCell()) == 1);
    EXPECT_TRUE(status().ends_with("Level 1 keys 20, 30, Level 3 key 1")) << status();
    key(Qt::Key_Escape);
    EXPECT_EQ(label("KeyFindOutcome"), "");
    EXPECT_TRUE(grid().hasFocus());
    key(Qt::Key_Return);
    key(Qt::Key_Down);
    EXPECT_EQ(status(), "CHECK    Level 1 key 21");
    key(Qt::Key_Down);
    EXPECT_EQ(status(), "PLU    on no key");
    key(Qt::Key_Escape);
    EXPECT_TRUE(grid().hasFocus());
    key(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible()) << "nothing has changed";
}

TEST_F(KeyLayoutTest, CopyLevelsAsksAboutChangesFirstAndShowsTheCopy)
{
    put(0);
    press("CSCmdBtn8");
    EXPECT_EQ(cell(9, 0), "CASH") << "the question was closed, nothing opened";
    QTimer::singleShot(0, form.get(), [] {
        QWidget& copying = *QApplication::activeModalWidget();
        QTest::keyClick(copying.findChild<ui::ValueList*>(u"CopyFrom"_s), Qt::Key_Home);
        QTest::keyClick(copying.findChild<ui::ValueList*>(u"CopyTo"_s), Qt::Key_End);
        QTest::mouseClick(copying.findChild<QPushButton*>(u"CSCmdBtn1"_s), Qt::LeftButton);
        copying.close();
    });
    boxes.answers = {true};
    press("CSCmdBtn8");
    EXPECT_EQ(label("Label1"), "Keyboard Level. 5");
    EXPECT_EQ(cell(9, 0), "CASH");
}

} // namespace
} // namespace norvane::keys
