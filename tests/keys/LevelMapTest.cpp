// The map of a level, as it is painted.
#include "keys/layout/LevelMap.h"

#include "tests/keys/KeyShop.h"

#include <gtest/gtest.h>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int dotsPerMillimetre = 4;

/// What the ground of a key looks like, below its name and clear of its edge.
QColor groundAt(const QImage& sheet, const QRectF& key)
{
    const QPointF place = QPointF(key.left() + key.width() / 4, key.bottom() - 1) * dotsPerMillimetre;
    return sheet.pixelColor(place.toPoint());
}

TEST(LevelMap, PaintsEachKeyAtItsPlaceInAGreyOfItsKind)
{
    const test::KeyShop shop("3");
    shop.addKeyboard(dorvikKeyboard().keysPerLevel);
    shop.addItems();
    shop.execute("insert into WLU (WLUno, DESCRIPTION) values (12, 'Breakfast')");
    shop.execute("update keylink set keylink = null");
    KeyLevel level(dorvikKeyboard(), shop.open());
    level.read(1);
    level.setKey({9, 15}, *level.items().keyFor(ItemKind::LookUp, u"12"_s));
    level.setKey({5, 5}, *level.items().keyFor(ItemKind::Function, u"5"_s));
    level.setKey({0, 2}, KeyItems::missingKey(ItemKind::Plu, u"4711"_s));
    const LevelMap map(level, u"Corner Shop"_s, QDateTime({2026, 11, 26}, {12, 0}));
    QImage sheet(297 * dotsPerMillimetre, 210 * dotsPerMillimetre, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.scale(dotsPerMillimetre, dotsPerMillimetre);
    map.paint(painter);
    painter.end();
    EXPECT_EQ(groundAt(sheet, map.placeOf({9, 15})), QColor(0xc8, 0xc8, 0xc8));
    EXPECT_EQ(groundAt(sheet, map.placeOf({5, 5})), QColor(0xe4, 0xe4, 0xe4));
    EXPECT_EQ(groundAt(sheet, map.placeOf({0, 0})), QColor(0xb0, 0xb0, 0xb0));
    EXPECT_EQ(groundAt(sheet, map.placeOf({8, 15})), QColor(Qt::white));
    EXPECT_NE(sheet.pixelColor((map.placeOf({0, 2}).center() * dotsPerMillimetre).toPoint()),
              QColor(Qt::white))
        << "a cross";
    EXPECT_NEAR(map.placeOf({0, 0}).left(), 10, 1e-9);
    EXPECT_NEAR(map.placeOf({9, 15}).right(), 287, 1e-9);
    EXPECT_LE(map.placeOf({9, 15}).bottom(), 200);
    EXPECT_EQ(map.keyText({0, 2}), u"Key 28: PLU 4711, which does not exist"_s);
    bool isGrey = true;
    for (int x = 0; x < sheet.width(); x += 3) {
        for (int y = 0; y < sheet.height(); y += 3)
            isGrey = isGrey && qGray(sheet.pixel(x, y)) == qRed(sheet.pixel(x, y));
    }
    EXPECT_TRUE(isGrey);
}

} // namespace
} // namespace norvane::keys
