// Changes entered in the table: cells, blocks, the list of changes, and what is stored of them.
#include "platform/FolderLock.h"
#include "screens/table/CellInput.h"
#include "screens/table/PastedBlock.h"
#include "tests/screens/table/TableWindowFixture.h"

namespace norvane::screens
{
namespace
{

class TableEditTest : public TableWindowFixture
{
protected:
    void goTo(int row, int column) const
    {
        view->setFocus();
        view->selectionModel()->setCurrentIndex(view->model()->index(row, column),
                                                QItemSelectionModel::ClearAndSelect);
    }
    /// Types into the cell with the focus, then presses @p key.
    void type(const char* text, Qt::Key key = Qt::Key_Return) const
    {
        QTest::keyClicks(view, QString::fromUtf8(text).left(1));
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text).mid(1));
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    void paste(const char* text) const
    {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        QTest::keyClick(view, Qt::Key_V, Qt::ControlModifier);
    }
    /// The list of changes.
    [[nodiscard]] std::string pending() const
    {
        const auto& list = *test::child<QTableView>(*window, "PendingView").model();
        QStringList lines;
        for (int row = 0; row < list.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < list.columnCount(); ++column)
                cells += list.index(row, column).data().toString();
            lines += cells.join(u'|');
        }
        return lines.join(u' ').toStdString();
    }
    void save() const { test::press(*window, "SaveChanges"); }
    [[nodiscard]] std::string plus() const
    {
        return rows("select DESCRIPTION, PRICE1, GROUPNO, INactive from PLUDATA order by PLUNUMBER");
    }
    [[nodiscard]] QByteArray log() const { return m_folder.read("SHOP/norvane.log"); }
};

const auto untouched = "Lager|2.5|3|False Coke Zero|10|3|True Café|9.8|1|False Menu|0.00|0|False";

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

TEST_F(TableEditTest, ABlockIsPastedAsAWholeOrAfterAQuestion)
{
    goTo(0, 1);
    paste("Stout\t1\t3,10\r\nSprite\tDrinks\t4\r\n");
    EXPECT_EQ(row(0), "5|Stout|1 Bar|3.10|0||7");
    EXPECT_EQ(row(1), "9|Sprite|3 Drinks|4.00|12|Yes|7");
    goTo(3, 3);
    paste("abc\t5\tno\t7\tmore\n6\n");
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(m_boxes.shown[0].text.toStdString(),
              "These cells cannot be pasted:\r\rRow 1, PRICE1: \"abc\" is not a number from 0 up\r"
              "Row 1, column 5: \"more\" has no column to go to\r"
              "Row 2, column 1: \"6\" has no row to go to\r\rPaste the other 2?");
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_EQ(row(3), "1001|Menu|0 Not used|0.00|0||7");
    EXPECT_EQ(notice, "Nothing was pasted");
    view->selectAll();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    const auto copied = cellsOfText(QGuiApplication::clipboard()->text());
    EXPECT_EQ(copied.size(), 4);
    EXPECT_EQ(copied.at(0).join(u'|'), u"5|Stout|1 Bar|3.10|0||7"_s);
    EXPECT_EQ(cellsOfText(u"\"a\n\"\"b\"\tc"_s), (QVector<QStringList>{{u"a\n\"b"_s, u"c"_s}}));
}

TEST_F(TableEditTest, ChangesOfOthersAreShownBeforeTheyAreOverwritten)
{
    for (const int number : {0, 1, 2}) {
        goTo(number, 3);
        type("7");
    }
    execute("update PLUDATA set PRICE1 = '3' where DESCRIPTION = 'Lager'");
    execute("delete * from PLUDATA where DESCRIPTION = 'Coke Zero'");
    execute("delete * from PLUDATA where DESCRIPTION = 'Café'");
    addPlu("30, 'Mocha', 1, '9.8', 0, 0"); // as an upload stores it again
    save();
    ASSERT_EQ(m_boxes.shown.size(), 1U);
    EXPECT_EQ(
        m_boxes.shown[0].text.toStdString(),
        "Others have changed records since you saw them:\r\rPLUNUMBER 5, PRICE1: was 2.50, is 3.00, yours is "
        "7.00\rPLUNUMBER 9 was deleted; its change is dropped\r\rStore your values?");
    EXPECT_EQ(m_boxes.shown[0].preset, BoxAnswer::No);
    EXPECT_EQ(plus(), "Lager|3|3|False Mocha|9.8|1|False Menu|0.00|0|False");
    EXPECT_EQ(notice, "Nothing was stored. Your changes are still in the list");
    m_boxes.answers = {true};
    save();
    EXPECT_EQ(plus(), "Lager|7|3|False Mocha|7|1|False Menu|0.00|0|False");
    EXPECT_EQ(pending(), "");
}

TEST_F(TableEditTest, TheListSurvivesAFailedSaveAndClosingAsks)
{
    goTo(0, 1);
    type("Stout");
    {
        const auto lock = FolderLock::take(m_values.customerPath, m_boxes);
        save();
    }
    QFile(m_values.customerPath + u"/copies"_s).open(QFile::WriteOnly); // where the copies belong
    save();
    EXPECT_EQ(notice, "Nothing was stored: there is no safety copy");
    EXPECT_EQ(pending(), "5|DESCRIPTION|Lager|Stout");
    EXPECT_EQ(plus(), untouched);
    EXPECT_FALSE(window->close());
    EXPECT_EQ(m_boxes.shown.back().text,
              u"Changes in the table of PLUs are not saved. [Save|Discard|Cancel]"_s);
    QFile::remove(m_values.customerPath + u"/copies"_s);
    m_boxes.unsavedAnswers = {UnsavedAnswer::Save};
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(plus().starts_with("Stout|"));
}

} // namespace
} // namespace norvane::screens
