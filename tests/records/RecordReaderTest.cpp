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

QByteArray statusLine(const std::map<int, QByteArray>& replaced)
{
    static const QByteArray usual =
        "Food        ,40,40,00,00,00,00,77,00,00,07,00,00,00,000000000000000000,00,00";
    return lineWith(usual.split(','), replaced);
}

TEST(RecordReaderTest, StoresWhatALineTells)
{
    // clang-format off
    const struct {
        const char* name;
        int file;
        const char* table;
        QByteArray text;
        const char* field;
        const char* expected;
    } cases[] = {
        {"number_keeps_its_zeros", 67, "PLUDATA", pluLine(), "PLUNUMBER", "000000000000000017"},
        {"text_keeps_its_blanks", 67, "PLUDATA", pluLine(), "DESCRIPTION", "Lager 0.5 l     "},
        {"text_in_the_registers_character_set", 67, "PLUDATA", pluLine({{2, "K\xF6lsch \xFD \x80"}}), "DESCRIPTION", "K\u00f6lsch ^ \u20ac"},
        {"text_with_zeros_in_front", 67, "PLUDATA", pluLine({{2, "007"}}), "DESCRIPTION", "007"},
        {"number", 67, "PLUDATA", pluLine(), "PLUSTATUS", "2"},
        {"number_of_zeros", 67, "PLUDATA", pluLine(), "RECIPENO", "0"},
        {"number_of_blanks", 67, "PLUDATA", pluLine({{7, "    "}}), "RECIPENO", "null"},
        {"every_digit_of_a_long_number", 67, "PLUDATA", pluLine({{11, "987654321098765432"}}), "STOCKLINK", "987654321098765432"},
        {"price", 67, "PLUDATA", pluLine({{13, "00001234"}}), "PRICE1", "12.34"},
        {"price_that_no_binary_fraction_hits", 67, "PLUDATA", pluLine({{13, "99999929"}}), "PRICE1", "999999.29"},
        {"price_below_one", 67, "PLUDATA", pluLine({{13, "00000005"}}), "PRICE1", "0.05"},
        {"flag_of_weight_4", 67, "PLUDATA", pluLine({{8, "40"}}), "INactive", "True"},
        {"flag_of_the_right_digit", 67, "PLUDATA", pluLine({{8, "05"}}), "printNV", "True"},
        {"flag_beside_a_set_one", 67, "PLUDATA", pluLine({{8, "57"}}), "PRESET", "False"},
        {"option_digits_without_zero", 67, "PLUDATA", pluLine({{8, "4"}}), "pricechange", "True"},
        {"comma_in_a_text_shifts_the_rest", 67, "PLUDATA", pluLine({{2, "Fish, 12"}}), "GROUPNO", "12"},
        {"empty_lines_are_records", 1, "GROUPS", "Food,40,40\r\n\r\n", "DESCRIPTION", "Food|"},
        {"records_are_counted_from_1", 1, "GROUPS", "a,,\r\nb,,\r\nc,,\r\n", "GROUPNO", "1|2|3"},
        {"last_line_without_line_end", 1, "GROUPS", "a,,\r\nb,,", "DESCRIPTION", "a|b"},
        {"lone_line_feeds", 1, "GROUPS", "a,,\nb,40,\n", "addtogrouptotal", "False|True"},
        {"text_behind_the_end_mark", 1, "GROUPS", "a,,\r\n\x1A\r\nb,,\r\n", "DESCRIPTION", "a"},
        {"no_text_at_all", 1, "GROUPS", "", "DESCRIPTION", ""},
        {"grill_number_lands_in_the_grill_flag", 65, "PLUSTATUS", statusLine({{9, "00"}, {12, "07"}}), "AUTOGRILL", "True"},
        {"grill_flag_gives_way_to_no_grill_number", 65, "PLUSTATUS", statusLine({{9, "40"}, {12, "00"}}), "AUTOGRILL", "False"},
        {"grill_number_itself_is_not_read", 65, "PLUSTATUS", statusLine({{12, "07"}}), "AUTOGRILLNo", "null"},
        {"offer_price_is_a_number", 70, "MIXNMATCH", "3 for 2     ,03,00000199\r\n", "PRICE", "1.99"},
        {"quotes_are_text", 67, "PLUDATA", pluLine({{2, "\"Fish\""}}), "DESCRIPTION", "\"Fish\""},
        {"blank_in_front_of_an_option_digit", 67, "PLUDATA", pluLine({{8, " 4"}}), "pricechange", "True"},
        {"lone_carriage_returns", 1, "GROUPS", "a,,\rb,40,\r", "addtogrouptotal", "False|True"},
    };
    // clang-format on
    for (const auto& each : cases) {
        Shop shop;
        shop.import(each.file, each.text);
        EXPECT_EQ(shop.column(each.table, each.field), each.expected) << each.name;
    }
}

TEST(RecordReaderTest, KeepsWhatCameBeforeALineThatItRefuses)
{
    const struct {
        QByteArray line;
        int failure;
        const char* place;
    } cases[] = {{pluLine({{8, "  "}}), 13, "67.txt, line 2, column 8: "},
                 {pluLine({{8, "-4"}}), 13, "67.txt, line 2, column 8: "},
                 {pluLine(), 3022, "67.txt, line 2: "}};
    for (const auto& [line, number, place] : cases) {
        Shop shop;
        try {
            shop.import(67, pluLine() + line + pluLine({{1, "9"}}));
            ADD_FAILURE() << line.toStdString();
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), number);
            EXPECT_TRUE(failure.text().startsWith(QLatin1String(place))) << failure.what();
        }
        EXPECT_EQ(shop.column("PLUDATA", "PLUNUMBER"), "000000000000000017");
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
