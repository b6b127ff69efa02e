// The register's files at the seam that a register sees: the line that goes out for a record, and the record
// that a line becomes.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"
#include "tests/support/RowName.h"

#include <map>

namespace norvane::records
{
namespace
{

using norvane::test::rowName, norvane::test::whole, store::Value, test::FieldValue, test::Shop, test::text;

Value yes()
{
    return Value::yesNo(true);
}

/// A field on its way out and back.
struct FileTravel {
    const char* name;
    int file;
    std::vector<FieldValue> stored;
    int column;
    int count; ///< of columns
    const char* sent;
    const char* field;
    const char* back;
};

// clang-format off
const FileTravel travels[] = {
    {"text", 67, {{"DESCRIPTION", text(" Tea ")}}, 2, 1, "Tea             ", "DESCRIPTION", "Tea             "},
    {"text_in_the_character_set", 67, {{"DESCRIPTION", text("T\u00fcr^\u4e2d\u20ac")}}, 2, 1, "T\xFCr\xFD?\x80          ", "DESCRIPTION", "T\u00fcr^?\u20ac          "},
    {"number_loses_its_left_end", 67, {{"PLUSTATUS", whole(123456)}}, 4, 1, "3456", "PLUSTATUS", "3456"},
    {"null_number", 67, {{"PLUSTATUS", Value()}}, 4, 1, "0000", "PLUSTATUS", "0"},
    {"long_number", 67, {{"STOCKLINK", text("987654321098765432")}}, 11, 1, "987654321098765432", "STOCKLINK", "987654321098765432"},
    {"price_with_a_place_for_the_sign", 67, {{"PRICE1", text(" 1.5")}}, 13, 1, "00000150", "PRICE1", "1.5"},
    {"price_of_the_largest_digits", 67, {{"PRICE1", text("999999.29")}}, 13, 1, "99999929", "PRICE1", "999999.29"},
    {"half_a_cent_away_from_zero", 67, {{"PRICE1", text("0.125")}}, 13, 1, "00000013", "PRICE1", "0.13"},
    {"price_that_is_not_a_number", 67, {{"PRICE1", text("none")}}, 13, 1, "00000000", "PRICE1", "0"},
    {"price_with_a_word_after_it", 67, {{"PRICE1", text("2 each")}}, 13, 1, "00000200", "PRICE1", "2"},
    {"first_level_where_none_is_set", 67, {{"PRICELEVEL1", Value()}}, 14, 1, "01", "PRICELEVEL1", "1"},
    {"unit", 58, {{"unitDESCRIPTION", text("Kilogramme")}}, 2, 1, "Kilo", "unitDESCRIPTION", "Kilo"},
    {"grill_number_and_flag", 65, {{"AUTOGRILL", yes()}, {"AUTOGRILLNo", whole(7)}, {"LINKEDNVIMAGE", whole(12)}}, 9, 9, "40,00,00,07,00,00,000000000000000000,00,12", "AUTOGRILL", "True"},
    {"descriptor_loses_zeros", 21, {{"financialreport", text("00 NET")}}, 1, 1, "00 NET                        ", "financialreport", " NET"},
    {"justify_2", 23, {{"Justify", whole(2)}}, 1, 1, "40", "Justify", "2"},
    {"employee_codes", 63, {{"dallaskey", text("0A0000000000FF")}, {"SOCIAL", text("123456789012")}, {"SIGNONCODE", Value::number(9876543210.0)}, {"JOB1CODE", whole(7)}, {"PAYRATE6", whole(12)}, {"Trainmode", yes()}}, 2, 20, "123456789012,9876543210,0000000000,00,07,00,00,00,00,00,00,00,00,00,00,12,00,40,00,00", "PAYRATE6", "12"},
    {"key_bytes", 63, {{"dallaskey", text("0A0000000000FF")}}, 22, 7, "0010,0000,0000,0000,0000,0000,0255", "dallaskey", "0A0000000000FF"},
    {"key_of_odd_digits", 63, {{"dallaskey", text("G1 A1 Fg-1\u00e4f")}}, 22, 7, "0000,0000,0001,0015,0000,0000,0000", "dallaskey", "000001" "0F000000"},
    {"tax_rate", 29, {{"taxrate", Value::number(17.5)}, {"TAXTYPE", whole(1)}}, 1, 3, "017500,20,00", "taxrate", "17.5"},
    {"tax_reserve_repeats_the_first", 29, {{"dummy1", text("5")}, {"dummy20", text("12345678901234567890")}}, 27, 1, "12345678901234567890", "dummy20", "5"},
    {"tax_total_is_sent_twice", 29, {{"repeatbreaktotal", whole(9)}, {"highhold", text("19876543210")}}, 28, 3, "000009,000009,9876543210", "highhold", "0"},
    {"service_numbers", 15, {{"storenumber", whole(123456)}, {"timein/out", whole(5)}, {"check4", whole(4)}, {"z5pass", whole(55)}, {"rompass", whole(9999)}}, 2, 23, "123456,00,00,00,05,00,00,00,04,00,00,00,00,0000,0000,0000,0000,0055,0000,0000,00,00,9999", "rompass", "9999"},
    {"key_link_none", 16, {{"KEYLINK", text("0")}}, 1, 1, "0200", "KEYLINK", "0"},
    {"key_link_271", 16, {{"KEYLINK", text("271")}}, 1, 1, "0300", "KEYLINK", "271"},
    {"key_link_empty", 16, {{"KEYLINK", text("")}}, 1, 1, "0000", "KEYLINK", ""},
    {"window", 57, {{"LINK", whole(3)}, {"#OfCondiments", whole(2)}, {"#OfWLU", whole(9)}, {"Allowplu", yes()}, {"allowexit", yes()}, {"condimentsort", yes()}}, 2, 5, "0003,02,0009,22,40", "condimentsort", "True"},
    {"destination", 3, {{"DEFAULTDESTINATION", whole(2)}}, 1, 1, "01", "DEFAULTDESTINATION", "2"},
    {"destination_1_is_sent_as_2", 3, {{"DEFAULTDESTINATION", whole(1)}}, 1, 1, "02", "DEFAULTDESTINATION", "1"},
    {"rounding_in_one_digit_with_a_flag", 3, {{"ROUNDON%", whole(2)}, {"MANCONTROLZEROSALES", yes()}}, 2, 1, "50", "ROUNDON%", "2"},
    {"global_entry_is_its_own_digit", 3, {{"GLOBALENTRY", whole(8)}, {"SILENTKEY", yes()}}, 5, 1, "81", "GLOBALENTRY", "8"},
    {"sign_on_4_is_sent_as_none", 3, {{"EMPLOYEESIGNON", whole(4)}}, 7, 1, "00", "EMPLOYEESIGNON", "0"},
    {"quantity_limit_in_thousandths", 3, {{"QTYLIMITFORX/TIMEKEY", Value::number(1.005)}}, 10, 1, "001005", "QTYLIMITFORX/TIMEKEY", "1.005"},
    {"number_as_a_flag", 3, {{"TAXSHIFT", whole(1)}, {"BASECURRENCY", whole(2)}}, 40, 1, "04", "TAXSHIFT", "1"},
    {"stock_is_deducted", 6, {{"stockisdeducted", yes()}}, 4, 1, "40", "stockisdeducted", "True"},
    {"check_number_of_ten_digits", 8, {{"LIMITCHECK4", Value::number(9876543210.0)}}, 12, 1, "9876543210", "LIMITCHECK4", "9876543210"},
    {"router", 9, {{"kprouter", whole(1)}, {"PLUCODEONKP", yes()}}, 3, 1, "50", "kprouter", "1"},
    {"router_that_is_clear_is_not_read", 9, {{"kprouter", whole(0)}}, 3, 1, "00", "kprouter", "null"},
    {"currency_sign", 11, {{"CURRENCY5SYMBOL", whole(128)}}, 12, 1, "\x80  ", "CURRENCY5SYMBOL", "128"},
    {"last_symbol", 11, {{"HOMESYMBOL", whole(255)}}, 7, 1, "\xFF  ", "HOMESYMBOL", "255"},
    {"beyond_the_last_symbol", 11, {{"HOMESYMBOL", whole(256)}}, 7, 1, "   ", "HOMESYMBOL", "32"},
    {"mark_as_a_symbol", 11, {{"HOMESYMBOL", whole('^')}}, 7, 1, "\xFD  ", "HOMESYMBOL", "94"},
    {"cutter_and_internal_print", 11, {{"TURNOFFAUTOCUTTER", whole(-1)}, {"STOPINTERNALPRINT", yes()}}, 19, 1, "60", "TURNOFFAUTOCUTTER", "-1"},
    {"tips_in_ten_thousandths", 14, {{"TIPREPORTING", Value::number(0.125)}}, 3, 1, "001250", "TIPREPORTING", "0.125"},
    {"overtime_in_tenths", 14, {{"OVERTIMEFACTOR", Value::number(1.5)}}, 4, 1, "15", "OVERTIMEFACTOR", "1.5"},
};

/// What only a register sends.
struct FileRead {
    const char* name;
    int file;
    QByteArray text;
    const char* field;
    const char* stored;
};
const FileRead reads[] = {
    {"lines_are_numbered", 1, "a\r\nb\r\nc", "GROUPNO", "1|2|3"},
    {"line_feeds_end_lines", 1, "a,,\nb,40,\n", "addtogrouptotal", "False|True"},
    {"carriage_returns_end_lines", 1, "a,,\rb,40,\r", "addtogrouptotal", "False|True"},
    {"end_of_file_mark_before_a_record", 1, "a,,\r\n\x1A" "b,,\r\n\x1A \r\n\x1A\t\r\n", "DESCRIPTION", "a|\x1A" "b"},
    {"end_of_file_mark_at_the_end", 1, "a\r\n \r\n\x1A", "DESCRIPTION", "a| "},
    {"text_of_digits", 67, ",007", "DESCRIPTION", "007"},
    {"text_in_quotes", 67, ",\"Fish\"", "DESCRIPTION", "\"Fish\""},
    {"number_after_a_blank", 67, ",Fish, 12", "GROUPNO", "12"},
    {"blank_number", 67, ",,,,,,    ", "RECIPENO", "0"},
    {"blank_long_number", 67, ",,,,,,,,,,    ,", "STOCKLINK", "0"},
    {"blank_price", 67, ",,,,,,,,,,,,    ", "PRICE1", "0"},
    {"blank_flags", 2, "a,  ,  ,  ,  ,  ", "flag2", "0"},
    {"options_of_two_digits", 67, ",,,,,,,57", "PRESET", "False"},
    {"options_of_one_digit", 67, ",,,,,,,4", "pricechange", "True"},
    {"options_after_a_blank", 67, ",,,,,,, 4", "pricechange", "True"},
    {"descriptor_begins_with_a_digit", 19, "007 x", "SYSTEMDESCRIPTORS", "007 x"},
    {"error_messages", 20, "\r\n  \r\n0000\r\n0012\r\n 12 \r\n 0120 \r\n00 12\r\n0 012\r\n007 Days  \r\n0  \r\n", "ERRORMESSAGE", "0|  |0|12| 12 |120| 12|12|7 Days|0"},
    {"justification", 24, "80,a\r\n70\r\n4", "Justify", "0|2|0"},
    {"key_bytes_of_an_employee", 63, "Ann" + QByteArray(",0").repeated(17) + ",00,0,0,0300,,  ,4095,-1,1,2", "dallaskey", "2C0000FFFF0102"},
    {"pay_rate", 34, "0005\r\n\r\n", "rate", "0.05|0"},
    {"time_of_day", 64, "0000,0000,40\r\n", "STARTTIME", "0000"},
    {"missing_high_hold", 29, "017500,40\r\n", "highhold", "0"},
    {"digits_beyond_eighteen", 29, "0,0,0,0,0,0,0,012345678901234567890", "repeatbreak", "12345678901234567890"},
    {"twenty_nines", 29, "0,0,0,0,0,0,0,99999999999999999999", "repeatbreaktotal", "99999999999999999999"},
    {"twenty_nines_as_a_limit", 29, "0,0,0,0,0,0,0,99999999999999999999", "highhold", "99999999999999999999"},
    {"tax_rate_with_a_word", 29, "17500%,\r\n  ,\r\nfree,\r\n", "taxrate", "17.5|0|0"},
    {"key_links", 16, "0200\r\n300\r\n0000\r\n\r\n 012 \r\n0271\r\n", "KEYLINK", "0|271|||12|271"},
    {"code_of_seven_digits", 57, "a,,,,,,4,1234567\r\n", "codenumber1", "1234567"},
    {"code_of_a_function", 57, "a,,,,,,40,0012345\r\n", "codenumber1", "12"},
    {"code_of_another_type", 57, "a,,,,,,60,00001234\r\n", "codenumber1", "0"},
    {"recipe", 60, "a,20,00123,0001234\r\n", "recipe1", "12"},
    {"halo", 2, "a,00012345,08,90,01,02\r\n", "HALO", "12345"},
    {"stock_is_deducted", 6, "00,,,20", "stockisdeducted", "True"},
    {"printed_date", 11, "00,00,00,30", "DATEPRINT", "3"},
    {"empty_symbol", 11, "00,00,00,70,00,00,", "HOMESYMBOL", "48"},
    // Columns too many, digits that are not sums of flags, and empty lines: no register accepts them as
    // settings.
    {"too_many_columns", 1, "a,40,40,9,,zz", "tax1", "True"},
    {"flags_beyond_their_sum_on_the_left", 1, "a,98,98", "addtogrouptotal", "False"},
    {"flags_beyond_their_sum_on_the_right", 1, "a,89,89", "tax1", "False"},
    {"options_beyond_their_sum", 3, "89", "DEFAULTDESTINATION", "0"},
    {"empty_line_of_plus", 67, "\r\n", "PRICE1", "0"},
    {"empty_line_of_logo", 23, "\r\n", "Justify", "0"},
    {"empty_line_of_taxes", 29, "\r\n", "taxrate", "0"},
    {"empty_line_of_symbols", 11, "\r\n", "CURRENCY5SYMBOL", "48"},
    {"empty_line_of_employees", 63, "\r\n", "dallaskey", "00000000000000"},
};
// clang-format on

class FieldTravels : public testing::TestWithParam<FileTravel>
{
};

TEST_P(FieldTravels, ToTheRegisterAndBack)
{
    const FileTravel& travel = GetParam();
    Shop shop;
    shop.folder.write("mem.dat", QByteArray(77, 0));
    const char* const table = registerFile(travel.file)->table;
    auto record = test::emptyRecord(travel.file, 1);
    record.insert(record.end(), travel.stored.begin(), travel.stored.end());
    shop.add(table, record);
    const QByteArray line = shop.exported(travel.file);
    const auto columns = line.chopped(2).split(',').mid(travel.column - 1, travel.count);
    EXPECT_EQ(columns.join(',').toStdString(), travel.sent);
    shop.import(travel.file, line);
    EXPECT_EQ(shop.column(table, travel.field), travel.back);
}

INSTANTIATE_TEST_SUITE_P(Fields, FieldTravels, testing::ValuesIn(travels), rowName<FileTravel>);

class RegisterLines : public testing::TestWithParam<FileRead>
{
};

TEST_P(RegisterLines, AreRead)
{
    const FileRead& read = GetParam();
    Shop shop;
    shop.import(read.file, read.text);
    EXPECT_EQ(shop.column(registerFile(read.file)->table, read.field), read.stored);
}

INSTANTIATE_TEST_SUITE_P(Lines, RegisterLines, testing::ValuesIn(reads), rowName<FileRead>);

/// All function keys of a register, some replaced.
QByteArray functionKeys(const std::map<int, QByteArray>& replaced)
{
    QByteArray keys;
    for (int key = 1; key <= 266; ++key) {
        const bool isUsual = replaced.count(key) == 0;
        keys += (isUsual ? "KEY         ,00000000,00,00,00,00" : replaced.at(key)) + "\r\n";
    }
    return keys;
}

TEST(FileLayoutsTest, KeepsNumbersInTheFlagsOfSomeFunctionKeys)
{
    Shop shop;
    shop.folder.write("mem.dat", QByteArray(77, 0));
    const QByteArray keys = functionKeys({
        {257, "A           ,00000000,00,12,34,56"},
        {258, "B           ,00000000,00,12,34,00"},
        {259, "C           ,00000000,00,00,05,00"},
        {264, "D           ,00000000,00,00,12,50"},
        {265, "E           ,00000000,00,00,12,50"},
    });
    shop.import(2, keys);
    const auto stored = [&](const char* field, int first, int last) {
        return QString::fromStdString(shop.column("FUNCTIONKEY", field)).section(u'|', first - 1, last - 1);
    };
    EXPECT_EQ(stored("flag2", 257, 264), QStringLiteral("12|1234|5|0|0|0|0|12.5"));
    EXPECT_EQ(stored("flag3", 257, 258), QStringLiteral("34|null"));
    EXPECT_EQ(stored("flag4", 264, 265), QStringLiteral("null|50"));
    EXPECT_EQ(shop.exported(2), keys);

    // A number that ends early or is missing still counts as one.
    shop.import(2, functionKeys({{258, "B,0,0,12"}, {259, "C"}, {264, "D,0,0,01,02"}}));
    EXPECT_EQ(shop.exported(2), functionKeys({{258, "B           ,00000000,00,00,12,00"},
                                              {259, "C           ,00000000,00,00,00,00"},
                                              {264, "D           ,00000000,00,01,02,00"}}));
    for (const QByteArray blanks : {"01,  ,50", "  ,  ,  "}) {
        shop.import(2, functionKeys({{264, "D,0,0," + blanks}}));
        const QByteArray sent = "D           ,00000000,00," + QByteArray(blanks).replace("  ", "00");
        EXPECT_EQ(shop.exported(2), functionKeys({{264, sent}}));
    }
}

const char* const olderTexts = "|KEY||KEY||KEY|KEY|KEY|KEY|KEY|";
const struct {
    int memorySize;
    const char* texts; ///< of the keys 256 to 266
    std::size_t boxes; ///< the firmware is asked for once
} cardKeys[] = {
    {78,
     "||ADD BALANCE|ADD BALANCE|ADD POINTS|ADD POINTS|ADD POINTS|ADD POINTS|ADD POINTS|ADD POINTS|"
     "DEL HOTLIST",
     0},
    {77, olderTexts, 0},
    {0, olderTexts, 1},
};

TEST(FileLayoutsTest, KeepsTheTextsOfTheCardKeysFromNewerFirmware)
{
    for (const auto& [memorySize, expected, boxes] : cardKeys) {
        Shop shop;
        shop.folder.write("mem.dat", QByteArray(memorySize, 0));
        shop.import(2, functionKeys({{256, ""}, {258, ""}, {260, ""}, {266, ""}}));
        QByteArrayList texts;
        for (const QByteArray& line : shop.exported(2).split('\n').mid(255, 11))
            texts << line.left(12).trimmed();
        EXPECT_EQ(texts.join('|'), expected);
        EXPECT_EQ(shop.boxes.shown.size(), boxes) << memorySize;
    }
}

} // namespace
} // namespace norvane::records
