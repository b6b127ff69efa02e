// What is left of a tool's output for people to read.
#include "link/ToolWords.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

const struct {
    const char* name;
    QByteArray said;
    QString text;
    QString last;
} outputs[] = {
    {"nothing", "", u""_s, u""_s},
    {"only blanks", "\r\n \n\x1b[2J\n", u""_s, u""_s},
    {"lines", "one\r\n\ntwo", u"one\ntwo"_s, u"two"_s},
    {"colours and a title", "\x1b]0;link\x07\x1b[1;31mTime out\x1b[0m\n", u"Time out"_s, u"Time out"_s},
    {"other commands to a terminal",
     "a\x1b"
     "c\x07",
     u"a\\x1bc\\x07"_s, u"a\\x1bc\\x07"_s},
    {"bytes that are not UTF-8",
     "Register 2 \xe4u\xdf"
     "ert\nK\xc3\xa4se\n",
     u"Register 2 äußert\nKäse"_s, u"Käse"_s},
    {"bytes without any character", QByteArray("\x81\0", 2), u"\\x81\\x00"_s, u"\\x81\\x00"_s},
    {"a progress display", "10%\r20%\r30%\r\nfiles |\b/\b-\b3\n", u"30%\nfiles 3"_s, u"files 3"_s},
    {"a line without an end", QByteArray(200, 'x'), QString(200, u'x'), QString(60, u'x') + u"..."_s},
};

TEST(ToolWords, AreWhatATerminalWouldShow)
{
    for (const auto& [name, said, text, last] : outputs) {
        ToolWords words;
        for (const char c : said)
            words.add(QByteArray(1, c));
        EXPECT_EQ(words.text(), text) << name;
        EXPECT_EQ(words.lastLine(), last) << name;
    }
}

TEST(ToolWords, KeepTheEndOfMuch)
{
    ToolWords words;
    // The cut falls into the second byte of a character.
    words.add(QByteArray("\xc3\xa4").repeated(1000000) + "\nno answer\n");
    const QString expected = u"...\n"_s + QString((ToolWords::most - 11) / 2, u'ä') + u"\nno answer"_s;
    EXPECT_EQ(words.text(), expected);
    words.clear();
    EXPECT_EQ(words.text(), QString());
}

} // namespace
} // namespace norvane::link
