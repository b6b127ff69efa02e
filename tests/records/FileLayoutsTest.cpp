// The files of messages, staff, tax, service settings and keys at the seam that a register sees: the line
// that goes out for a record, and the record that a line becomes.
#include "records/RegisterFiles.h"
#include "tests/records/Shop.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

using store::Value;
using test::FieldValue;
using test::Shop;
using test::text;

Value whole(int number)
{
    return Value::whole(number);
}
Value yes()
{
    return Value::yesNo(true);
}

const char* lineNumberField(int file)
{
    return registerFile(file)->layout().lineNumberField.c_str();
}

/// Columns of a line from @p first on, @p count of them.
std::string columns(const QByteArray& line, int first, int count = 1)
{
    return line.chopped(2).split(',').mid(first - 1, count).join(',').toStdString();
}

struct Travel {
    const char* name;
    int file;
    std::vector<FieldValue> stored;
    int column;
    int count;
    const char* sent;
    const char* field;
    const char* back;
};

// clang-format off
const Travel travels[] = {
    {"descriptor", 20, {{"ERRORMESSAGE", text("NO ^ PAPER")}}, 1, 1, "NO \xFD PAPER                    ", "ERRORMESSAGE", "NO ^ PAPER                    "},
    {"descriptor_loses_zeros", 21, {{"financialreport", text("00 NET")}}, 1, 1, "00 NET                        ", "financialreport", " NET"},
    {"descriptor_outside_the_character_set", 22, {{"Employeereport", text("\u0142\u20ac")}}, 1, 1, "?\x80                            ", "Employeereport", "?\u20ac                            "},
    {"justify_2", 23, {{"Justify", whole(2)}}, 1, 1, "40", "Justify", "2"},
    {"justify_1", 25, {{"Justify", whole(1)}}, 1, 1, "20", "Justify", "1"},
    {"justify_none", 26, {{"Justify", Value()}}, 1, 1, "00", "Justify", "0"},
    {"last_foot_line", 26, {{"POSTAMBLE5", text("Thank you")}}, 11, 1, "Thank you                               ", "POSTAMBLE5", "Thank you                               "},
    {"last_validation_line", 24, {{"LINE3", Value()}}, 4, 1, "                                        ", "LINE3", "                                        "},
    {"last_endorsement_line", 25, {{"LINE10", text("x")}}, 11, 1, "x                                       ", "LINE10", "x                                       "},
    {"employee_codes", 63, {{"dallaskey", text("0A0000000000FF")}, {"SOCIAL", text("123456789012")}, {"JOB1CODE", whole(7)}, {"PAYRATE6", whole(12)}, {"Trainmode", yes()}}, 2, 20, "123456789012,0000000000,0000000000,00,07,00,00,00,00,00,00,00,00,00,00,12,00,40,00,00", "PAYRATE6", "12"},
    {"key_bytes", 63, {{"dallaskey", text("0A0000000000FF")}}, 22, 7, "0010,0000,0000,0000,0000,0000,0255", "dallaskey", "0A0000000000FF"},
    {"key_without_bytes", 63, {{"dallaskey", text("")}}, 22, 7, "0000,0000,0000,0000,0000,0000,0000", "dallaskey", "00000000000000"},
    {"key_of_odd_digits", 63, {{"dallaskey", text("G1 A1 Fg-1\u00e4f")}}, 22, 7, "0000,0000,0001,0015,0000,0000,0000", "dallaskey", "000001" "0F000000"},
    {"pay_rate", 34, {{"rate", Value::number(12.5)}}, 1, 1, "1250", "rate", "12.5"},
    {"last_authority", 32, {{"DISALLOWSUBTRACTINX", yes()}, {"DISALLOWADDINX", yes()}}, 9, 1, "21", "DISALLOWSUBTRACTINX", "True"},
    {"start_time", 64, {{"STARTTIME", text("930")}, {"ENDTIME", whole(945)}, {"ACTIVE", yes()}}, 1, 3, "0930,0945,40", "STARTTIME", "0930"},
    {"end_time", 64, {{"ENDTIME", whole(45)}}, 1, 3, "0000,0045,00", "ENDTIME", "45"},
    {"tax_rate", 29, {{"taxrate", Value::number(17.5)}, {"TAXTYPE", whole(1)}}, 1, 3, "017500,20,00", "taxrate", "17.5"},
    {"tax_type", 29, {{"TAXTYPE", whole(2)}}, 2, 1, "40", "TAXTYPE", "2"},
    {"tax_first_takes_the_next", 29, {{"first", whole(11)}, {"notax", whole(22)}}, 4, 2, "0011,0022", "first", "22"},
    {"tax_no_tax_takes_the_next", 29, {{"notax", whole(22)}, {"norepeatbreak", whole(33)}}, 5, 2, "0022,33", "notax", "33"},
    {"tax_break_takes_the_next", 29, {{"norepeatbreak", whole(33)}, {"repeatbreak", whole(44)}}, 6, 2, "33,44", "norepeatbreak", "44"},
    {"tax_repeat_takes_the_first_reserve", 29, {{"repeatbreak", whole(44)}, {"dummy1", text("5")}}, 7, 2, "44,00000000000000000005", "repeatbreak", "5"},
    {"tax_reserve_repeats_the_first", 29, {{"dummy1", text("5")}, {"dummy20", text("6")}}, 27, 1, "00000000000000000006", "dummy20", "5"},
    {"tax_total_stands_twice", 29, {{"repeatbreaktotal", whole(9)}, {"highhold", whole(8)}}, 28, 3, "000009,000009,0000000008", "highhold", "0"},
    {"three_places_come_back_as_two", 15, {{"DECIMALPlace", whole(3)}, {"SENDPLUDESCRIPTOR", yes()}, {"PRINTERRORPOLLING", yes()}}, 1, 1, "74", "DECIMALPlace", "2"},
    {"one_place", 15, {{"DECIMALPlace", whole(1)}}, 1, 1, "20", "DECIMALPlace", "1"},
    {"service_numbers", 15, {{"storenumber", whole(123456)}, {"timein/out", whole(5)}, {"check4", whole(4)}, {"z5pass", whole(55)}, {"rompass", whole(9999)}}, 2, 23, "123456,00,00,00,05,00,00,00,04,00,00,00,00,0000,0000,0000,0000,0055,0000,0000,00,00,9999", "rompass", "9999"},
    {"function_key", 2, {{"DESCRIPTION", text("CASH^")}, {"HALO", whole(5000)}, {"flag1", whole(44)}, {"flag2", whole(1)}, {"flag4", whole(20)}}, 1, 6, "CASH^       ,00005000,44,01,00,20", "flag4", "20"},
    {"key_link_none", 16, {{"KEYLINK", text("0")}}, 1, 1, "0200", "KEYLINK", "0"},
    {"key_link_271", 16, {{"KEYLINK", text("271")}}, 1, 1, "0300", "KEYLINK", "271"},
    {"key_link_empty", 16, {{"KEYLINK", text("")}}, 1, 1, "0000", "KEYLINK", ""},
    {"key_link_other", 16, {{"KEYLINK", text("12")}}, 1, 1, "0012", "KEYLINK", "12"},
    {"key_link_200_becomes_none", 16, {{"KEYLINK", text("200")}}, 1, 1, "0200", "KEYLINK", "0"},
    {"look_up_keeps_zeros", 17, {{"NLU", text("4711")}}, 1, 1, "000000000000004711", "NLU", "000000000000004711"},
    {"window", 57, {{"LINK", whole(3)}, {"#OfCondiments", whole(2)}, {"#OfWLU", whole(9)}, {"Allowplu", yes()}, {"allowexit", yes()}, {"condimentsort", yes()}}, 2, 5, "0003,02,0009,22,40", "condimentsort", "True"},
    {"window_function", 57, {{"wlutype1", whole(2)}, {"codenumber1", text("12")}}, 7, 2, "40,001200000000000000", "codenumber1", "12"},
    {"window_department", 57, {{"wlutype50", whole(1)}, {"codenumber50", text("12")}}, 105, 2, "20,000000000000000012", "codenumber50", "12"},
    {"window_plu_of_18_digits", 57, {{"codenumber2", text("123456789012345678")}}, 9, 2, "00,123456789012345678", "codenumber2", "123456789012345678"},
    {"recipe_sends_the_item_as_quantity", 60, {{"item1", whole(2)}, {"recipe1", whole(17)}, {"qty1", whole(3)}}, 2, 3, "40,0017,000017", "qty1", "17"},
    {"recipe_kind_2_comes_back_as_1", 60, {{"item20", whole(2)}}, 59, 3, "40,0000,000000", "item20", "1"},
    {"recipe_kind_1_comes_back_as_0", 60, {{"item1", whole(1)}}, 2, 1, "20", "item1", "0"},
    {"card_category", 85, {{"DESCRIPTOR", text("Staff")}, {"REDEEMMULTIPLIER", whole(4)}, {"INACTIVE", yes()}, {"DISALLOWPOINT", yes()}}, 1, 6, "Staff           ,0000,0000,0000,0004,12", "DISALLOWPOINT", "True"},
    {"hot_list", 86, {{"REFERENCE", text("123")}, {"HOTLISTED", yes()}}, 1, 2, "123                           ,01", "HOTLISTED", "True"},
};
// clang-format on

TEST(FileLayoutsTest, SendsAndReadsEachFieldItsOwnWay)
{
    for (const Travel& travel : travels) {
        SCOPED_TRACE(travel.name);
        Shop shop;
        shop.folder.write("mem.dat", QByteArray(77, 0));
        const char* table = registerFile(travel.file)->table;
        auto fields = travel.stored;
        if (travel.file != 15)
            fields.emplace_back(lineNumberField(travel.file), whole(1));
        if (travel.file == 63 && !travel.stored.empty() &&
            travel.stored.front().first != std::string("dallaskey"))
            fields.emplace_back("dallaskey", text(""));
        shop.add(table, fields);
        const QByteArray line = shop.exported(travel.file);
        EXPECT_EQ(columns(line, travel.column, travel.count), travel.sent);
        shop.import(travel.file, line);
        EXPECT_EQ(shop.column(table, travel.field), travel.back);
    }
}

TEST(FileLayoutsTest, ReadsWhatOnlyARegisterSends)
{
    struct Read {
        int file;
        QByteArray text;
        const char* field;
        const char* stored;
    };
    const QByteArray employee = "Ann" + QByteArray(",0").repeated(17) + ",00,0,0,";
    const Read cases[] = {
        {19, "007 x", "SYSTEMDESCRIPTORS", "007 x"},
        {20, "\r\n   \r\n0000\r\n", "ERRORMESSAGE", "0|   |0"},
        {24, "80,a\r\n70\r\n4", "Justify", "0|2|0"},
        {63, employee + "0300,,  ,4095,-1,1,2", "dallaskey", "2C0000FFFF0102"},
        {63, "Ann\r\n", "dallaskey", "00000000000000"},
        {34, "0005\r\n\r\n", "rate", "0.05|0"},
        {64, "0000,0000,40\r\n", "STARTTIME", "0000"},
        {29, "17500,04\r\n17500,60\r\n,x0\r\n", "TAXTYPE", "2|0|0"},
        {29, "017500,40\r\n", "highhold", "0"},
        {29, "17500%,\r\n  ,\r\nfree,\r\n", "taxrate", "17.5|0|0"},
        {29, "1,2,3,4,5,6,7,0008,9\r\n", "repeatbreaktotal", "8"},
        {29, "1,2,3,4,5,6,7,0008,9\r\n", "first", "5"},
        {15, "60\r\n", "DECIMALPlace", "2"},
        {16, "0200\r\n300\r\n0000\r\n\r\n 012 \r\n0271\r\n", "KEYLINK", "0|271|||12|271"},
        {57, "a,,,,,,4,1234567\r\n", "codenumber1", "1234567"},
        {57, "a,,,,,,40,0012345\r\n", "codenumber1", "12"},
        {57, "a,,,,,,60,00001234\r\n", "codenumber1", "0"},
        {60, "\r\n   ,20,00123,0001234\r\n", "DESCRIPTION", "Recipe 1|Recipe 2"},
        {60, "a,20,00123,0001234\r\n", "recipe1", "12"},
        {60, "a,20,00123,0001234\r\n", "qty1", "123"},
        {2, "a\r\n", "flag2", "null"},
        {2, "a,00012345,08,90,01,02\r\n", "HALO", "12345"},
        {86, "x,11\r\n", "INACTIVE", "True"},
    };
    for (const Read& read : cases) {
        Shop shop;
        shop.import(read.file, read.text);
        EXPECT_EQ(shop.column(registerFile(read.file)->table, read.field), read.stored)
            << read.file << ' ' << read.text.toStdString();
    }
}

TEST(FileLayoutsTest, SendsTheWholeRecordOfEachFile)
{
    struct Shape {
        int file;
        int columns;
        int length;
    };
    const Shape shapes[] = {
        {2, 6, 35},    {15, 25, 154},   {16, 1, 6},    {17, 1, 20},   {20, 1, 32},   {21, 1, 32}, {22, 1, 32},
        {23, 11, 414}, {24, 4, 127},    {25, 11, 414}, {26, 11, 414}, {29, 30, 475}, {32, 9, 38}, {33, 1, 14},
        {34, 1, 6},    {57, 106, 1133}, {60, 61, 318}, {63, 28, 135}, {64, 3, 14},   {85, 6, 41}, {86, 2, 35},
    };
    for (const Shape& shape : shapes) {
        Shop shop;
        shop.folder.write("mem.dat", QByteArray(77, 0));
        std::vector<FieldValue> fields;
        if (shape.file != 15)
            fields.emplace_back(lineNumberField(shape.file), whole(1));
        if (shape.file == 63)
            fields.emplace_back("dallaskey", text(""));
        shop.add(registerFile(shape.file)->table, fields);
        const QByteArray line = shop.exported(shape.file);
        EXPECT_EQ(line.split(',').size(), shape.columns) << shape.file;
        EXPECT_EQ(line.size(), shape.length) << shape.file;
    }
}

TEST(FileLayoutsTest, CutsMessageLinesToTheRegistersPaper)
{
    const std::string line(40, 'x');
    for (const auto& [model, width] : {std::pair(0, 40), {1, 40}, {2, 40}, {3, 32}, {-1, 32}}) {
        Shop shop;
        shop.setModel(model);
        shop.add("LOGOMESSAGE", {{"ID", whole(1)}, {"PREAMBLE1", text(line.c_str())}});
        EXPECT_EQ(columns(shop.exported(23), 2), std::string(static_cast<std::size_t>(width), 'x')) << model;
    }
}

TEST(FileLayoutsTest, ConvertsEmployeesForTheModel)
{
    const std::pair<int, const char*> models[] = {{0, "wVelmaro f63.txt t63.dat d63"},
                                                  {2, "wVelmarn f63.txt t63.dat d63"},
                                                  {3, "wDorvik f63.txt t63.dat d163"}};
    for (const auto& [model, command] : models) {
        Shop shop;
        shop.setModel(model);
        shop.import(63, "Ann\r\n");
        EXPECT_TRUE(shop.commands.last().endsWith(QStringLiteral("u63")));
        (void)shop.exported(63);
        EXPECT_EQ(shop.commands.last(), QStringLiteral("convert ") + QLatin1String(command));
    }
}

constexpr int keyCount = 266;

/// All function keys of a register, some replaced.
QByteArray functionKeys(const std::map<int, QByteArray>& replaced)
{
    QByteArray keys;
    for (int key = 1; key <= keyCount; ++key) {
        const auto own = replaced.find(key);
        keys += own == replaced.end() ? "KEY         ,00000000,00,00,00,00" : own->second;
        keys += "\r\n";
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
    const auto stored = [&](const char* field, int key) {
        return QString::fromStdString(shop.column("FUNCTIONKEY", field)).split(u'|').at(key - 1);
    };
    EXPECT_EQ(stored("flag2", 257), QStringLiteral("12"));
    EXPECT_EQ(stored("flag2", 258), QStringLiteral("1234"));
    EXPECT_EQ(stored("flag3", 258), QStringLiteral("null"));
    EXPECT_EQ(stored("flag2", 259), QStringLiteral("5"));
    EXPECT_EQ(stored("flag2", 264), QStringLiteral("12.5"));
    EXPECT_EQ(stored("flag4", 264), QStringLiteral("null"));
    EXPECT_EQ(stored("flag4", 265), QStringLiteral("50"));
    EXPECT_EQ(shop.exported(2), keys);

    // A number that ends early, or is not there, is one all the same.
    shop.import(2, functionKeys({{258, "B,0,0,12"}, {259, "C"}, {264, "D,0,0,01,02"}}));
    const auto lines = shop.exported(2).split('\n');
    EXPECT_EQ(lines.at(257), "B           ,00000000,00,00,12,00\r");
    EXPECT_EQ(lines.at(258), "C           ,00000000,00,00,00,00\r");
    EXPECT_EQ(lines.at(263), "D           ,00000000,00,01,02,00\r");
}

TEST(FileLayoutsTest, CountsFunctionKeysByLine)
{
    Shop shop;
    shop.folder.write("mem.dat", QByteArray(78, 0));
    shop.add("FUNCTIONKEY", {{"id", whole(258)}, {"DESCRIPTION", text("B")}, {"flag2", whole(1234)}});
    EXPECT_EQ(shop.exported(2), "B           ,00000000,00,34,00,00\r\n");
}

TEST(FileLayoutsTest, KeepsTheTextsOfTheCardKeysFromNewerFirmware)
{
    const QByteArray blank = "            ,00000000,00,00,00,00";
    const QByteArray keys = functionKeys({{256, blank}, {258, blank}, {260, blank}, {266, blank}});
    const auto sent = [&](int memorySize, Shop& shop) {
        shop.folder.write("mem.dat", QByteArray(memorySize, 0));
        shop.import(2, keys);
        QByteArrayList texts;
        for (const QByteArray& line : shop.exported(2).split('\n').mid(255, 11))
            texts << line.left(12);
        return texts;
    };
    Shop newer;
    EXPECT_EQ(sent(78, newer), QByteArrayList({"            ", "            ", "ADD BALANCE ", "ADD BALANCE ",
                                               "ADD POINTS  ", "ADD POINTS  ", "ADD POINTS  ", "ADD POINTS  ",
                                               "ADD POINTS  ", "ADD POINTS  ", "DEL HOTLIST "}));
    for (const int memorySize : {77, 0}) {
        Shop older;
        EXPECT_EQ(
            sent(memorySize, older).join('|'),
            "            |KEY         |            |KEY         |            |KEY         |KEY         |"
            "KEY         |KEY         |KEY         |            ");
        EXPECT_EQ(older.boxes.shown.size(), memorySize == 0 ? 1U : 0U) << "the firmware is asked for once";
    }
}

} // namespace
} // namespace norvane::records
