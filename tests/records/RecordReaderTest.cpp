// What a line of a register's text becomes in the table.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

using norvane::test::failureOf;
using test::lineWith;
using test::pluLine;
using test::Shop;

struct Stored {
    const char* name;
    int file;
    const char* table;
    QByteArray text;
    const char* field;
    const char* expected;
};

void PrintTo(const Stored& stored, std::ostream* out)
{
    *out << stored.name;
}

QByteArray statusLine(const std::map<int, QByteArray>& replaced)
{
    static const QByteArray usual =
        "Food        ,40,40,00,00,00,00,77,00,00,07,00,00,00,000000000000000000,00,00";
    return lineWith(usual.split(','), replaced);
}

class StoredTest : public testing::TestWithParam<Stored>
{
};

TEST_P(StoredTest, Holds)
{
    const Stored& stored = GetParam();
    Shop shop;
    shop.import(stored.file, stored.text);
    EXPECT_EQ(shop.column(stored.table, stored.field), stored.expected);
}

// clang-format off
const Stored storedCases[] = {
    {"number_keeps_its_zeros", 67, "PLUDATA", pluLine(), "PLUNUMBER", "000000000000000017"},
    {"text_keeps_its_blanks", 67, "PLUDATA", pluLine(), "DESCRIPTION", "Lager 0.5 l     "},
    {"text_in_the_registers_character_set", 67, "PLUDATA", pluLine({{2, "K\xF6lsch \xFD \x80"}}), "DESCRIPTION", "K\u00f6lsch ^ \u20ac"},
    {"text_with_zeros_in_front", 67, "PLUDATA", pluLine({{2, "007"}}), "DESCRIPTION", "007"},
    {"number", 67, "PLUDATA", pluLine(), "PLUSTATUS", "2"},
    {"number_of_zeros", 67, "PLUDATA", pluLine(), "RECIPENO", "0"},
    {"empty_number", 67, "PLUDATA", pluLine({{7, ""}}), "RECIPENO", "0"},
    {"number_of_blanks", 67, "PLUDATA", pluLine({{7, "    "}}), "RECIPENO", "null"},
    {"every_digit_of_a_long_number", 67, "PLUDATA", pluLine({{11, "987654321098765432"}}), "STOCKLINK", "987654321098765432"},
    {"price", 67, "PLUDATA", pluLine({{13, "00001234"}}), "PRICE1", "12.34"},
    {"price_that_no_binary_fraction_hits", 67, "PLUDATA", pluLine({{13, "99999929"}}), "PRICE1", "999999.29"},
    {"price_of_whole_units", 67, "PLUDATA", pluLine({{13, "00000300"}}), "PRICE1", "3"},
    {"price_below_one", 67, "PLUDATA", pluLine({{13, "00000005"}}), "PRICE1", "0.05"},
    {"empty_price", 67, "PLUDATA", pluLine({{13, ""}}), "PRICE1", "0"},
    {"flag_of_weight_4", 67, "PLUDATA", pluLine({{8, "40"}}), "INactive", "True"},
    {"flag_of_the_right_digit", 67, "PLUDATA", pluLine({{8, "05"}}), "printNV", "True"},
    {"flag_beside_a_set_one", 67, "PLUDATA", pluLine({{8, "57"}}), "PRESET", "False"},
    {"option_digits_without_zero", 67, "PLUDATA", pluLine({{8, "4"}}), "pricechange", "True"},
    {"empty_option_digits", 67, "PLUDATA", pluLine({{8, ""}}), "INactive", "False"},
    {"comma_in_a_text_shifts_the_rest", 67, "PLUDATA", pluLine({{2, "Fish, 12"}}), "GROUPNO", "12"},
    {"short_line_numbers", 67, "PLUDATA", "000000000000000001,Tea", "PRICELEVEL5", "0"},
    {"short_line_prices", 67, "PLUDATA", "000000000000000001,Tea", "PRICE5", "0"},
    {"short_line_texts", 67, "PLUDATA", "000000000000000001", "DESCRIPTION", ""},
    {"empty_lines_are_records", 1, "GROUPS", "Food,40,40\r\n\r\n", "DESCRIPTION", "Food|"},
    {"records_are_counted_from_1", 1, "GROUPS", "a,,\r\nb,,\r\nc,,\r\n", "GROUPNO", "1|2|3"},
    {"last_line_without_line_end", 1, "GROUPS", "a,,\r\nb,,", "DESCRIPTION", "a|b"},
    {"lone_line_feeds", 1, "GROUPS", "a,,\nb,40,\n", "addtogrouptotal", "False|True"},
    {"text_behind_the_end_mark", 1, "GROUPS", "a,,\r\n\x1A\r\nb,,\r\n", "DESCRIPTION", "a"},
    {"no_text_at_all", 1, "GROUPS", "", "DESCRIPTION", ""},
    {"grill_number_lands_in_the_grill_flag", 65, "PLUSTATUS", statusLine({{9, "00"}, {12, "07"}}), "AUTOGRILL", "True"},
    {"grill_flag_gives_way_to_no_grill_number", 65, "PLUSTATUS", statusLine({{9, "40"}, {12, "00"}}), "AUTOGRILL", "False"},
    {"grill_number_itself_is_not_read", 65, "PLUSTATUS", statusLine({{12, "07"}}), "AUTOGRILLNo", "null"},
    {"image_number", 65, "PLUSTATUS", statusLine({{17, "12"}}), "LINKEDNVIMAGE", "12"},
    {"linked_plu", 65, "PLUSTATUS", statusLine({{15, "123456789012345678"}}), "LINKEDPLU", "123456789012345678"},
    {"mix_without_a_name", 58, "PRODUCTMIX", "Kilo,kg,1\r\n            ,,\r\n", "DESCRIPTION", "Kilo|Prod Mix 2"},
    {"offer_price_is_a_number", 70, "MIXNMATCH", "3 for 2     ,03,00000199\r\n", "PRICE", "1.99"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Record, StoredTest, testing::ValuesIn(storedCases),
                         [](const auto& stored) { return std::string(stored.param.name); });

TEST(RecordReaderTest, CutsADefaultNameToItsField)
{
    Shop shop;
    shop.import(58, QByteArray(",kg,1\r\n").repeated(1000));
    EXPECT_TRUE(shop.column("PRODUCTMIX", "DESCRIPTION").ends_with("|Prod Mix 999|Prod Mix 100"));
}

struct Refused {
    const char* name;
    int file;
    QByteArray line;
    int failure;
    const char* place;
};

TEST(RecordReaderTest, NamesTheLineAndColumnThatItRefuses)
{
    // clang-format off
    const Refused cases[] = {
        {"blank option digits", 67, pluLine({{8, "  "}}), 13, "67.txt, line 2, column 8: "},
        {"key that was there already", 67, pluLine(), 3022, "67.txt, line 2: "},
    };
    // clang-format on
    for (const Refused& refused : cases) {
        Shop shop;
        try {
            shop.import(refused.file, pluLine() + refused.line + pluLine({{1, "9"}}));
            ADD_FAILURE() << refused.name;
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), refused.failure) << refused.name;
            EXPECT_TRUE(failure.text().startsWith(QLatin1String(refused.place)))
                << refused.name << ": " << failure.text().toStdString();
        }
        // What was read before stays, nothing behind it is read.
        EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), "000000000000000017") << refused.name;
    }
}

TEST(RecordReaderTest, TakesAnyBytesWithoutComingToHarm)
{
    QByteArray bytes;
    for (int i = 0; i < 4000; ++i)
        bytes.append(static_cast<char>(i * 7919 % 251 ^ i >> 4));
    Shop shop;
    for (const RegisterFile& file : registerFiles()) {
        EXPECT_NE(failureOf([&] { shop.import(file.number, bytes); }), 53) << file.number;
        EXPECT_EQ(failureOf([&] { (void)shop.rows(file.table); }), 0) << file.number;
    }
}

TEST(RecordReaderTest, SetsThePointsOfThePlusThatAreThere)
{
    Shop shop;
    shop.import(67, pluLine() + pluLine({{1, "000000000000000018"}}));
    shop.import(71, "000000000000000018,0001,0002,0003,0004,0050\r\n"
                    "18,9,9,9,9,9\r\n"
                    "\r\n"
                    "000000000000000099,0009,0009,0009,0009,0009\r\n"
                    "000000000000000017,7");
    EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), "000000000000000017|000000000000000018");
    EXPECT_EQ(shop.column("PLUDATA", "POINT1"), "7|1");
    EXPECT_EQ(shop.column("PLUDATA", "POINT5"), "0|50");
    EXPECT_EQ(shop.column("PLUDATA", "PRICE1"), "2.5|2.5");

    shop.import(67, pluLine());
    EXPECT_EQ(shop.column("PLUDATA", "POINT1"), "null") << "the points go with the records that held them";
}

} // namespace
} // namespace norvane::records
