// What forms share: the look, the filter above a list, and what screen readers say.
#include "tests/support/FormTest.h"
#include "ui/Appearance.h"
#include "ui/FilteredList.h"
#include "ui/SpokenItems.h"
#include "ui/ValueList.h"

namespace norvane::ui
{
namespace
{

TEST(FilterBox, TakesLettersAndGivesTheListItsArrows)
{
    QStringListModel rows({u"a"_s, u"b"_s});
    const std::unique_ptr<QTableView> list(makeListTable(u"list"_s, u"List"_s, &rows, nullptr));
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

TEST(SpokenItems, AreReadWithTheirStateUpToTheWidgetsCount)
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

TEST(SpokenCombos, AreNamedByTheirLabelAndHoldValueAndRows)
{
    applyAppearance(*qApp);
    QWidget form;
    auto* const label = new QLabel(u"&Group"_s, &form);
    auto* const list = new ValueList(&form);
    label->setBuddy(list);
    list->setRows({{u"1"_s, u"Wines"_s}, {u"2"_s, u"Beers"_s}});
    list->setValue(u"7"_s);
    auto& spoken = *QAccessible::queryAccessibleInterface(list);
    EXPECT_EQ(spoken.text(QAccessible::Name), u"Group"_s);
    EXPECT_EQ(spoken.textInterface()->text(0, 9), u"7"_s) << "without a row, as shown";
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(spoken.textInterface()->text(0, 9), u"1  Wines"_s);
    EXPECT_EQ(spoken.child(1)->text(QAccessible::Name), u"2  Beers"_s);
    EXPECT_TRUE(spoken.child(0)->state().selected);
    list->setEditable(true);
    EXPECT_EQ(spoken.child(2)->object(), list->lineEdit());
}

QImage pictureOfTick(bool isOn)
{
    QCheckBox box;
    box.setChecked(isOn);
    box.resize(60, 40);
    return box.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int widthOfTick()
{
    const QImage off = pictureOfTick(false);
    const QRgb ground = off.pixel(off.width() - 1, 0);
    int width = 0;
    for (int x = 0; x < off.width(); ++x)
        width += off.pixel(x, off.height() / 2) != ground ? 1 : 0;
    return width;
}

TEST(Appearance, GrowsWithTheFontAndKeepsAPaletteOfHighContrast)
{
    applyAppearance(*qApp);
    const QPalette usual = QApplication::palette();
    const QFont font = QApplication::font();
    const int width = widthOfTick();
    QFont large = font;
    large.setPixelSize(2 * usualFontPixels);
    QApplication::setFont(large);
    EXPECT_NEAR(widthOfTick(), 2 * width, 2);
    QApplication::setFont(font);

    QPalette contrast(Qt::yellow, Qt::black, Qt::yellow, Qt::yellow, Qt::yellow, Qt::yellow, Qt::white,
                      Qt::black, Qt::black);
    QApplication::setPalette(contrast);
    applyAppearance(*qApp);
    const QImage tick = pictureOfTick(false);
    EXPECT_EQ(tick.pixelColor(tick.width() - 1, 0), QColor(Qt::black));
    EXPECT_EQ(colours::heading(), QColor(Qt::yellow)) << "a blue link could not be read";
    QApplication::setPalette(usual);
    applyAppearance(*qApp);
    EXPECT_EQ(QApplication::palette(), usual);
}

} // namespace
} // namespace norvane::ui
