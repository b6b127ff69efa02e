// What the fields of a table become in the text for the register.
#include "tests/records/Shop.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

using store::Value;
using test::pluLine;
using test::Shop;
using test::text;

QByteArray columnOf(const QByteArray& line, int column)
{
    return QByteArray(line).replace("\r\n", "").split(',').value(column - 1);
}

TEST(RecordWriterTest, SendsEachColumnInItsForm)
{
    struct Case {
        const char* name;
        test::FieldValue field;
        int column;
        const char* expected;
    };
    const Case cases[] = {
        {"key is filled with zeros", {"PLUNUMBER", text("12")}, 1, "000000000000000012"},
        {"text is filled with blanks", {"DESCRIPTION", text(" Tea ")}, 2, "Tea             "},
        {"text in the register's character set",
         {"DESCRIPTION", text("T\u00fcr^\u4e2d")},
         2,
         "T\xFCr\xFD?           "},
        {"null text", {"DESCRIPTION", Value()}, 2, "                "},
        {"number", {"PLUSTATUS", Value::whole(7)}, 4, "0007"},
        {"number that is too long loses its left end", {"PLUSTATUS", Value::whole(123456)}, 4, "3456"},
        {"null number", {"PLUSTATUS", Value()}, 4, "0000"},
        {"long number", {"STOCKLINK", text("987654321098765432")}, 11, "987654321098765432"},
        {"price", {"PRICE1", text("12.34")}, 13, "00001234"},
        {"price with a place for the sign", {"PRICE1", text(" 1.5")}, 13, "00000150"},
        {"price that no binary fraction hits", {"PRICE1", text("1.15")}, 13, "00000115"},
        {"price of the largest digits", {"PRICE1", text("999999.29")}, 13, "99999929"},
        {"half a cent is rounded away from zero", {"PRICE1", text("0.125")}, 13, "00000013"},
        {"price that is no number", {"PRICE1", text("none")}, 13, "00000000"},
        {"price with a word behind it", {"PRICE1", text("2 each")}, 13, "00000200"},
        {"null price", {"PRICE1", Value()}, 13, "00000000"},
        {"flags of both digits", {"OVERRIDE", Value::yesNo(true)}, 8, "10"},
        {"first level where none is set", {"PRICELEVEL1", Value()}, 14, "01"},
        {"third level where none is set", {"PRICELEVEL3", Value::whole(0)}, 18, "03"},
        {"fifth level where none is set", {"PRICELEVEL5", Value::whole(0)}, 22, "05"},
        {"level that is set", {"PRICELEVEL3", Value::whole(1)}, 18, "01"},
    };
    for (const Case& sent : cases) {
        Shop shop;
        shop.add("PLUDATA", {{"PLUNUMBER", text("12")}, sent.field});
        EXPECT_EQ(columnOf(shop.exported(67), sent.column).toStdString(), sent.expected) << sent.name;
    }
}

TEST(RecordWriterTest, WritesWholeLinesInTheOrderOfTheIndex)
{
    Shop shop;
    shop.add("GROUPS",
             {{"GROUPNO", Value::whole(10)}, {"DESCRIPTION", text("Wine")}, {"tax6", Value::yesNo(true)}});
    shop.add("GROUPS", {{"GROUPNO", Value::whole(9)},
                        {"DESCRIPTION", text("Food")},
                        {"addtogrouptotal", Value::yesNo(true)},
                        {"tax1", Value::yesNo(true)},
                        {"tax3", Value::yesNo(true)}});
    EXPECT_EQ(shop.exported(1), "Food        ,40,50\r\nWine        ,00,01\r\n");
    EXPECT_EQ(shop.commands, QStringList(QStringLiteral("convert wVelmaro f1.txt t1.dat d01")));
}

TEST(RecordWriterTest, SendsTheGrillNumberAndTheGrillFlagApart)
{
    Shop shop;
    shop.add("PLUSTATUS", {{"STATUSNO", Value::whole(1)},
                           {"AUTOGRILL", Value::yesNo(true)},
                           {"PRINTREDONRECEIPT", Value::yesNo(true)},
                           {"AUTOGRILLNo", Value::whole(7)},
                           {"LINKEDNVIMAGE", Value::whole(12)}});
    const QByteArray line = shop.exported(65);
    EXPECT_EQ(columnOf(line, 9), "50");
    EXPECT_EQ(columnOf(line, 12), "07");
    EXPECT_EQ(columnOf(line, 17), "12");
}

TEST(RecordWriterTest, SendsWhatTheRegisterSent)
{
    const std::pair<int, QByteArray> texts[] = {
        {1, "Food        ,40,77\r\nD\xE9li \xFD      ,00,00\r\n"},
        {58, "Kilo        ,kg  ,0012\r\n"},
        {65, "Food        ,52,77,31,46,75,13,77,12,01,02,00,04,05,123456789012345678,06,07\r\n"},
        {67,
         pluLine() +
             pluLine({{1, "000000000000000018"}, {8, "75"}, {11, "987654321098765432"}, {13, "99999999"}})},
        {70, "3 for 2     ,03,00000199\r\n"},
    };
    for (const auto& [file, sent] : texts) {
        Shop shop;
        shop.import(file, sent);
        EXPECT_EQ(shop.exported(file).toStdString(), sent.toStdString()) << file;
    }
}

TEST(RecordWriterTest, CutsAUnitToTheFourCharactersOfTheRegister)
{
    Shop shop;
    shop.add("PRODUCTMIX", {{"PRODUCTNO", Value::whole(1)}, {"unitDESCRIPTION", text("portion")}});
    EXPECT_EQ(shop.exported(58), "            ,port,0000\r\n");
}

TEST(RecordWriterTest, SendsThePointsOfAllPlus)
{
    Shop shop;
    shop.import(67, pluLine() + pluLine({{1, "000000000000000018"}}));
    shop.import(71, "000000000000000018,0001,0002,0003,0004,0050\r\n");
    EXPECT_EQ(shop.exported(71), "000000000000000017,0000,0000,0000,0000,0000\r\n"
                                 "000000000000000018,0001,0002,0003,0004,0050\r\n");
}

} // namespace
} // namespace norvane::records
