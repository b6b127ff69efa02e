// PLU numbers, and other texts in their place.
#include "register/PluNumber.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane
{
namespace
{

TEST(PluNumberTest, OnlyDigitsThatFitAreANumber)
{
    const auto stored = [](std::string_view text) {
        const auto number = PluNumber::parse(text);
        return number ? number->text() : std::string("none");
    };
    EXPECT_EQ(stored(" 5000 "), "000000000000005000");
    EXPECT_EQ(stored("0"), "000000000000000000");
    EXPECT_EQ(stored("999999999999999999"), "999999999999999999");
    for (const char* const text : {"", "  ", "-1", "+1", "1.0", "1 2", "12a", "0000000000000000001"})
        EXPECT_EQ(stored(text), "none") << text;
    EXPECT_LT(PluNumber::parse("9"), PluNumber::parse("010")) << "by value, not as texts";
}

TEST(PluNumberTest, AnyTextIsFilledFittedAndShown)
{
    const struct {
        QString text, filled, fitted, shown;
    } rows[] = {
        {u"42"_s, u"000000000000000042"_s, u"000000000000000042"_s, u"42"_s},
        {u""_s, u"000000000000000000"_s, u"000000000000000000"_s, u""_s},
        {u"1234567890123456789"_s, u"1234567890123456789"_s, u"234567890123456789"_s,
         u"1234567890123456789"_s},
        {u"000"_s, u"000000000000000000"_s, u"000000000000000000"_s, u"0"_s},
        {u"00 a"_s, u"0000000000000000 a"_s, u"0000000000000000 a"_s, u" a"_s},
    };
    for (const auto& [text, filled, fitted, shown] : rows) {
        EXPECT_EQ(filledPluNumber(text), filled) << text.toStdString();
        EXPECT_EQ(fittedPluNumber(text), fitted) << text.toStdString();
        EXPECT_EQ(shownKey(u"plunumber"_s, text), shown) << text.toStdString();
        EXPECT_EQ(shownKey(u"GROUPNO"_s, text), text);
    }
}

} // namespace
} // namespace norvane
