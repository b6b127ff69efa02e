// The table as a user works with it.
#include "screens/table/TableWindow.h"

#include "tests/screens/table/TableShop.h"
#include "tests/support/FormTest.h"

namespace norvane::screens
{
namespace
{

class TableWindowTest : public test::TableShop
{
protected:
    TableWindowTest() { open(); }

    void open()
    {
        window = std::make_unique<TableWindow>(TableOrder{m_folder.path("test.scn"), m_values.databasePath,
                                                          u"PLUs"_s,
                                                          [](const QString& field) {
                                                              return field;
                                                          }},
                                               m_values, ColumnMemory(m_folder.path("tables.ini")));
        QObject::connect(window.get(), &TableWindow::recordWanted, window.get(),
                         [this](const QString& key) { wanted += key; });
        window->show();
        QApplication::setActiveWindow(window.get());
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        view = window->findChild<QTableView*>(u"TableView"_s);
    }
    /// The cells of a row that are in view.
    [[nodiscard]] std::string row(int number) const
    {
        QStringList cells;
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            if (!view->isColumnHidden(column))
                cells += view->model()->index(number, column).data().toString();
        }
        return number < view->model()->rowCount() ? cells.join(u'|').toStdString() : "";
    }
    [[nodiscard]] std::string count() const
    {
        return test::child<QLabel>(*window, "TableCount").text().toStdString();
    }
    void filter(const char* text) const
    {
        auto& box = test::child<QLineEdit>(*window, "TableFilter");
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, QString::fromUtf8(text));
    }
    /// Picks an entry as a user does.
    void pick(const char* list, const char* entry) const
    {
        auto& box = test::child<QComboBox>(*window, list);
        box.setFocus();
        QTest::keyClicks(&box, QString::fromUtf8(entry));
    }
    void clickHeading(int column) const
    {
        QHeaderView& header = *view->horizontalHeader();
        const QPoint place(header.sectionViewportPosition(column) + 5, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
    }

    std::unique_ptr<TableWindow> window;
    QTableView* view = nullptr;
    QStringList wanted;
};

TEST_F(TableWindowTest, AFilterAndChoicesAndAHeadingDecideWhatIsShown)
{
    EXPECT_EQ(count(), "4 records");
    EXPECT_EQ(row(0), "5|Lager|3 Drinks|2.50|0||7");
    clickHeading(3);
    EXPECT_EQ(row(0), "1001|Menu|0 Not used|0.00|0||7");
    pick("ChoiceColumn", "PRICE1");
    pick("Choice", "has");
    EXPECT_EQ(row(0), "5|Lager|3 Drinks|2.50|0||7");
    filter("drinks");
    EXPECT_EQ(count(), "2 of 4 records");
    filter("nothing like it");
    EXPECT_EQ(count(), "0 of 4 records");
    filter("e");
    EXPECT_EQ(count(), "2 of 4 records") << "Lager and Coke Zero";
    test::press(*window, "Made3");
    EXPECT_EQ(count(), "3 of 4 records") << "and Menu, which has no price";
}

TEST_F(TableWindowTest, EnterAndADoubleClickOpenTheRecordAndTheTableFollowsTheScreen)
{
    filter("coke");
    QTest::keyClick(&test::child<QLineEdit>(*window, "TableFilter"), Qt::Key_Return);
    filter(" ");
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    const QPoint cell = view->visualRect(view->model()->index(3, 1)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell);
    EXPECT_EQ(wanted,
              (QStringList{u"000000000000000009"_s, u"000000000000000030"_s, u"000000000000001001"_s}));
    window->mark(u"000000000000000005"_s);
    EXPECT_EQ(view->currentIndex().row(), 0);
    EXPECT_TRUE(view->model()->index(0, 1).data(Qt::FontRole).value<QFont>().bold());
    view->selectRow(2);
    window->mark(u"000000000000000005"_s);
    EXPECT_EQ(view->currentIndex().row(), 2) << "the screen shows the same record as before";
}

TEST_F(TableWindowTest, HiddenColumnsAreRememberedAndStillSearched)
{
    auto* const menu = test::child<QPushButton>(*window, "TableColumns").menu();
    test::child<QAction>(*menu, "ShowPRICE1").trigger();
    EXPECT_FALSE(test::child<QAction>(*menu, "ShowPLUNUMBER").isEnabled());
    open();
    EXPECT_EQ(row(0), "5|Lager|3 Drinks|0||7");
    filter("2.50");
    EXPECT_EQ(count(), "1 of 4 records");
}

TEST_F(TableWindowTest, ARefreshShowsWhatOthersStoredAndKeepsThePlace)
{
    clickHeading(1);
    view->setCurrentIndex(view->model()->index(2, 1));
    EXPECT_EQ(row(2), "5|Lager|3 Drinks|2.50|0||7");
    addPlu("6, 'Ale', 3, '3', 0, 0");
    execute("update PLUDATA set PRICE1 = '2.7' where DESCRIPTION = 'Lager'");
    window->refresh();
    EXPECT_EQ(row(view->currentIndex().row()), "5|Lager|3 Drinks|2.70|0||7");
    EXPECT_EQ(count(), "5 records");
}

} // namespace
} // namespace norvane::screens
