// The grid of a screen: cells entered by keys, rows found above it, prices in the database.
#include "screens/GridControl.h"
#include "store/engine/CommitOnExit.h"
#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{
namespace
{

using test::ShownBox;

const ShownBox invalidEntry{u"Invalid Data Entry"_s, u"Operation Error"_s, BoxIcon::Exclamation};

class GridTest : public test::ScreenFixture
{
protected:
    GridTest()
    {
        store::Database database(m_values.databasePath);
        store::CommitOnExit transaction(database);
        for (int number = 200; number < 700; ++number)
            database.execute(u"insert into PLUDATA values ('000000000000000%1', 'x', '1', 2)"_s.arg(number));
        transaction.commit();
        screen("[Database]\ntable=PLUDATA\nIndex1=plunumber\n"
               "[Field1]\nControlType=GridControl\nWidth=9000\nHeight=3000\nVisible=True\n"
               "SQLCriteria=select PLUNUMBER, DESCRIPTION, PRICE1, GROUPNO from PLUDATA order by PLUNUMBER\n"
               "Caption0=Number\nColwidth0=3000\nlocked0=True\nCaption1=Name\nVisible1=False\n"
               "Caption2=Price\nnumberFormat2=#,##0.00\nCaption4=Lost\nCaption5=Lost\n");
        form = open();
        grid = control<GridControl>(form, "gridcontrol_0");
    }
    [[nodiscard]] QModelIndex cell(int row, int column) const { return grid->model()->index(row, column); }
    void enter(int row, int column, const char* keys)
    {
        grid->setFocus();
        grid->setCurrentIndex(cell(row, column));
        QTest::keyClick(grid, Qt::Key_F2);
        auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr);
        editor->clear();
        QTest::keyClicks(editor, QString::fromLatin1(keys));
        leave(editor);
    }
    static void leave(QLineEdit* editor)
    {
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// The last digits of the current row's number.
    [[nodiscard]] std::string current() const
    {
        return grid->currentIndex().siblingAtColumn(0).data().toString().right(3).toStdString();
    }
    [[nodiscard]] std::string stored(const char* field) const
    {
        return rows(QByteArray("select ") + field + " from PLUDATA where DESCRIPTION = 'Lager'");
    }

    Form form;
    GridControl* grid = nullptr;
};

TEST_F(GridTest, ReadsALongTableAsTheUserScrolls)
{
    EXPECT_EQ(grid->columnWidth(0), 200);
    EXPECT_TRUE(grid->isColumnHidden(1));
    EXPECT_EQ(grid->model()->headerData(2, Qt::Horizontal), u"Price"_s);
    EXPECT_EQ(grid->model()->headerData(3, Qt::Horizontal), u"GROUPNO"_s);
    EXPECT_EQ(cell(0, 2).data(), u"2.50"_s);
    EXPECT_FALSE(cell(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_EQ(grid->viewport()->height() % grid->rowHeight(0), 0) << "whole rows only";
    EXPECT_LT(grid->model()->rowCount(), 502) << "a long table is read as the user scrolls";
    while (grid->model()->rowCount() < 502) {
        const int before = grid->model()->rowCount();
        grid->scrollToBottom();
        QCoreApplication::processEvents();
        ASSERT_GT(grid->model()->rowCount(), before);
    }
    enter(501, 2, "7");
    EXPECT_EQ(rows("select PLUNUMBER from PLUDATA where PRICE1 = '7'"), "000000000000000699");
}

const std::tuple<int, const char*, const char*, const char*> entries[] = {
    {2, "3.9", "3.9", "3.90"},
    {2, "4,05", "4.05", "4.05"},
    {2, "0007", "7", "7.00"},
    {2, ".5", "0.5", "0.50"},
    {2, "999999.99", "999999.99", "999999.99"},
    {2, "", "0", "0.00"},
    {3, "12", "12", "12"},
    {3, "", "null", ""}};

TEST_F(GridTest, CellsAreStoredAtOnce)
{
    QString message;
    QObject::connect(&*form, &OptionForm::noticeChanged, &*form,
                     [&message](const QString& text) { message = text; });
    for (const auto& [column, keys, kept, shown] : entries) {
        enter(0, column, keys);
        EXPECT_EQ(stored(column == 2 ? "PRICE1" : "GROUPNO"), kept);
        EXPECT_EQ(cell(0, column).data().toString().toStdString(), shown);
    }
    EXPECT_TRUE(m_boxes.shown.empty());
    enter(0, 2, "-5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_boxes.shown.empty(); }));
    EXPECT_EQ(message, u"Nothing was stored: \"-5\" is not a number from 0 up with at most 2 decimals"_s);
    enter(0, 2, "6");
    EXPECT_EQ(message, u"Saved Number 5"_s) << "and no longer that nothing was stored";
    execute("update PLUDATA set PRICE1 = '1.255'");
    grid = control<GridControl>(form = open(), "gridcontrol_0");
    EXPECT_EQ(cell(0, 2).data(), u"1.255"_s) << "what is seen is what is stored";
}

TEST_F(GridTest, RowsAreReadAgainAndTheCurrentOneStaysTheSameRecord)
{
    EXPECT_EQ(grid->model()->rowCount(), 200) << "also after the window came to the front";
    type(form, "GridFind", "600");
    const int top = grid->verticalScrollBar()->value();
    execute("update PLUDATA set PRICE1 = '9'");
    form->refresh();
    EXPECT_EQ(grid->currentIndex().siblingAtColumn(2).data(), u"9.00"_s);
    EXPECT_EQ(cell(0, 2).data(), u"9.00"_s);
    EXPECT_EQ(grid->verticalScrollBar()->value(), top) << "the rows keep their places";
    EXPECT_EQ(current(), "600");
    execute("delete * from PLUDATA where PLUNUMBER < '000000000000000590'");
    form->refresh();
    EXPECT_EQ(current(), "600");
    EXPECT_EQ(grid->currentIndex().row(), 10);
    type(form, "GridFind", "Lager");
    EXPECT_EQ(control<QLabel>(form, "GridFindOutcome")->text(), u"No such row"_s);
    grid->setFocus();
    grid->setCurrentIndex(cell(10, 2));
    QTest::keyClicks(grid, u"7"_s);
    execute("update PLUDATA set PRICE1 = '8'");
    form->refresh();
    EXPECT_EQ(qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(), u"7"_s) << "being typed";
    leave(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    EXPECT_EQ(rows("select PLUNUMBER from PLUDATA where PRICE1 = '7'"), "000000000000000600");
    execute("delete * from PLUDATA");
    form->refresh();
    EXPECT_EQ(grid->model()->rowCount(), 0);
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(GridTest, WhatNoRegisterHoldsIsRejectedAndTheCellKeepsItsPrice)
{
    for (const char* keys : {"x1", "-5", "1e5", "123456789012345", "1000000", "1.005", "1.2.3", " "}) {
        enter(0, 2, keys);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !m_boxes.shown.empty(); })) << keys;
        EXPECT_EQ(takeBox(), invalidEntry) << keys;
        auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr);
        EXPECT_TRUE(grid->isAncestorOf(editor));
        EXPECT_EQ(editor->text(), QString()) << "emptied for the next try";
        leave(editor);
        EXPECT_EQ(stored("PRICE1"), "2.5") << "left without another try";
    }
}

TEST_F(GridTest, FindsRowsByNumberOrText)
{
    type(form, "GridFind", "CLAR");
    EXPECT_EQ(current(), "123");
    QTest::keyClick(control(form, "GridFind"), Qt::Key_Down);
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_EQ(grid->currentIndex().column(), 2) << "the first cell that can be entered and is shown";
    type(form, "GridFind", "69");
    EXPECT_EQ(current(), "269");
    EXPECT_TRUE(grid->viewport()->rect().contains(grid->visualRect(grid->currentIndex())));
    for (const char* next : {"369", "469", "569", "669", "690", "691"}) {
        QTest::keyClick(control(form, "GridFind"), Qt::Key_Return);
        EXPECT_EQ(current(), next);
    }
}

TEST_F(GridTest, RemainsAtTheOnlyOrTheLastMatch)
{
    type(form, "GridFind", "699");
    QTest::keyClick(control(form, "GridFind"), Qt::Key_Return);
    EXPECT_EQ(current(), "699") << "the only one, again";
    type(form, "GridFind", "clart");
    EXPECT_EQ(current(), "123") << "remains at the last match";
    EXPECT_EQ(control<QLabel>(form, "GridFindOutcome")->text(), u"No such row"_s);
}

} // namespace
} // namespace norvane::screens
