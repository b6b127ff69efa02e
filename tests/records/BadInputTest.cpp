// Columns that no register should send: where a line is refused, and how much of it is told.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"

namespace norvane::records
{
namespace
{

using test::Shop;

constexpr int pluFile = 67;
constexpr int mismatch = 13;
constexpr int conversion = 3421;
constexpr int tooLong = 3163;

const struct {
    const char* before; ///< the columns in front of it
    QByteArray column;
    int failure;
    QByteArray quoted;
} longColumns[] = {
    {",", QByteArray(100, '\xE9'), tooLong, QByteArrayLiteral("\xC3\xA9").repeated(60)},
    {",,", QByteArray(100, 'x'), conversion, QByteArray(60, 'x')},
    {",,,,,,,", QByteArray(100, 'x'), mismatch, QByteArray(60, 'x')},
    {",,,,,,,,,,,,", QByteArray(100, 'x'), mismatch, QByteArray(60, 'x')},
    {",,", QByteArray(10'000'000, '7'), tooLong, QByteArray(60, '7')},
};

TEST(BadInputTest, QuotesNoMoreOfALongColumnThanABoxCanShow)
{
    Shop shop;
    for (const auto& [before, column, number, quoted] : longColumns) {
        const QByteArray text = before + column;
        const auto told = norvane::test::failureTextOf([&] { shop.import(pluFile, text); }).toUtf8();
        EXPECT_TRUE(told.startsWith(QByteArray::number(number)) && told.contains('"' + quoted + "...\""))
            << told.left(300).toStdString();
    }
}

/// A column of each form, refused at its own place.
const struct {
    int file;
    const char* text;
    const char* told;
} badColumns[] = {
    {67, ",,1x", "3421 67.txt, line 1, column 3"},
    {67, ",,,,,,,1x", "13 67.txt, line 1, column 8"},
    {67, ",,,,,,,,,,,,1x", "13 67.txt, line 1, column 13"},
    {1, "Food\r\nA text of eighteen\r\n", "3163 1.txt, line 2, column 1"},
    {1, "Food,4x", "13 1.txt, line 1, column 2"},
    {63, "Ann,,,,,,,,,,,,,,,,,,,,,,1x", "13 63.txt, line 1, column 23"},
    {23, "40,A message that is far longer than any register has room for", "3163 23.txt, line 1, column 2"},
    {57, "Drinks,,,,,,40,1x", "3421 57.txt, line 1, column 8"},
};

TEST(BadInputTest, NamesTheColumnThatItRefuses)
{
    Shop shop;
    for (const auto& row : badColumns) {
        const auto failure = norvane::test::failureTextOf([&] { shop.import(row.file, row.text); });
        EXPECT_EQ(failure.section(u':', 0, 0).toStdString(), row.told);
    }
}

} // namespace
} // namespace norvane::records
