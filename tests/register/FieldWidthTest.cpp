// Texts at the width of a record's field.
#include "register/FieldWidth.h"

#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

const struct {
    std::optional<QString> text;
    int width;
    int mode;
    QString field;
} justified[] = {{u" 12 "_s, 4, 0, u"0012"_s},  {u"123456"_s, 4, 0, u"3456"_s}, {{}, 3, 0, u"000"_s},
                 {u"  ab "_s, 4, 1, u"ab  "_s}, {u"123456"_s, 4, 1, u"1234"_s}, {u"ab"_s, 5, 2, u"  ab "_s},
                 {u"ab"_s, 7, 99, u"  ab   "_s}};

TEST(FieldWidthTest, ATextIsBroughtToTheWidthOfItsField)
{
    for (auto [value, width, mode, field] : justified) {
        EXPECT_EQ(JustifyField(value, width, mode), field);
        EXPECT_EQ(value, field) << "the caller's own value";
    }
    std::optional<QString> longer = u"abcdef"_s;
    EXPECT_EQ(test::failureOf([&longer] { JustifyField(longer, 4, 2); }), 5);
}

} // namespace
} // namespace norvane
