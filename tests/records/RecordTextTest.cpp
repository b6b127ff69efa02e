// The rule to the character by which numbers and descriptors lose their zeros.
#include "records/RecordText.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

TEST(RecordTextTest, StripsZerosAsTheRegistersFilesNeedIt)
{
    const std::pair<const char*, const char*> cases[] = {
        {"0012", "12"},           {"0000", "0"},     {"", "0"},        {"  ", "  "},
        {" 12 ", " 12 "},         {" 0120 ", "120"}, {"00 12", " 12"}, {"0 012", "12"},
        {"007 Days  ", "7 Days"}, {"0  ", "0"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(stripLeadingZero(text), expected) << '"' << text << '"';
        QString changed = QString::fromUtf8(text);
        EXPECT_EQ(StripLeadingZero(changed), QString::fromUtf8(expected)) << '"' << text << '"';
        EXPECT_EQ(changed, QString::fromUtf8(expected));
    }
}

} // namespace
} // namespace norvane::records
