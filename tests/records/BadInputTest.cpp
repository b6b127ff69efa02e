// Columns that no register should send: where a line is refused, and how much of it is shown.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"

namespace norvane::records
{
namespace
{

using test::Shop;

/// A column of each form, refused at its own place; of a long one no more is shown than a box can hold.
const struct {
    int file;
    QByteArray text;
    const char* message;
    QByteArray quoted = {};
} badColumns[] = {
    {67, "," + QByteArray(100, '\xE9'),
     "3163 67.txt, line 1, column 2: ", QByteArrayLiteral("\xC3\xA9").repeated(60)},
    {67, ",," + QByteArray(100, 'x'), "3421 67.txt, line 1, column 3: ", QByteArray(60, 'x')},
    {67, ",,,,,,," + QByteArray(100, 'x'), "13 67.txt, line 1, column 8: ", QByteArray(60, 'x')},
    {67, ",,,,,,,,,,,," + QByteArray(100, 'x'), "13 67.txt, line 1, column 13: ", QByteArray(60, 'x')},
    {67, ",," + QByteArray(10'000'000, '7'), "3163 67.txt, line 1, column 3: ", QByteArray(60, '7')},
    {1, "Food\r\nA text of eighteen\r\n", "3163 1.txt, line 2, column 1: "},
    {1, "Food,4x", "13 1.txt, line 1, column 2: "},
    {63, "Ann,,,,,,,,,,,,,,,,,,,,,,1x", "13 63.txt, line 1, column 23: "},
    {23, "40,A message that is far longer than any register has room for", "3163 23.txt, line 1, column 2: "},
    {57, "Drinks,,,,,,40,1x", "3421 57.txt, line 1, column 8: "},
};

TEST(BadInputTest, NamesTheColumnThatItRefuses)
{
    Shop shop;
    for (const auto& [file, text, message, quoted] : badColumns) {
        const auto failure = norvane::test::failureTextOf([&shop, file = file, &text = text] {
                                 shop.import(file, text);
                             }).toUtf8();
        EXPECT_TRUE(failure.startsWith(message)) << failure.left(300).toStdString();
        EXPECT_TRUE(quoted.isEmpty() || failure.contains('"' + quoted + "...\"")) << message;
    }
}

} // namespace
} // namespace norvane::records
