// The look-up editor as a user works it.
#include "keys/lookups/frmwlu.h"

#include "tests/keys/KeyShop.h"
#include "tests/support/FormTest.h"

namespace norvane::keys
{
namespace
{

class FrmwluTest : public testing::Test
{
protected:
    FrmwluTest()
    {
        m_shop.addItems();
        for (const char* const sql :
             {"insert into PLUDATA (PLUNUMBER, DESCRIPTION) values ('000000000000002001', 'Cake')",
              "insert into MEMORYALLOCATION ([LINES/PLU]) values ('4')",
              "insert into WLU (WLUno, DESCRIPTION, Allowplu, wlutype1, codenumber1, wlutype2, codenumber2) "
              "values (1, 'Drinks', -1, 0, '1001', 1, '1002')",
              "insert into WLU (WLUno, DESCRIPTION, Allowfunction, [#OfCondiments], LINK, allowexit) "
              "values (2, 'Payment', -1, 1, 1, -1)"})
            m_shop.execute(sql);
        m_shop.addKeyboard(169);
        m_shop.execute("update keylink set keylink = '271' where id in (5, 170)");
        m_shop.execute("update nlu set nlu = '000100000000000005' where id in (5, 170)");
        m_shop.values.databasePath = u"elsewhere/velmar.mdb"_s;
        m_form = std::make_unique<frmwlu>(m_shop.values, m_boxes);
        m_form->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_form.get()));
    }

    template <typename Control>
    Control& control(const char* name)
    {
        return norvane::test::child<Control>(*m_form, name);
    }
    void press(const char* button) { norvane::test::press(*m_form, button); }
    /// Clicks entry @p row of a list, or of the grid.
    void click(const char* list, int row)
    {
        auto& view = control<QTableView>(list);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                          view.visualRect(view.model()->index(row, 0)).center());
    }
    /// Lines of the grid: "PLU P00000000000001001 Cola".
    std::string lines()
    {
        const auto& model = *control<QTableView>("Grid1").model();
        QStringList shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown += model.index(row, 1).data().toString() + u' ' + model.index(row, 2).data().toString();
        return shown.join(u" | "_s).toStdString();
    }
    /// Types and codes of the lines of look-up @p number as they are stored.
    std::string stored(int number)
    {
        const auto database = m_shop.open();
        const auto record = database->openQuery(u"select * from wlu where wluno = %1"_s.arg(number));
        QStringList shown;
        for (int line = 1; line <= 4; ++line) {
            shown += record.value(u"wlutype%1"_s.arg(line)).toText() + u':' +
                     QString::number(record.value(u"codenumber%1"_s.arg(line)).toText().toLongLong());
        }
        return shown.join(u' ').toStdString();
    }

    test::KeyShop m_shop;
    norvane::test::RecordingBoxes m_boxes;
    std::unique_ptr<frmwlu> m_form;
};

const norvane::test::ShownBox noMore{u"No more records.."_s, u"Information"_s, BoxIcon::Information};

TEST_F(FrmwluTest, WalksTheLookUpsOfTheChosenCustomer)
{
    m_shop.values.databasePath = m_shop.folder.path("velmar.mdb");
    EXPECT_EQ(lines(), "PLU 000000000000001001\nCola | Condiment 000000000000001002\nLemonade | Not Used 0 | "
                       "Not Used 0");
    EXPECT_EQ(control<QLabel>("KeysOfWLU").text(), u"Opened by Level 1 key 5, Level 2 key 1."_s);
    press("NextRecord");
    EXPECT_EQ(control<QLabel>("KeysOfWLU").text(), u"No key opens this look-up."_s);
    for (const auto& [name, shown] : {std::pair("WLUNumber", u"2"_s),
                                      {"description", u"Payment"_s},
                                      {"noofchoices", u"1"_s},
                                      {"linkwlu", u"1"_s}})
        EXPECT_EQ(control<QLineEdit>(name).text(), shown) << name;
    for (const auto& [name, ticked] : {std::pair("allowcondiment", false),
                                       {"allowplu", false},
                                       {"allowfunction", true},
                                       {"itemmultiply", false},
                                       {"Allowexit", true}})
        EXPECT_EQ(control<QCheckBox>(name).isChecked(), ticked) << name;
    QTest::keyClicks(&control<QLineEdit>("description"), u" by a text that is too long"_s);
    press("NextRecord");
    EXPECT_EQ(control<QLineEdit>("description").text().size(), 12) << "what was typed remains, cut to twelve";
    press("PreviousRecord");
    control<QLineEdit>("linkwlu").setText(u"7"_s);
    press("PreviousRecord");
    EXPECT_EQ(m_boxes.shown, (std::vector{noMore, noMore}));
    EXPECT_EQ(control<QLineEdit>("linkwlu").text(), u""_s) << "the first record is shown again";
}

TEST_F(FrmwluTest, OffersTheListsOfWhatIsAllowed)
{
    const auto offered = [this] {
        std::string shown;
        for (const char* name : {"plucode", "plulist", "function1", "functionlist", "ListFilter", "ListHint"})
            shown += control<QWidget>(name).isVisible() ? '1' : '0';
        return shown;
    };
    EXPECT_EQ(offered(), "110010");
    for (const auto& [name, shown] : {std::pair("allowfunction", "111110"),
                                      {"plucode", "111010"},
                                      {"function1", "101110"},
                                      {"allowplu", "001110"},
                                      {"allowcondiment", "111110"},
                                      {"allowfunction", "110010"},
                                      {"allowcondiment", "000001"}}) {
        QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_EQ(offered(), shown) << name;
    }
    press("NextRecord");
    EXPECT_EQ(offered(), "001110");
}

TEST_F(FrmwluTest, FillsMovesAndSavesLines)
{
    click("Grid1", 3);
    click("plulist", 2);
    EXPECT_TRUE(QByteArray::fromStdString(lines()).endsWith("Not Used 0 | PLU P00000000000002001 Cake"));
    auto& grid = control<QTableView>("Grid1");
    for (const int step : {1, 2})
        QTest::keyClick(m_form->windowHandle(), Qt::Key_Up, Qt::AltModifier, step);
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(1, 2));
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Return);
    QTest::keyClicks(m_form->focusWidget(), u"cola"_s);
    m_shop.execute("delete * from pludata where description = 'Cola'");
    QTest::keyClick(m_form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(m_form->focusWidget(), &grid);
    EXPECT_EQ(lines(), "PLU 000000000000001001\nCola | PLU P00000000000002001 Cake | Condiment PLU ITEM | "
                       "Not Used 0");
    const auto drop = [&](int from, int before, int on) {
        const std::unique_ptr<QMimeData> dragged(grid.model()->mimeData({grid.model()->index(from, 2)}));
        grid.model()->dropMimeData(dragged.get(), Qt::MoveAction, before, 0, grid.model()->index(on, 0));
        return grid.currentIndex().row();
    };
    EXPECT_EQ(drop(0, 2, -1), 1) << "between lines 2 and 3";
    EXPECT_EQ(drop(1, -1, 2), 2) << "on line 3";
    EXPECT_EQ(drop(0, -1, -1), 3) << "below all";
    QTest::keyClick(m_form->windowHandle(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(grid.currentIndex().row(), 3) << "there is no line below";
    press("CSCmdBtn1");
    EXPECT_EQ(stored(1), "0:1001 1:1002 :0 :0");
    m_boxes.answers = {true};
    press("CSCmdBtn1");
    EXPECT_EQ(m_boxes.shown, (std::vector(2, norvane::test::ShownBox{u"Save Changes?"_s, u"Save Details."_s,
                                                                     BoxIcon::Question})));
    EXPECT_EQ(stored(1), "0:1001 0:2001 0:0 0:0");
    EXPECT_EQ(lines(), "PLU 0 | PLU 000000000000002001\nCake | PLU 0 | PLU 0")
        << "shown again: the cola is gone";
}

TEST_F(FrmwluTest, DeletesALineAtOnceAndAsksBeforeANewNumber)
{
    m_shop.execute("update wlu set description = 'Cold Drinks and whatever else there is' where wluno = 1");
    press("PreviousRecord");
    control<QLineEdit>("linkwlu").setText(u"2"_s);
    press("CSCmdBtn3");
    EXPECT_EQ(stored(1), "1:1002 0:0 0:0 0:0");
    EXPECT_EQ(m_shop.column("WLU", "LINK"), "2|1");
    EXPECT_EQ(m_shop.column("WLU", "DESCRIPTION"), "Cold Drinks |Payment") << "cut by the box";
    EXPECT_EQ(m_boxes.shown, std::vector{noMore});
    for (const bool answer : {false, true}) {
        control<QLineEdit>("WLUNumber").setText(u"9"_s);
        m_boxes.answers = {true, answer};
        press("CSCmdBtn1");
        EXPECT_EQ(m_boxes.shown.back().preset, BoxAnswer::No);
        EXPECT_EQ(m_shop.column("WLU", "WLUno"), answer ? "2|9" : "1|2");
    }
}

TEST_F(FrmwluTest, ANumberThatExistsIsOfferedInsteadAndNothingIsStored)
{
    auto& number = control<QLineEdit>("WLUNumber");
    for (const bool goes : {false, true}) {
        number.setFocus();
        number.selectAll();
        QTest::keyClicks(&number, u"2"_s);
        m_boxes.answers = {true, goes};
        press("CSCmdBtn1");
        EXPECT_EQ(
            m_boxes.shown.back().text,
            u"WLU No 2, \"Payment\", exists already, and no two look-ups can have one number. Nothing was "
            "saved.\n\nGo to WLU No 2 instead? What was changed in WLU No 1 is lost then."_s);
        EXPECT_EQ(m_boxes.shown.back().preset, BoxAnswer::No);
        EXPECT_EQ(control<QLineEdit>("description").text(), goes ? u"Payment"_s : u"Drinks"_s);
        EXPECT_EQ(m_shop.column("WLU", "WLUno"), "1|2");
    }
}

TEST_F(FrmwluTest, AListLeadsToAnyLookUpAndAsksAboutChanges)
{
    auto& list = control<QComboBox>("selectwlu");
    EXPECT_TRUE(list.currentText().endsWith(u"Drinks"));
    const auto choose = [&](const char* typed) {
        QTest::mouseClick(list.lineEdit(), Qt::LeftButton);
        QApplication::processEvents();
        QTest::keyClicks(list.lineEdit(), QLatin1String(typed));
        QTest::keyClick(list.lineEdit(), Qt::Key_Return);
        return control<QLineEdit>("description").text();
    };
    EXPECT_EQ(choose("pay"), u"Payment"_s);
    press("PreviousRecord");
    EXPECT_TRUE(list.currentText().endsWith(u"Drinks"));
    control<QLineEdit>("description").setText(u"Beers"_s);
    EXPECT_EQ(choose("2"), u"Beers"_s) << "the question was closed";
    EXPECT_TRUE(list.currentText().endsWith(u"Drinks"));
    m_boxes.answers = {true};
    EXPECT_EQ(choose("2"), u"Payment"_s);
    EXPECT_EQ(choose("beer"), u"Beers"_s) << "the list shows what was saved";
    EXPECT_EQ(m_boxes.shown.size(), 2U);
}

TEST_F(FrmwluTest, EscapeLeavesTheListsThenAsksAboutChangesWhichExitDrops)
{
    const auto escape = [this] {
        QTest::keyClick(m_form->focusWidget(), Qt::Key_Escape);
        return m_form->isVisible();
    };
    auto& grid = control<QTableView>("Grid1");
    QTest::keyClick(&grid, Qt::Key_Return);
    QTest::keyClicks(m_form->focusWidget(), u"lem"_s);
    QTest::keyClick(m_form->focusWidget(), Qt::Key_Return);
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_TRUE(escape());
    EXPECT_EQ(m_form->focusWidget(), &grid);
    EXPECT_EQ(control<QLineEdit>("ListFilter").text(), QString());
    EXPECT_TRUE(escape()) << "the question was closed";
    press("CSCmdBtn2");
    EXPECT_FALSE(m_form->isVisible());
    EXPECT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(stored(1), "0:1001 1:1002 :0 :0");
    m_form->show();
    m_boxes.answers = {true};
    EXPECT_FALSE(escape());
    EXPECT_EQ(stored(1), "0:1002 1:1002 0:0 0:0");
    m_form->show();
    EXPECT_FALSE(escape()) << "nothing has changed since";
    EXPECT_EQ(m_boxes.shown.size(), 2U);
}

TEST_F(FrmwluTest, ListsWhereTheLookUpShownIsUsed)
{
    auto& button = control<QPushButton>("RecordUses");
    EXPECT_TRUE(norvane::test::soon([&] { return button.text() == u"Used in 3 Places..."_s; }));
    QTest::keyClick(m_form.get(), Qt::Key_R, Qt::ControlModifier);
    const auto& list = control<QListWidget>("UsesList");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(1)->text(), u"Keyboard level 2, key 1"_s);
    EXPECT_EQ(list.item(2)->text(), u"Link of window look-up 2 \"Payment\""_s);
    QApplication::activePopupWidget()->close();
    m_form->showRecord(u"2"_s);
    EXPECT_TRUE(norvane::test::soon([&] { return button.text() == u"Not Used Anywhere"_s; }));
    EXPECT_EQ(control<QLineEdit>("WLUNumber").text(), u"2"_s);
    m_form->showRecord(u"77"_s);
    EXPECT_EQ(control<QLineEdit>("WLUNumber").text(), u"2"_s);
}

} // namespace
} // namespace norvane::keys
