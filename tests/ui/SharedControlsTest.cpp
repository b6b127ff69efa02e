// What forms share: the filter above a list, and what screen readers are told of painted widgets.
#include "tests/support/FormTest.h"
#include "ui/FilteredList.h"
#include "ui/SpokenItems.h"

namespace norvane::ui
{
namespace
{

TEST(FilterBox, TakesLettersAndGivesTheListItsArrows)
{
    QStringListModel rows({u"a"_s, u"b"_s});
    const std::unique_ptr<QTableView> list(makeListTable(u"list"_s, &rows, nullptr));
    list->selectRow(0);
    FilterBox filter(u"filter"_s, nullptr);
    QTest::keyClick(&filter, Qt::Key_Down); // no list yet
    filter.setList(list.get());
    QTest::keyClick(&filter, Qt::Key_Down);
    QTest::keyClicks(&filter, u"xy"_s);
    QTest::keyClick(&filter, Qt::Key_Left);
    QTest::keyClick(&filter, Qt::Key_Backspace);
    EXPECT_EQ(list->currentIndex().row(), 1);
    EXPECT_EQ(filter.text(), u"y"_s);
}

class Lamps : public QWidget, public SpokenItems
{
public:
    int count = 2;
    [[nodiscard]] int spokenItemCount() const override { return count; }
    [[nodiscard]] SpokenItem spokenItem(int index) const override
    {
        return {u"Lamp %1"_s.arg(index), u"lit"_s, QRect(10 * index, 0, 10, 10), index == 1};
    }
};

TEST(SpokenItems, AreReadWithTheirStateAndEndWithTheWidgetsCount)
{
    Lamps lamps;
    auto& all = *QAccessible::queryAccessibleInterface(&lamps);
    ASSERT_EQ(all.childCount(), 2);
    const auto& last = *all.child(1);
    EXPECT_EQ(last.text(QAccessible::Name), u"Lamp 1"_s);
    EXPECT_EQ(last.text(QAccessible::Description), u"lit"_s);
    EXPECT_EQ(last.text(QAccessible::Value), QString());
    EXPECT_TRUE(last.state().selected && !all.child(0)->state().selected);
    EXPECT_EQ(last.rect().size(), QSize(10, 10));
    lamps.count = 1;
    EXPECT_FALSE(last.isValid());
}

} // namespace
} // namespace norvane::ui
