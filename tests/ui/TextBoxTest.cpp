// The text box: limits, characters, padded texts.
#include "ui/TextBox.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
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
    box.showText(QStringLiteral("Ale     "));
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClicks(&box, QStringLiteral("s 1"));
    EXPECT_EQ(box.text(), QStringLiteral("Ales 1  ")) << "the end is behind the text, not behind its blanks";
}

/// QTest's own key clicks know no keys beyond Latin-1.
void typeCharacter(QWidget& box, QChar character)
{
    QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

TEST(TextBoxTest, RefusesWhatTheFieldCannotHold)
{
    const struct {
        TextBox::Characters characters;
        const char* typed;
        const char* kept;
    } cases[] = {{TextBox::Characters::Register, "Caf\u00e9 5\u20ac \u2605\u0142\u2713\u201cok\u201d",
                  "Caf\u00e9 5\u20ac \u201cok\u201d"},
                 {TextBox::Characters::Digits, "1a-2 3\u0663", "123"},
                 {TextBox::Characters::Hexadecimal, "0Ag f9.-x", "0Af9"}};
    for (const auto& [characters, typed, kept] : cases) {
        TextBox box;
        box.setCharacters(characters);
        for (const QChar character : QString::fromUtf8(typed))
            typeCharacter(box, character);
        EXPECT_EQ(box.text(), QString::fromUtf8(kept)) << typed;
        QApplication::clipboard()->setText(QString::fromUtf8(typed));
        box.paste();
        EXPECT_EQ(box.text(), QString::fromUtf8(kept)) << "pasted " << typed;
    }
}

TEST(TextBoxTest, AStoredTextThatCouldNotBeTypedCanBeMended)
{
    TextBox box;
    box.setLimit(4);
    box.setCharacters(TextBox::Characters::Hexadecimal);
    box.showText(QStringLiteral("0G  "));
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClicks(&box, QStringLiteral("xA"));
    EXPECT_EQ(box.text(), QStringLiteral("A0G "));
    QTest::keyClicks(&box, QStringLiteral("z"));
    EXPECT_EQ(box.text(), QStringLiteral("A0G ")) << "no blank is pushed out for what is refused";
}

} // namespace
} // namespace norvane::ui
