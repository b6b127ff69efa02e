// Values as text, number and truth, and what fields make of the values that they are given.
#include "tests/store/StoreFolder.h"
#include "tests/support/RowName.h"

#include <limits>

namespace norvane::store::test
{
namespace
{

const struct {
    Value value;
    const char* text;
    double number;
    bool isTrue;
} readings[] = {{Value(), "", 0, false},
                {Value::yesNo(true), "True", -1, true},
                {Value::yesNo(false), "False", 0, false},
                {Value::whole(1), "1", 1, false}, // one is not yes
                {Value::whole(-1), "-1", -1, true},
                {Value::number(0.1), "0.1", 0.1, false},
                {Value::number(1e15), "1000000000000000", 1e15, false},
                {Value::number(-1e-7), "-0.0000001", -1e-7, false},
                {Value::number(-0.0), "0", 0, false},
                {text(" 1.5x"), " 1.5x", 1.5, false},
                {text("inf"), "inf", 0, false},
                {Value::date(QDate(2003, 2, 1)), "01/02/2003", 0, false}};

TEST(Value, GivesTextNumberAndTruth)
{
    for (const auto& row : readings) {
        EXPECT_EQ(row.value.toUtf8(), row.text);
        EXPECT_EQ(row.value.toText(), QString::fromUtf8(row.text));
        EXPECT_EQ(row.value.toNumber(), row.number) << row.text;
        EXPECT_EQ(row.value.isTrue(), row.isTrue) << row.text;
    }
}

const Value longDigits = text("123456789012345678901234567890");
const Value day = Value::date(QDate(2003, 2, 1));
struct Conversion {
    const char* name;
    const char* field;
    Value given;
    Value held;  ///< when it converts
    int failure; ///< 0 when it does
};
const Conversion conversions[] = {
    {"whole_number_from_text", "GROUPNO", text(" 42 "), Value::whole(42), 0},
    {"whole_number_from_a_text_with_a_half", "GROUPNO", text("2.5"), Value::whole(2), 0},
    {"half_to_even", "GROUPNO", Value::number(3.5), Value::whole(4), 0},
    {"yes_as_a_whole_number", "GROUPNO", Value::yesNo(true), Value::whole(-1), 0},
    {"blanks_as_a_whole_number", "GROUPNO", text("   "), Value(), 0},
    {"letters_in_a_whole_number", "GROUPNO", text("12a"), {}, 3421},
    {"whole_number_too_large", "GROUPNO", text("2147483648"), {}, 3421},
    {"whole_number_far_too_large", "GROUPNO", Value::number(1e300), {}, 3421},
    {"day_as_a_whole_number", "GROUPNO", day, {}, 3421},
    {"number_from_text", "ROUNDON%", text("12.50"), Value::number(12.5), 0},
    {"number_with_an_exponent", "rOuNdOn%", text("-1e3"), Value::number(-1000), 0},
    {"infinity", "ROUNDON%", text("inf"), {}, 3421},
    {"not_a_number", "ROUNDON%", Value::number(std::numeric_limits<double>::quiet_NaN()), {}, 3421},
    {"long_digits", "#OfCondiments", longDigits, longDigits, 0},
    {"digits_keep_their_zeros", "#OfCondiments", text(" 0012 "), text("0012"), 0},
    {"digits_of_a_large_whole_number", "#OfCondiments", Value::whole(9007199254740993),
     text("9007199254740993"), 0},
    {"digits_below_zero", "#OfCondiments", text("-0012"), text("-0012"), 0},
    {"sign_without_digits", "#OfCondiments", text("-"), {}, 3421},
    {"letters_in_digits", "#OfCondiments", text("1x"), {}, 3421},
    {"flag_from_a_whole_number", "TAX/x", Value::whole(7), Value::yesNo(true), 0},
    {"flag_from_yes", "TAX/x", text("Yes"), Value::yesNo(true), 0},
    {"flag_from_zero", "TAX/x", text("0"), Value::yesNo(false), 0},
    {"flag_from_another_word", "TAX/x", text("maybe"), {}, 3421},
    {"day_from_text", "OPENEURO&LOCALDRAWER", text("1/2/2003"), day, 0},
    {"day_in_the_order_of_the_standard", "OPENEURO&LOCALDRAWER", text("2003-02-01"), day, 0},
    {"day_that_does_not_exist", "OPENEURO&LOCALDRAWER", text("31/2/2003"), {}, 3421},
    {"empty_day", "OPENEURO&LOCALDRAWER", Value::date(QDate()), Value(), 0},
    {"text_of_many_letters", "DESCRIPTION", text("Crème brûlée äöü"), text("Crème brûlée äöü"), 0},
    {"text_too_long", "DESCRIPTION", text("12345678901234567"), {}, 3163},
    {"text_keeps_its_blanks", "DESCRIPTION", text("Cola  "), text("Cola  "), 0},
    {"empty_text", "DESCRIPTION", text(""), text(""), 0},
    {"text_from_a_number", "DESCRIPTION", Value::number(12.50), text("12.5"), 0},
};

class ValueOfAField : public testing::TestWithParam<Conversion>
{
};

/// Another connection reads what was stored, so that the file itself is checked.
TEST_P(ValueOfAField, IsConvertedOrRefused)
{
    const Conversion& row = GetParam();
    const QString field = QString::fromUtf8(row.field);
    const StoreFolder folder;
    Database database(folder.path());
    auto items = database.openTable(u"items"_s);
    items.addNew();
    EXPECT_EQ(failureOf([&] { items.setValue(field, row.given); }), row.failure);
    items.update();
    Database other(folder.path());
    const auto rows = other.openTable(u"items"_s);
    EXPECT_EQ(rows.value(field), row.failure == 0 ? row.held : Value()) << rows.value(field).toUtf8();
}

INSTANTIATE_TEST_SUITE_P(Fields, ValueOfAField, testing::ValuesIn(conversions),
                         norvane::test::rowName<Conversion>);

} // namespace
} // namespace norvane::store::test
