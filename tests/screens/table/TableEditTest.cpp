// Changes entered in the table: cells, blocks and the list of changes.
#include "screens/table/CellInput.h"
#include "screens/table/PastedBlock.h"
#include "tests/screens/table/TableWindowFixture.h"

namespace norvane::screens
{
namespace
{

using TableEditTest = TableWindowFixture;

TEST_F(TableEditTest, TypedCellsAreListedAndStoredTogether)
{
    goTo(0, 3);
    type("2,75");
    type("11.5", Qt::Key_Tab); // Enter has led down, and Tab leads on
    QTest::keyClicks(QApplication::focusWidget(), u"14"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    goTo(2, 5);
    QTest::keyClick(view, Qt::Key_Space);
    EXPECT_EQ(row(0), "5|Lager|3 Drinks|2.75|0||7");
    EXPECT_EQ(pending(), "5|PRICE1|2.50|2.75 9|PRICE1|10.00|11.50 9|PIECECOUNT|12|14 30|INactive|No|Yes");
    EXPECT_EQ(plus(), untouched);
    test::child<QTableView>(*window, "PendingView").selectRow(2);
    test::press(*window, "TakeBack");
    save();
    EXPECT_EQ(plus(), "Lager|2.75|3|False Coke Zero|11.5|3|True Café|9.8|1|True Menu|0.00|0|False");
    EXPECT_EQ(notice, "Saved 3 changes in 3 records. Ctrl+Z undoes it");
    EXPECT_EQ(pending(), "");
    EXPECT_EQ(log().count('\n'), 1);
    EXPECT_TRUE(log().contains("Table PLUs, 3 changes in 3 records")) << log().data();
    EXPECT_EQ(QDir(m_folder.path("SHOP/copies")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    ASSERT_NE(m_history->latest(m_values.databasePath), nullptr);
    store::Database database(m_values.databasePath);
    EXPECT_EQ(m_history->latest(m_values.databasePath)->changes.takeBack(database), 3U);
    EXPECT_EQ(plus(), untouched);
}

constexpr struct {
    const char* column;
    const char* input;
    const char* outcome; ///< the text then shown, or "!" and why not
} inputs[] = {
    {"PRICE1", "2,5", "2.50"},
    {"PRICE1", "", "0.00"},
    {"PRICE1", "1.234", "!has more than 2 decimals"},
    {"PRICE1", "-1", "!is not a number from 0 up"},
    {"PRICE1", "1.2.3", "!is not a number from 0 up"},
    {"PRICE1", "1000000", "!is more than a register holds"},
    {"PRICE1", "12345678901234567890", "!has more than 18 digits"},
    {"PIECECOUNT", "9999", "9999"},
    {"PIECECOUNT", "10000", "!is more than a register holds"},
    {"PIECECOUNT", "two", "!is not a number from 0 up"},
    {"GROUPNO", "3", "3 Drinks"},
    {"GROUPNO", "drinks", "3 Drinks"},
    {"GROUPNO", "3 Drinks", "3 Drinks"},
    {"GROUPNO", "2", "!is not in the list"},
    {"GROUPNO", "1e30", "!is not in the list"},
    {"INactive", "TRUE", "Yes"},
    {"INactive", "maybe", "!is neither Yes nor No"},
    {"DESCRIPTION", "Flat White\n", "Flat White"},
    {"DESCRIPTION", "Flat\nWhite", "!has more than one line"},
    {"DESCRIPTION", "A very long article name", "!has more than 16 characters"},
    {"DESCRIPTION", "\u0416", "!has characters that registers do not have"},
};

TEST_F(TableEditTest, InputIsCheckedByTheRulesOfTheScreen)
{
    const TableSource table = source();
    for (const auto& [name, text, outcome] : inputs) {
        const auto column = std::ranges::find_if(table.columns, [name = name](const TableColumn& known) {
            return known.field.name == QLatin1String(name);
        });
        const CellInput input = cellInput(*column, QString::fromUtf8(text));
        EXPECT_EQ((input.value ? column->text(*input.value) : u'!' + input.refusal).toStdString(), outcome)
            << name << ' ' << text;
    }
}

TEST_F(TableEditTest, ARefusedInputIsOpenAgainInItsCell)
{
    goTo(0, 3);
    type("7x");
    EXPECT_TRUE(test::soon([this] { return notice == "PRICE1: \"7x\" is not a number from 0 up"; }))
        << notice;
    auto* const box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), u"7x"_s);
    EXPECT_EQ(pending(), "");
}

TEST_F(TableEditTest, ALockedCellSaysWhyItCannotBeChanged)
{
    goTo(1, 0);
    QTest::keyClick(view, Qt::Key_3);
    EXPECT_EQ(notice, "PLUNUMBER is changed only on the record's screen. Enter opens it");
    EXPECT_EQ(view->currentIndex().row(), 1) << "no search for a number that begins with 3";
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_EQ(m_boxes.beeps, 1);
    goTo(1, 6);
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Space})
        QTest::keyClick(view, key);
    EXPECT_EQ(notice, "MODIFIER is only shown, on the record's screen too");
    EXPECT_EQ(m_boxes.beeps, 3);
}

TEST_F(TableEditTest, ABlockIsPastedAsAWholeOrAfterAQuestion)
{
    goTo(0, 1);
    paste("Stout\t1\t3,10\r\nSprite\tDrinks\t4\r\n");
    EXPECT_EQ(row(0), "5|Stout|1 Bar|3.10|0||7");
    EXPECT_EQ(row(1), "9|Sprite|3 Drinks|4.00|12|Yes|7");
    goTo(3, 3);
    paste("abc\t12345678901234567890\tno\t7\tmore\n6\n");
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].text.toStdString(),
              "These cells cannot be pasted:\r\rRow 1, PRICE1: \"abc\" is not a number from 0 up\r"
              "Row 1, PIECECOUNT: \"12345678901234567890\" has more than 18 digits\r"
              "Row 1, column 5: \"more\" has no column to go to\r"
              "Row 2, column 1: \"6\" has no row to go to\r\rPaste the other 1?");
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_EQ(row(3), "1001|Menu|0 Not used|0.00|0||7");
    EXPECT_EQ(notice, "Nothing was pasted");
    goTo(3, 1);
    paste("\"two\nlines\"\t1e30");
    EXPECT_EQ(m_boxes.shown.back().text.toStdString(),
              "These cells cannot be pasted:\r\rRow 1, DESCRIPTION: \"two lines\" has more than one line\r"
              "Row 1, GROUPNO: \"1e30\" is not in the list");
    view->selectAll();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    const auto copied = cellsOfText(QGuiApplication::clipboard()->text());
    EXPECT_EQ(copied.size(), 4);
    EXPECT_EQ(copied.at(0).join(u'|'), u"5|Stout|1 Bar|3.10|0||7"_s);
    EXPECT_EQ(cellsOfText(u"\"a\n\"\"b\"\tc"_s), (QVector<QStringList>{{u"a\n\"b"_s, u"c"_s}}));
}

} // namespace
} // namespace norvane::screens
