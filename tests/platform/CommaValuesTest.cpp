// The values that are read from the texts of the external tools.
#include "platform/CommaValues.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace norvane
{
namespace
{

/// Every value of @p text in brackets.
std::string valuesOf(std::string_view text)
{
    std::string all;
    for (CommaValues values(text); const auto value = values.next();)
        all += '[' + std::string(*value) + ']';
    return all;
}

TEST(CommaValuesTest, AreCutAtCommasAndLineEnds)
{
    using namespace std::string_view_literals;
    const std::pair<std::string_view, const char*> texts[] = {
        {""sv, ""},
        {" \t\r\n\r\n"sv, ""},
        {"\x1A"sv, ""},
        {" \r\n\x1A\r\n"sv, ""},
        {" a\t, 2 \r\n3\n4"sv, "[a][2][3][4]"},
        {"1,\r\n \n,2,"sv, "[1][][][][2][]"},
        {" \" a, b \" ,\"\",\"c"sv, "[a, b][][\"c]"},
        {"1,\""sv, "[1][\"]"},
        {"1\x1A"
         "2\x1A\r\n"sv,
         "[1\x1A"
         "2]"},
    };
    for (const auto& [text, values] : texts)
        EXPECT_EQ(valuesOf(text), values) << text;
}

} // namespace
} // namespace norvane
