// The routines on a field's text, to the character.
#include "base/FieldText.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

const struct {
    std::optional<QString> value;
    int width;
    int mode;
    const char16_t* field;
} fieldTexts[] = {{u" 12 "_s, 4, 0, u"0012"},  {u"123456"_s, 4, 0, u"3456"}, {{}, 3, 0, u"000"},
                  {u"  ab "_s, 4, 1, u"ab  "}, {u"123456"_s, 4, 1, u"1234"}, {u"ab"_s, 5, 2, u"  ab "},
                  {u"ab"_s, 7, 99, u"  ab   "}};

TEST(FieldTextTest, TextsAreBroughtToTheFormOfRecords)
{
    for (auto [value, width, mode, field] : fieldTexts) {
        EXPECT_EQ(JustifyField(value, width, mode), field);
        EXPECT_EQ(value, QString::fromUtf16(field)) << "the caller's own value";
    }
    std::optional<QString> longer = u"abcdef"_s;
    EXPECT_EQ(test::failureOf([&longer] { JustifyField(longer, 4, 2); }), 5);
    QString text = u"ýCola ý0.5ý"_s;
    EXPECT_EQ(EscapeDelimiter(text), u"^Cola ^0.5^");
    EXPECT_EQ(UnescapeDelimiter(text), u"ýCola ý0.5ý");
    for (const auto& [given, stripped] : {std::pair{u" 0120 ", u"120"}, {u"0000", u""}, {u"0 5", u" 5"}}) {
        text = QString::fromUtf16(given);
        EXPECT_EQ(StripLeadingZero(text), stripped);
        EXPECT_EQ(text, stripped);
    }
}

} // namespace
} // namespace norvane
