// A table beside its screen in the real main window.
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

} // namespace
} // namespace norvane::shell
