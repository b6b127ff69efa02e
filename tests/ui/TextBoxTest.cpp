// The text box: limits, digits, padded texts.
#include "ui/TextBox.h"

#include <gtest/gtest.h>
#include <QTest>

namespace norvane::ui
{
namespace
{

TEST(TextBoxTest, TypingStopsAtTheLimitButAStoredTextStaysWhole)
{
    TextBox box;
    box.setLimit(4);
    QTest::keyClicks(&box, QStringLiteral("Drinks"));
    EXPECT_EQ(box.text(), QStringLiteral("Drin"));
    box.showText(QStringLiteral("Cocktails"));
    EXPECT_EQ(box.text(), QStringLiteral("Cocktails"));
    box.showText({});
    QTest::keyClicks(&box, QStringLiteral("Drinks"));
    EXPECT_EQ(box.text(), QStringLiteral("Drin")) << "the limit holds again";
    box.setLimit(0);
    box.showText({});
    QTest::keyClicks(&box, QString(40, u'x'));
    EXPECT_EQ(box.text().size(), 40);
}

TEST(TextBoxTest, TypingIntoAPaddedTextPushesTheBlanksOut)
{
    TextBox box;
    box.setLimit(8);
    box.showText(QStringLiteral("Ale     "));
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, QStringLiteral("pp"));
    EXPECT_EQ(box.text(), QStringLiteral("Apple   "));
    QTest::keyClicks(&box, QStringLiteral("12345"));
    EXPECT_EQ(box.text(), QStringLiteral("App123le")) << "no letter is lost";
}

TEST(TextBoxTest, DigitsOnly)
{
    TextBox box;
    box.setDigitsOnly();
    QTest::keyClicks(&box, QStringLiteral("1a-2 3"));
    EXPECT_EQ(box.text(), QStringLiteral("123"));
}

} // namespace
} // namespace norvane::ui
