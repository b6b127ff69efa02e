// What the table shows.
#include "tests/screens/table/TableWindowFixture.h"

namespace norvane::screens
{
namespace
{

using TableWindowTest = TableWindowFixture;

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

TEST_F(TableWindowTest, ManyFiltersGoOnInTheNextLine)
{
    const std::pair<const char*, const char*> choices[] = {{"DESCRIPTION", "not"}, {"GROUPNO", "3"},
                                                           {"PRICE1", "has"},      {"PIECECOUNT", "0"},
                                                           {"INactive", "No"},     {"MODIFIER", "not"}};
    const auto choose = [this](const char* list, const char* entry) {
        auto& box = test::child<QComboBox>(*window, list);
        box.setCurrentIndex(box.findText(QString::fromUtf8(entry), Qt::MatchStartsWith));
        Q_EMIT box.activated(box.currentIndex());
    };
    window->resize(500, 500);
    for (const auto& [column, choice] : choices) {
        choose("ChoiceColumn", column);
        choose("Choice", choice);
    }
    QApplication::processEvents();
    EXPECT_LT(window->width(), 550);
    QRegion taken;
    int shown = 0;
    for (const auto* button : window->findChildren<QPushButton*>(QRegularExpression(u"^Made"_s))) {
        if (!button->isVisible())
            continue;
        ++shown;
        const QRect place(button->mapTo(window.get(), QPoint(0, 0)), button->size());
        EXPECT_TRUE(window->rect().contains(place) && !taken.intersects(place))
            << button->text().toStdString();
        taken += place;
    }
    EXPECT_EQ(shown, 6);
    EXPECT_GT(taken.boundingRect().height(), 50) << "two lines";
    EXPECT_FALSE(taken.intersects(view->geometry()));
}

TEST_F(TableWindowTest, AFilterThatMatchesNothingLeavesNothingToChange)
{
    view->setCurrentIndex(view->model()->index(1, 0));
    auto& uses = test::child<QPushButton>(*window, "RecordUses");
    QTRY_VERIFY(uses.isEnabled());
    filter("nothing like it");
    QTRY_VERIFY(!uses.isEnabled());
    QGuiApplication::clipboard()->setText(u"x"_s);
    for (const Qt::Key key : {Qt::Key_C, Qt::Key_V})
        QTest::keyClick(view, key, Qt::ControlModifier);
    EXPECT_EQ(notice, "Nothing was pasted");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"x"_s);
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Space, Qt::Key_Down})
        QTest::keyClick(view, key);
    test::press(*window, "SetField");
    EXPECT_EQ(notice, "No record is shown that could be changed");
    EXPECT_TRUE(wanted.isEmpty() && m_boxes.shown.empty());
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

TEST_F(TableWindowTest, AToolKnowsTheCurrentTheChosenAndTheShownRecords)
{
    QString seen;
    m_tools = {{u"See"_s, u"Se&e"_s, QKeySequence(u"Ctrl+E"_s), [&seen](const TableWindow& table) {
                    const QStringList all = table.chosenKeys() + QStringList(u"of"_s) + table.shownKeys();
                    seen = table.currentKey() + u':' + all.join(u' ');
                    seen.remove(u"00000000000000"_s);
                }}};
    open();
    clickHeading(1);
    filter("drinks");
    view->selectRow(0);
    view->selectionModel()->select(view->model()->index(1, 2), QItemSelectionModel::Select);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_E, Qt::ControlModifier);
    EXPECT_EQ(seen, u"0009:0009 0005 of 0009 0005"_s);
    filter("nothing like it");
    QTest::keyClick(test::child<QPushButton>(*window, "MoreTools").menu(), Qt::Key_E);
    EXPECT_EQ(seen, u":of"_s);
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
