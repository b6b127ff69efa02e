// Find, compare and open, as a user works them from the keyboard layout editor.
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyLayout.h"
#include "tests/keys/KeyShop.h"
#include "tests/support/FormTest.h"

namespace norvane::keys
{
namespace
{

using norvane::test::soon;

/// Level 1: key 1 CASH, key 2 PLU 1001; level 3: key 5 PLU 1001, key 6 a PLU of no table.
class LevelToolsTest : public testing::Test
{
protected:
    LevelToolsTest()
    {
        shop.addKeyboard(keyboard.keysPerLevel);
        shop.addItems();
        shop.execute("update keylink set keylink = null");
        put(1, "5", "000000000000000001");
        put(2, "0", "000000000000001001");
        put(321, "0", "000000000000001001");
        put(322, "0", "000000000000004711");
        form = std::make_unique<KeyLayout>(keyboard, shop.values, boxes);
        QObject::connect(form.get(), &KeyLayout::itemWanted, form.get(),
                         [this](ItemKind kind, const QString& number) {
                             opened += QString::number(static_cast<int>(kind)) + u' ' + number;
                         });
        form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }
    ~LevelToolsTest() override { EXPECT_FALSE(norvane::test::takeFailure()); }

    void put(int row, const char* link, const char* number) const
    {
        const QByteArray id = QByteArray::number(row);
        shop.execute("update keylink set keylink = '" + QByteArray(link) + "' where id = " + id);
        shop.execute("update nlu set nlu = '" + QByteArray(number) + "' where id = " + id);
    }
    template <typename Control>
    Control& control(const char* name) const
    {
        return norvane::test::child<Control>(*form, name);
    }
    [[nodiscard]] KeyGrid& grid() const { return control<KeyGrid>("Grid1"); }
    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static QPoint placeOf(const QTableView& list, int row, int column)
    {
        return list.visualRect(list.model()->index(row, column)).center();
    }
    /// As the mouse sends it: a click comes first.
    static void doubleClick(const QTableView& list, int row, int column)
    {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(list, row, column));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, placeOf(list, row, column));
    }
    void openFinder() const
    {
        key(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(soon([this] { return control<QWidget>("FindText").hasFocus(); }));
    }
    [[nodiscard]] std::string hits() const
    {
        const QAbstractItemModel& list = *control<QTableView>("FindHits").model();
        QStringList lines;
        for (int row = 0; row < list.rowCount(); ++row)
            lines += list.index(row, 0).data().toString();
        return lines.join(u", "_s).toStdString();
    }
    [[nodiscard]] std::string title() const { return form->windowTitle().toStdString(); }
    [[nodiscard]] KeyCell cellOf(int number) const
    {
        return keyboard.walk()[static_cast<std::size_t>(number) - 1];
    }

    const KeyGeometry& keyboard = dorvikKeyboard();
    test::KeyShop shop{"3"};
    norvane::test::RecordingBoxes boxes;
    QStringList opened;
    std::unique_ptr<KeyLayout> form;
};

TEST_F(LevelToolsTest, AHitLeadsToItsLevelAndKeyAndTheListFollowsChanges)
{
    openFinder();
    QTest::keyClicks(QApplication::focusWidget(), u"cola"_s);
    EXPECT_EQ(hits(), "Level 1 key 2, Level 3 key 5");
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(title(), "Keyboard Level. 3");
    EXPECT_EQ(grid().currentCell(), cellOf(5));
    EXPECT_TRUE(boxes.shown.empty()) << "nothing was changed";
    control<QAction>("Clear").trigger();
    EXPECT_EQ(hits(), "Level 1 key 2");
    auto& list = control<QTableView>("FindHits");
    const auto clickFirst = [&] {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, placeOf(list, 0, 1));
    };
    clickFirst();
    EXPECT_EQ(title(), "Keyboard Level. 3") << "the question about changes was closed";
    boxes.answers = {true};
    clickFirst();
    EXPECT_EQ(title(), "Keyboard Level. 1");
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(grid().currentCell(), cellOf(2));
    const auto links = QString::fromStdString(shop.column("KEYLINK", "KEYLINK")).split(u'|');
    EXPECT_EQ(links.at(320), u""_s) << "key 5 of level 3 was cleared";
    doubleClick(list, 0, 1);
    EXPECT_EQ(opened.join(u", "_s), u"1 1001"_s);
}

TEST_F(LevelToolsTest, FiltersKeysThatPointAtNothingAndItemsOnNoKey)
{
    openFinder();
    auto& filter = control<QComboBox>("FindFilter");
    const auto show = [&](int row) {
        filter.setFocus();
        filter.setCurrentIndex(0);
        for (int step = 0; step < row; ++step)
            key(Qt::Key_Down);
    };
    show(1);
    EXPECT_EQ(hits(), "Level 3 key 6");
    EXPECT_FALSE(control<QPushButton>("OpenFound").isEnabled());
    key(Qt::Key_Return, Qt::ControlModifier); // nor another item in its place
    show(2);
    EXPECT_EQ(hits(), "Level 1 key 2, Level 3 key 5");
    show(3);
    EXPECT_EQ(hits(), "on no key, on no key");
    EXPECT_EQ(control<QLabel>("FindCount").text(), u"2 found"_s);
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened.join(u", "_s), u"1 1002"_s);
    EXPECT_EQ(title(), "Keyboard Level. 1");
    key(Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible()) << "only the window of the search is closed";
}

TEST_F(LevelToolsTest, OpensTheItemOfAKeyAndReadsItsNameAgain)
{
    grid().setFocus();
    grid().setCurrentCell(cellOf(1));
    key(Qt::Key_Return, Qt::ControlModifier);
    doubleClick(grid(), cellOf(2).row, cellOf(2).column);
    grid().setCurrentCell(cellOf(3));
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(opened.join(u", "_s), u"0 5, 1 1001"_s);
    EXPECT_EQ(boxes.beeps, 1) << "key 3 does nothing";
    shop.execute("update functionkey set description = 'NOTES' where id = 5");
    form->itemsChanged();
    EXPECT_EQ(grid().model()->index(cellOf(1).row, 0).data().toString(), u"NOTES"_s);
    EXPECT_EQ(control<QLabel>("LevelChanged").text(), u""_s);
}

TEST_F(LevelToolsTest, ComparesLevelsAndGoesToAKeyOfEither)
{
    grid().setCurrentCell(cellOf(1));
    control<QAction>("Clear").trigger();
    boxes.answers = {false};
    QTimer::singleShot(0, form.get(), [this] {
        auto& dialog = control<QDialog>("CompareLevels");
        const auto& list = norvane::test::child<QTableView>(dialog, "DifferenceList");
        const auto line = [&](int row) {
            return list.model()->index(row, 1).data().toString() + u" / "_s +
                   list.model()->index(row, 2).data().toString();
        };
        EXPECT_EQ(list.model()->rowCount(), 1) << "level 2 has no key, and key 1 was cleared";
        auto& right = norvane::test::child<QComboBox>(dialog, "RightLevel");
        right.setFocus();
        QTest::keyClick(&right, Qt::Key_Down);
        EXPECT_EQ(list.model()->rowCount(), 3);
        EXPECT_EQ(line(0), u"PLU 1001 Cola / not programmed"_s);
        EXPECT_EQ(line(2), u"not programmed / PLU 4711, which does not exist"_s);
        auto& keys = norvane::test::child<QTableView>(dialog, "RightKeys");
        EXPECT_TRUE(keys.model()->index(cellOf(6).row, 0).data(KeyGridModel::FoundRole).toBool());
        EXPECT_FALSE(keys.model()->index(cellOf(7).row, 0).data(KeyGridModel::FoundRole).toBool());
        QTest::mouseClick(keys.viewport(), Qt::LeftButton, {}, placeOf(keys, cellOf(6).row, 0));
        EXPECT_EQ(list.selectionModel()->selectedRows().constFirst().row(), 2);
        norvane::test::press(dialog, "GoRight");
    });
    key(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(title(), "Keyboard Level. 3");
    EXPECT_EQ(grid().currentCell(), cellOf(6));
    EXPECT_EQ(boxes.shown.size(), 1U) << "the cleared key was asked about";
}

TEST_F(LevelToolsTest, ALevelGoesToAnotherOneAsAFileAndBackWithOneUndo)
{
    const QString path = shop.folder.path("bakery.keys");
    boxes.typed = {path, path, path, path};
    control<QAction>("ExportLevel").trigger();
    const auto importLevel = [this](const char* button) {
        QTimer::singleShot(0, form.get(), [this, button] {
            auto& dialog = control<QDialog>("ImportLevel");
            const auto& lines = norvane::test::child<QListWidget>(dialog, "ImportLines");
            EXPECT_EQ(lines.item(1)->text(), u"Key 2: PLU 1001 Cola"_s);
            EXPECT_TRUE(norvane::test::child<QPushButton>(dialog, "CancelButton").isDefault());
            norvane::test::press(dialog, button);
        });
        control<QAction>("ImportLevelFile").trigger();
    };
    boxes.answers = {false};
    norvane::test::press(*form, "CSCmdBtn4");
    boxes.shown.clear();
    shop.execute("delete * from PLUDATA where DESCRIPTION = 'Cola'");
    const auto textOf = [this](int number) {
        return grid()
            .model()
            ->index(cellOf(number).row, cellOf(number).column)
            .data()
            .toString()
            .toStdString();
    };
    importLevel("CancelButton");
    EXPECT_EQ(textOf(1), "Function Key");
    importLevel("ImportButton");
    EXPECT_EQ(textOf(1), "CASH");
    EXPECT_EQ(textOf(2), "PLU ITEM");
    EXPECT_EQ(control<QLabel>("LevelChanged").text(), u"*"_s);
    control<QAction>("Undo").trigger();
    EXPECT_EQ(textOf(1), "Function Key");
    EXPECT_EQ(control<QLabel>("LevelChanged").text(), u""_s);
    shop.folder.write("bakery.keys",
                      "Norvane keyboard level\nKeyboard: Velmar, 169 keys\nKey\tKind\tNumber\tName");
    control<QAction>("ImportLevelFile").trigger();
    ASSERT_FALSE(boxes.shown.empty());
    EXPECT_TRUE(
        boxes.shown.back().text.startsWith(u"bakery.keys was not imported.\r\rThis level is of another "
                                           "keyboard (Velmar, 169 keys)."_s));
}

TEST_F(LevelToolsTest, TheMapOfALevelIsASheetOfA4WithItsKeysInTheirPlaces)
{
    const QString path = shop.folder.path("map.pdf");
    boxes.typed = {path};
    QTimer::singleShot(0, form.get(), [this] {
        auto& preview = control<QDialog>("MapPreview");
        EXPECT_EQ(preview.windowTitle(), u"Keyboard Dorvik, level 1"_s);
        auto& map = *QAccessible::queryAccessibleInterface(&control<QWidget>("MapView"));
        ASSERT_EQ(map.childCount(), 160);
        EXPECT_EQ(map.child(0)->text(QAccessible::Name), u"Receipt Feed FIXED"_s);
        EXPECT_EQ(map.child(9 * 16)->text(QAccessible::Name), u"Key 1: Function 5 CASH"_s);
        EXPECT_EQ(map.child(8 * 16)->text(QAccessible::Name), u"Key 2: PLU 1001 Cola"_s);
        norvane::test::press(preview, "SaveButton");
        norvane::test::press(preview, "CloseButton");
    });
    key(Qt::Key_P, Qt::ControlModifier);
    const QByteArray pdf = shop.folder.read("map.pdf");
    EXPECT_TRUE(pdf.startsWith("%PDF")) << boxes.shown.size();
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 842"))
        << pdf.mid(pdf.indexOf("/MediaBox"), 40).toStdString() << " is A4, across";
}

} // namespace
} // namespace norvane::keys
