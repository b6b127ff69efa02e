// The registers' character set, in both directions and by both functions.
#include "platform/Windows1252.h"

#include <gtest/gtest.h>

namespace norvane
{
namespace
{

std::string registerFromUtf8(std::string_view utf8)
{
    std::string out;
    appendWindows1252FromUtf8(out, utf8);
    return out;
}

TEST(Windows1252, EveryByteIsConvertedToItsCharacterAndBack)
{
    for (int i = 0; i < 256; ++i) {
        const QByteArray byte(1, static_cast<char>(i));
        const QString text = fromWindows1252(byte);
        EXPECT_EQ(toWindows1252(text), byte) << i;
        EXPECT_TRUE(fitsWindows1252(text)) << i;
        std::string utf8;
        appendUtf8FromWindows1252(utf8, {byte.data(), 1});
        EXPECT_EQ(utf8, text.toStdString()) << i;
        EXPECT_EQ(registerFromUtf8(utf8), byte.toStdString()) << i;
    }
    EXPECT_EQ(fromWindows1252("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"),
              QStringLiteral("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"));
    EXPECT_EQ(fromWindows1252("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
              QStringLiteral("‘’“”•–—˜™š›œžŸ"));
    EXPECT_EQ(fromWindows1252("\xA0\xA3\xDF\xFD\xFF"), QStringLiteral("\u00A0£ßýÿ"));
}

TEST(Windows1252, ACharacterThatNoRegisterHasBecomesAQuestionMark)
{
    const QString text = QStringLiteral("a→b😀c\u0080");
    EXPECT_EQ(toWindows1252(text), "a?b?c?");
    EXPECT_EQ(registerFromUtf8(text.toStdString()), "a?b?c?");
    EXPECT_FALSE(fitsWindows1252(text));
    EXPECT_EQ(toWindows1252(QString(QChar(0xD83D)) + u'x'), "?x");
    // Damaged text is never read beyond its end.
    EXPECT_EQ(registerFromUtf8("a\xC3"), "a?");
    EXPECT_EQ(registerFromUtf8("\x80\x80z"), "?z");
    EXPECT_EQ(registerFromUtf8("\xE2\x82|"), "?|");
    EXPECT_EQ(registerFromUtf8("\xC1\x81\xFFz"), "??z"); // an overlong letter is not a letter
}

} // namespace
} // namespace norvane
