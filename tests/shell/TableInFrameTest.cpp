// A table beside its screen in the real main window.
#include "customers/SafetyCopies.h"
#include "tests/shell/FrameFixture.h"

namespace norvane::shell
{
namespace
{

class TableInFrameTest : public FrameFixture
{
protected:
    /// As it is shown; the window must be in front.
    [[nodiscard]] std::string currentName()
    {
        const auto& view = child<QTableView>(front(), "TableView");
        return view.currentIndex().siblingAtColumn(1).data().toString().toStdString();
    }
    void showTable()
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_T, Qt::ControlModifier);
        ASSERT_EQ(front().objectName(), u"TableWindow"_s);
    }
};

TEST_F(TableInFrameTest, TableAndScreenFollowEachOther)
{
    QWidget& screen = open("PLUMENU");
    child<QPushButton>(screen, "NextRecord").click();
    showTable();
    QWidget& table = front();
    EXPECT_EQ(currentName(), "Cider");
    auto& view = child<QTableView>(table, "TableView");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Up);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(&front(), &screen);
    EXPECT_EQ(shown(screen, pluName), "Lager");
    child<QPushButton>(screen, "NextRecord").click();
    type(screen, pluName, "Perry");
    save(screen);
    showTable();
    EXPECT_EQ(&front(), &table) << "the one that is open";
    EXPECT_EQ(currentName(), "Perry");
}

TEST_F(TableInFrameTest, EnterOpensTheScreenAgain)
{
    QWidget* const screen = &open("PLUMENU");
    showTable();
    screen->close();
    ASSERT_TRUE(soon([this] { return m_main->findChild<QWidget*>(u"OptionForm"_s) == nullptr; }));
    auto& view = child<QTableView>(front(), "TableView");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Down);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(shown(front(), pluName), "Cider");
}

TEST_F(TableInFrameTest, ARecordLikeTheCurrentOneIsAddedOnItsScreen)
{
    QWidget& screen = open("PLUMENU");
    showTable();
    auto& view = child<QTableView>(front(), "TableView");
    view.selectRow(1);
    QTest::keyClick(&view, Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(&front(), &screen);
    EXPECT_EQ(shown(screen, pluNumber) + shown(screen, firstPrice), "10033.00");
    for (const char* name : {"Perry", "Mead"}) {
        type(screen, pluName, name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(notice(),
              "Saved PLU 1004. A new record like it. Type its number and description, then press Save");
    EXPECT_EQ(plus(), "Lager 2.5|Cider 3|Perry 3|Mead 3");
    EXPECT_EQ(shown(screen, pluNumber), "1005");
}

TEST_F(TableInFrameTest, SaysWhereTheCurrentRecordIsUsed)
{
    execute(u"insert into KEYLINK (ID, KEYLINK) values (1, '0')"_s);
    execute(u"insert into NLU (ID, NLU) values (1, '000000000000001002')"_s);
    open("PLUMENU");
    showTable();
    auto& button = child<QPushButton>(front(), "RecordUses");
    EXPECT_TRUE(soon([&] { return button.text() == u"Not Used Anywhere"_s; }));
    auto& view = child<QTableView>(front(), "TableView");
    view.selectRow(1);
    EXPECT_TRUE(soon([&] { return button.text() == u"Used in 1 Place..."_s; }));
    QTest::keyClick(&view, Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(child<QListWidget>(front(), "UsesList").item(0)->text(), u"Keyboard level 1, key 1"_s);
}

TEST_F(TableInFrameTest, ARestoredSafetyCopyShowsAtOnce)
{
    open("PLUMENU");
    showTable();
    (void)customers::makeSafetyCopy(m_values.customerPath, u"by hand"_s, store::CopyOf::Programme);
    execute(u"update PLUDATA set DESCRIPTION = 'Perry'"_s);
    Q_EMIT m_main->entryDone();
    EXPECT_EQ(currentName(), "Perry");
    QTimer::singleShot(0, &*m_main, [this] {
        auto& copies = child<QDialog>(*m_main, "CopiesDialog");
        m_boxes.answers = {true};
        child<QPushButton>(copies, "RestoreCopy").click();
        copies.close();
    });
    child<QAction>(front(), "SafetyCopies").trigger();
    EXPECT_EQ(currentName(), "Lager");
}

} // namespace
} // namespace norvane::shell
