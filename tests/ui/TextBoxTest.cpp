// The text box: limits, digits, padded texts.
#include "ui/TextBox.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
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

TEST(TextBoxTest, OnlyTypingIsReported)
{
    TextBox box;
    QSignalSpy edited(&box, &QLineEdit::textEdited);
    box.showText(QStringLiteral("a"));
    EXPECT_EQ(edited.count(), 0);
    QTest::keyClicks(&box, QStringLiteral("b"));
    EXPECT_EQ(edited.count(), 1);
}

TEST(TextBoxTest, JustifyCodes)
{
    TextBox box;
    const std::pair<const char*, Qt::Alignment> codes[] = {
        {"2", Qt::AlignHCenter}, {"x", Qt::AlignHCenter}, {"1", Qt::AlignRight}, {"0", Qt::AlignLeft}};
    for (const auto& [code, alignment] : codes) {
        box.setJustify(QLatin1String(code));
        EXPECT_EQ(box.alignment() & Qt::AlignHorizontal_Mask, alignment) << code;
    }
}

} // namespace
} // namespace norvane::ui
