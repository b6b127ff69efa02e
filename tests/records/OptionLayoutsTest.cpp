// The system options that do not come back from a register as they went to it, or travel in a form of their
// own: what is sent for a stored value, and what the same text stores again.
#include "tests/records/Shop.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

using store::Value;
using test::FieldValue;
using test::Shop;

struct Travel {
    const char* name;
    int file;
    const char* table;
    std::vector<FieldValue> stored;
    int column;
    const char* sent;
    const char* field;
    const char* back;
};

Value yes()
{
    return Value::yesNo(true);
}
Value whole(int number)
{
    return Value::whole(number);
}

// clang-format off
const Travel travels[] = {
    {"destination", 3, "GENERALFUNCTIONS", {{"DEFAULTDESTINATION", whole(2)}}, 1, "01", "DEFAULTDESTINATION", "2"},
    {"destination_1_is_sent_as_2", 3, "GENERALFUNCTIONS", {{"DEFAULTDESTINATION", whole(1)}}, 1, "02", "DEFAULTDESTINATION", "1"},
    {"destination_beside_eat_in", 3, "GENERALFUNCTIONS", {{"DEFAULTDESTINATION", whole(2)}, {"EATINBEFOREENDOFSALE", yes()}}, 1, "05", "DEFAULTDESTINATION", "3"},
    {"rounding_in_one_digit_with_a_flag", 3, "GENERALFUNCTIONS", {{"ROUNDON%", whole(2)}, {"MANCONTROLZEROSALES", yes()}}, 2, "50", "ROUNDON%", "2"},
    {"global_entry_is_its_own_digit", 3, "GENERALFUNCTIONS", {{"GLOBALENTRY", whole(8)}, {"SILENTKEY", yes()}}, 5, "81", "GLOBALENTRY", "8"},
    {"start_cursor_is_lost", 3, "GENERALFUNCTIONS", {{"STARTCURSOR", yes()}}, 7, "20", "STARTCURSOR", "False"},
    {"sign_on_3_becomes_2", 3, "GENERALFUNCTIONS", {{"EMPLOYEESIGNON", whole(3)}}, 7, "03", "EMPLOYEESIGNON", "2"},
    {"sign_on_4_is_none", 3, "GENERALFUNCTIONS", {{"EMPLOYEESIGNON", whole(4)}}, 7, "00", "EMPLOYEESIGNON", "0"},
    {"quantity_limit_in_thousandths", 3, "GENERALFUNCTIONS", {{"QTYLIMITFORX/TIMEKEY", Value::number(1.005)}}, 10, "001005", "QTYLIMITFORX/TIMEKEY", "1.005"},
    {"last_rounding_value", 3, "GENERALFUNCTIONS", {{"ROUNDINGVALUE5", whole(25)}}, 37, "0025", "ROUNDINGVALUE5", "25"},
    {"number_as_a_flag", 3, "GENERALFUNCTIONS", {{"TAXSHIFT", whole(1)}, {"BASECURRENCY", whole(2)}}, 40, "04", "TAXSHIFT", "1"},
    {"last_redeem_value", 3, "GENERALFUNCTIONS", {{"REDEEMMISC16", Value::number(0.29)}}, 60, "0029", "REDEEMMISC16", "0.29"},
    {"stock_is_deducted", 6, "TRAININGMODEOPTIONS", {{"stockisdeducted", yes()}}, 4, "40", "stockisdeducted", "True"},
    {"stock_is_not_deducted", 6, "TRAININGMODEOPTIONS", {{"stockisdeducted", Value::yesNo(false)}}, 4, "0", "stockisdeducted", "False"},
    {"price_level_grows", 7, "LEVELMODIFIEROPTIONS", {{"DEFAULTPRICELEVEL", whole(1)}}, 4, "010", "DEFAULTPRICELEVEL", "10"},
    {"clerk_shift_is_one_digit", 7, "LEVELMODIFIEROPTIONS", {{"CLERKSHIFTLEVEL", yes()}}, 5, "1", "CLERKSHIFTLEVEL", "True"},
    {"track_4_is_lost", 8, "TRACKINGFILEOPTIONS", {{"TRACK4HOLDS3", yes()}, {"RESETCHECK1", whole(2)}}, 2, "14", "TRACK4HOLDS3", "False"},
    {"check_number_of_ten_digits", 8, "TRACKINGFILEOPTIONS", {{"LIMITCHECK4", Value::number(9876543210.0)}}, 12, "9876543210", "LIMITCHECK4", "9876543210"},
    {"router", 9, "KITCHENPRINTOPTIONS", {{"kprouter", whole(1)}, {"PLUCODEONKP", yes()}}, 3, "50", "kprouter", "1"},
    {"router_that_is_clear_is_not_read", 9, "KITCHENPRINTOPTIONS", {{"kprouter", whole(0)}}, 3, "00", "kprouter", "null"},
    {"validation_port", 10, "VALIDSUBTOTALOPTIONS", {{"VALIDATIONPORT", whole(3)}}, 2, "30", "VALIDATIONPORT", "3"},
    {"receipt_after_interrupt_always", 11, "GENERALPRINTOPTION", {{"PRINTRECEIPTAFTERINTERRUPT", Value::yesNo(false)}}, 2, "40", "PRINTRECEIPTAFTERINTERRUPT", "True"},
    {"clocking_in_is_sent_twice", 11, "GENERALPRINTOPTION", {{"RECEIPTONCLOCKINGIN/OUT", yes()}}, 2, "44", "RECEIPTONCLOCKINGIN/OUT", "True"},
    {"date_print_is_never_sent", 11, "GENERALPRINTOPTION", {{"DATEPRINT", whole(3)}, {"DISABLELINEFEEDONSLIP", yes()}}, 4, "40", "DATEPRINT", "0"},
    {"currency_sign", 11, "GENERALPRINTOPTION", {{"CURRENCY5SYMBOL", whole(128)}}, 12, "\x80  ", "CURRENCY5SYMBOL", "128"},
    {"mark_as_a_symbol", 11, "GENERALPRINTOPTION", {{"HOMESYMBOL", whole('^')}}, 7, "\xFD  ", "HOMESYMBOL", "94"},
    {"no_symbol", 11, "GENERALPRINTOPTION", {{"HOMESYMBOL", Value()}}, 7, "   ", "HOMESYMBOL", "32"},
    {"cutter_and_internal_print", 11, "GENERALPRINTOPTION", {{"TURNOFFAUTOCUTTER", whole(-1)}, {"STOPINTERNALPRINT", yes()}}, 19, "60", "TURNOFFAUTOCUTTER", "-1"},
    {"neither_cutter_nor_internal_print", 11, "GENERALPRINTOPTION", {}, 19, "0", "TURNOFFAUTOCUTTER", "0"},
    {"confirmation_before_reset_is_lost", 13, "REPORTOPTIONS", {{"CONFIRMBEFOREZRESET", yes()}}, 2, "01", "CONFIRMBEFOREZRESET", "False"},
    {"tax_totals_bring_the_confirmation", 13, "REPORTOPTIONS", {{"OMITTAXTOTALS", yes()}}, 2, "04", "CONFIRMBEFOREZRESET", "True"},
    {"tips_in_ten_thousandths", 14, "TIMEKEEPING", {{"TIPREPORTING", Value::number(0.125)}}, 3, "001250", "TIPREPORTING", "0.125"},
    {"overtime_in_tenths", 14, "TIMEKEEPING", {{"OVERTIMEFACTOR", Value::number(1.5)}}, 4, "15", "OVERTIMEFACTOR", "1.5"},
    {"negative_sales_take_the_detail_flag", 36, "EJDETAILPRINT", {{"NEGATIVESALETODETAIL", yes()}}, 3, "40", "NEGATIVESALESTOEJ", "True"},
    {"detail_flag_is_never_read", 36, "EJDETAILPRINT", {{"NEGATIVESALETODETAIL", yes()}}, 3, "40", "NEGATIVESALETODETAIL", "null"},
    {"added_points_give_way_to_the_removed_card", 36, "EJDETAILPRINT", {{"EJADDPOINT", yes()}}, 4, "01", "EJADDPOINT", "False"},
};
// clang-format on

TEST(OptionLayoutsTest, SendsAndReadsEachOptionItsOwnWay)
{
    for (const Travel& travel : travels) {
        SCOPED_TRACE(travel.name);
        Shop shop;
        auto fields = travel.stored;
        fields.emplace_back("ID", whole(1));
        shop.add(travel.table, fields);
        const QByteArray line = shop.exported(travel.file);
        EXPECT_EQ(line.split(',').value(travel.column - 1).toStdString(), travel.sent);
        shop.import(travel.file, line);
        EXPECT_EQ(shop.column(travel.table, travel.field), travel.back);
    }
}

TEST(OptionLayoutsTest, ReadsWhatOnlyARegisterSends)
{
    struct Read {
        int file;
        const char* table;
        const char* text;
        const char* field;
        const char* stored;
    };
    const Read cases[] = {
        {3, "GENERALFUNCTIONS", "00,00,00,00,00,00,16", "STARTCURSOR", "True"},
        {3, "GENERALFUNCTIONS", "00,00,00,00,00,00,16", "EMPLOYEESIGNON", "3"},
        {3, "GENERALFUNCTIONS", "\r\n", "GLOBALENTRY", "0"},
        {6, "TRAININGMODEOPTIONS", "00,,,20", "stockisdeducted", "True"},
        {8, "TRACKINGFILEOPTIONS", "00,05", "TRACK4HOLDS3", "True"},
        {10, "VALIDSUBTOTALOPTIONS", "00,05", "VALIDATIONPORT", "5"},
        {11, "GENERALPRINTOPTION", "00,00,00,30", "DATEPRINT", "3"},
        {11, "GENERALPRINTOPTION", "00,00,00,70,00,00,", "HOMESYMBOL", "48"},
    };
    for (const Read& read : cases) {
        Shop shop;
        shop.import(read.file, read.text);
        EXPECT_EQ(shop.column(read.table, read.field), read.stored) << read.text;
    }
}

TEST(OptionLayoutsTest, SendsTheWholeRecordOfEachFile)
{
    // Columns and length of a line: a register takes a record as a whole or not at all.
    struct Shape {
        int file;
        const char* table;
        int columns;
        int length;
    };
    const Shape shapes[] = {
        {3, "GENERALFUNCTIONS", 61, 322},    {4, "TAXOPTIONS", 4, 71},
        {5, "CASHDRAWEROPTIONS", 5, 82},     {6, "TRAININGMODEOPTIONS", 5, 77},
        {7, "LEVELMODIFIEROPTIONS", 6, 77},  {8, "TRACKINGFILEOPTIONS", 14, 165},
        {9, "KITCHENPRINTOPTIONS", 8, 81},   {10, "VALIDSUBTOTALOPTIONS", 3, 68},
        {11, "GENERALPRINTOPTION", 24, 120}, {12, "REPORTPRINTINGOPTIONS", 4, 69},
        {13, "REPORTOPTIONS", 6, 75},        {14, "TIMEKEEPING", 5, 80},
        {36, "EJDETAILPRINT", 7, 74},
    };
    for (const Shape& shape : shapes) {
        Shop shop;
        shop.add(shape.table, {{"ID", whole(1)}});
        const QByteArray line = shop.exported(shape.file);
        EXPECT_EQ(line.split(',').size(), shape.columns) << shape.file;
        EXPECT_EQ(line.size(), shape.length) << shape.file;
    }
}

} // namespace
} // namespace norvane::records
