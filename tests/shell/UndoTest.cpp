// Ctrl+Z takes back what was stored: the latest first, with a question.
#include "tests/shell/FrameFixture.h"

namespace norvane::shell
{
namespace
{

class UndoTest : public FrameFixture
{
protected:
    /// Presses Ctrl+Z where the focus is and answers the question. @return the question.
    std::string undo(bool yes = true)
    {
        m_boxes.shown.clear();
        m_boxes.answers = {yes};
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus == nullptr ? &*m_main : focus, Qt::Key_Z, Qt::ControlModifier);
        return m_boxes.shown.empty() ? std::string() : m_boxes.shown.front().text.toStdString();
    }
    static void expectAsked(const std::string& question, const std::string& work, const std::string& change)
    {
        EXPECT_TRUE(question.starts_with("Undo \"" + work + "\" of ")) << question;
        EXPECT_NE(question.find("?\r\r" + change), std::string::npos) << question;
    }
};

TEST_F(UndoTest, EachWorkIsUndoneTheLatestFirst)
{
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    save(screen);
    m_boxes.answers = {true};
    letter(Qt::Key_D);
    EXPECT_TRUE(soon([this] { return plus() == "Cider 3"; })) << plus();
    m_boxes.answers = {true};
    child<QAction>(*m_main, "ResetPrice").trigger();
    EXPECT_EQ(plus(), "Cider 0.00");
    expectAsked(undo(false), "Reset Prices", "PLU 1002, Price 1: 0.00 becomes 3.00");
    EXPECT_EQ(plus(), "Cider 0.00") << "after No";
    undo();
    EXPECT_EQ(plus(), "Cider 3");
    EXPECT_EQ(notice(), "Undone: Reset Prices, 1 record");
    expectAsked(undo(), "Deleted PLU 1001", "PLU 1001 is added again");
    EXPECT_EQ(plus(), "Stout 2.5|Cider 3");
    const std::string question = undo();
    expectAsked(question, "Saved PLU 1001", "PLU 1001, Description: Stout becomes Lager\r");
    EXPECT_TRUE(question.ends_with("\rPLU 1001: 4 numbers become empty again, which screens show as 0"))
        << question;
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    EXPECT_EQ(undo(), "");
    EXPECT_EQ(notice(), "There is nothing to undo");
}

TEST_F(UndoTest, ATableUndoesWhatIsNotStoredAndThenWhatIsStored)
{
    child<QAction>(open("PLUMENU"), "ShowTable").trigger();
    auto& cells = *child<QTableView>(front(), "TableView").model();
    const auto names = [&cells] {
        return (cells.index(0, 1).data().toString() + u' ' + cells.index(1, 1).data().toString())
            .toStdString();
    };
    cells.setData(cells.index(0, 1), u"Stout"_s);
    child<QPushButton>(front(), "SaveChanges").click();
    cells.setData(cells.index(0, 1), u"Bitter"_s);
    cells.setData(cells.index(1, 1), u"Perry"_s);
    child<QLineEdit>(front(), "TableFilter").setFocus();
    EXPECT_EQ(undo(), "");
    EXPECT_EQ(names(), "Bitter Cider");
    EXPECT_EQ(undo(), "");
    EXPECT_EQ(names(), "Stout Cider");
    EXPECT_NE(undo().find("Description: Stout becomes Lager"), std::string::npos);
    EXPECT_EQ(names(), "Lager Cider");
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
}

TEST_F(UndoTest, RecordsDeletedInATableComeBackTogether)
{
    execute(u"update PLUDATA set STOCKLINK = 1002 where DESCRIPTION = 'Lager'"_s);
    QWidget& screen = open("PLUMENU");
    child<QAction>(screen, "ShowTable").trigger();
    auto& view = child<QTableView>(front(), "TableView");
    view.setFocus();
    view.selectAll();
    const auto pressDelete = [&](bool yes) {
        m_boxes.answers = {yes};
        QTest::keyClick(&view, Qt::Key_Delete, Qt::ControlModifier);
    };
    addPlu(u"1003', 'Perry', '4"_s);
    pressDelete(false);
    EXPECT_EQ(m_boxes.shown.back().text.toStdString(), "Delete 2 records from the table of PLUs?\r\rPLU 1002 "
                                                       "is used in 1 place\r\rThey will be without it.");
    EXPECT_EQ(m_boxes.shown.back().preset, BoxAnswer::No);
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3|Perry 4");
    view.clearSelection();
    view.selectRow(0);
    view.selectionModel()->select(view.model()->index(1, 2), QItemSelectionModel::Select);
    pressDelete(true);
    EXPECT_EQ(plus(), "Perry 4");
    EXPECT_EQ(view.model()->rowCount(), 1);
    EXPECT_EQ(shown(screen, pluName), "Perry") << "the screen left the deleted record";
    EXPECT_NE(undo().find("PLU 1001 is added again\rPLU 1002 is added again"), std::string::npos);
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3|Perry 4");
}

TEST_F(UndoTest, WhatATableStoredIsUndoneFromItsScreen)
{
    QWidget& screen = open("PLUMENU");
    child<QAction>(screen, "ShowTable").trigger();
    QWidget& table = front();
    auto& cells = *child<QTableView>(table, "TableView").model();
    cells.setData(cells.index(0, 1), u"Stout"_s);
    cells.setData(cells.index(1, 1), u"Perry"_s);
    child<QPushButton>(table, "SaveChanges").click();
    EXPECT_EQ(plus(), "Stout 2.5|Perry 3");
    m_main->bringToFront(screen);
    child<QLineEdit>(screen, pluName).setFocus();
    const std::string question = undo();
    EXPECT_NE(question.find("Description: Stout becomes Lager"), std::string::npos) << question << notice();
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
}

TEST_F(UndoTest, ACellOfAGridIsUndoneWhereverItIsShown)
{
    QFile::copy(QStringLiteral(DATA_DIR "/plutble.scn"), m_folder.path("app/plutble.scn"));
    child<QAction>(open("PLUMENU"), "ShowTable").trigger();
    auto& table = *child<QTableView>(front(), "TableView").model();
    QWidget& euro = open("EuroPrice");
    auto& grid = child<QTableView>(euro, "gridcontrol_0");
    grid.model()->setData(grid.model()->index(0, 2), u"1.25"_s);
    grid.setFocus();
    expectAsked(undo(), "Saved PLU 1001", "PLU 1001, Euro price 1: 1.25 becomes empty");
    EXPECT_NE(grid.model()->index(0, 2).data(), u"1.25"_s);
    EXPECT_EQ(table.index(0, 1).data(), u"Lager"_s);
}

TEST_F(UndoTest, ANewRecordIsDeletedAgain)
{
    QWidget& screen = open("PLUMENU");
    letter(Qt::Key_A);
    EXPECT_TRUE(soon([&] { return shown(screen, pluName).empty(); }));
    type(screen, pluNumber, "555");
    save(screen);
    EXPECT_EQ(plus(), " 0|Lager 2.5|Cider 3");
    expectAsked(undo(), "Added PLU 555", "PLU 555 is deleted again");
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3");
    EXPECT_EQ(shown(screen, pluName), "Lager") << "the screen left the deleted record";
}

TEST_F(UndoTest, WhatSomebodyChangedSinceRemains)
{
    QWidget& screen = open("PLUMENU");
    type(screen, pluName, "Stout");
    save(screen);
    m_boxes.answers = {true};
    child<QAction>(*m_main, "ResetPrice").trigger();
    execute(u"update PLUDATA set PRICE1 = '9' where DESCRIPTION = 'Stout'"_s);
    const std::string question = undo();
    EXPECT_TRUE(question.ends_with("PLU 1001 was changed since and remains as it is")) << question;
    EXPECT_EQ(plus(), "Stout 9|Cider 3");
    const std::string refusal = undo();
    EXPECT_TRUE(refusal.starts_with("\"Saved PLU 1001\" of ")) << refusal;
    EXPECT_NE(refusal.find(": PLU 1001 was changed again since"), std::string::npos) << refusal;
    EXPECT_EQ(plus(), "Stout 9|Cider 3");
    EXPECT_EQ(notice(), "Not undone: Saved PLU 1001");
}

} // namespace
} // namespace norvane::shell
