// How large keys are shown, by wheel and by keys, and what small ones say.
#include "keys/layout/KeyZoom.h"

#include "keys/layout/KeyText.h"
#include "tests/keys/KeyLayoutForm.h"

#include <QImage>
#include <QPainter>
#include <QWheelEvent>

namespace norvane::keys
{
namespace
{

/// A laptop's screen, without its bars and the frame of the window.
constexpr QSize smallWindow{1354, 720};

class KeyZoomTest : public test::KeyLayoutForm
{
protected:
    KeyZoomTest() { form->resize(smallWindow); }

    [[nodiscard]] QRect placeOf(KeyCell cell) const
    {
        return grid().visualRect(grid().model()->index(cell.row, cell.column));
    }
    [[nodiscard]] bool showsAllKeys() const
    {
        QApplication::processEvents();
        return grid().viewport()->rect().contains(placeOf({0, 0})) &&
               grid().viewport()->rect().contains(placeOf({keyboard.rows - 1, keyboard.columns - 1}));
    }
    void turnWheel(int notches) const
    {
        const QPointF middle = QRectF(grid().viewport()->rect()).center();
        QWheelEvent turned(middle, grid().viewport()->mapToGlobal(middle), {}, {0, notches * 120},
                           Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(grid().viewport(), &turned);
    }
};

TEST_F(KeyZoomTest, KeysOpenInTheirUsualSizeAlsoWhereNotAllOfThemFit)
{
    EXPECT_FALSE(showsAllKeys());
    EXPECT_EQ(grid().columnWidth(0), 120) << "1800 twips";
    EXPECT_EQ(grid().rowHeight(0), 40) << "600 twips";
}

TEST_F(KeyZoomTest, TheWholeKeyboardIsInViewAndFollowsTheWindowUntilItIsZoomed)
{
    turnWheel(-3);
    turnWheel(8);
    EXPECT_FALSE(showsAllKeys());
    key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_TRUE(showsAllKeys());
    const QSize besideLists = placeOf({0, 0}).size();
    key(Qt::Key_F9);
    EXPECT_TRUE(showsAllKeys());
    EXPECT_GT(placeOf({0, 0}).width(), besideLists.width()) << "the lists have made room";
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_FALSE(showsAllKeys());
    press("SmallerButton");
    EXPECT_TRUE(showsAllKeys());
    form->resize(smallWindow * 0.8);
    EXPECT_FALSE(showsAllKeys()) << "a size that was chosen remains";
    press("WholeKeyboardButton");
    EXPECT_TRUE(showsAllKeys());
}

TEST_F(KeyZoomTest, EnterOnAKeyUnfoldsTheListsAndFoldingThemLeadsBackToTheKeys)
{
    key(Qt::Key_F9);
    EXPECT_FALSE(control<QTableView>("functionlist").isVisible());
    key(Qt::Key_Return);
    EXPECT_TRUE(control<QTableView>("functionlist").hasFocus());
    press("ListsButton");
    EXPECT_TRUE(grid().hasFocus());
}

QImage painted(const QString& text, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintKeyText(painter, image.rect(), text, KeyState::Plu);
    return image;
}

TEST_F(KeyZoomTest, ANarrowKeyLeavesOutTheZerosThatFillItsNumberAndNothingElse)
{
    const auto filled = u"P00000000000001002 Lemonade"_s;
    const QSize usual = KeyZoom::usualSize();
    EXPECT_NE(painted(filled, usual), painted(u"P1002 Lemonade"_s, usual));
    const QSize narrow = KeyZoom::sizeAt(60);
    EXPECT_EQ(painted(filled, narrow), painted(u"P1002 Lemonade"_s, narrow));
    EXPECT_NE(painted(filled, narrow), painted(u"P00000000000001003 Lemonade"_s, narrow));
    EXPECT_NE(painted(filled, narrow), painted(u"P00000000000001002 Lemonada"_s, narrow));
}

} // namespace
} // namespace norvane::keys
