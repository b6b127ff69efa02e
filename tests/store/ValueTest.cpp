// Values as text, number and truth, and what fields make of the values that they are given.
#include "tests/store/StoreFolder.h"

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
const struct {
    const char* field;
    Value given;
    Value held;  ///< when it converts
    int failure; ///< 0 when it does
} conversions[] = {
    {"GROUPNO", text(" 42 "), Value::whole(42), 0},
    {"GROUPNO", text("2.5"), Value::whole(2), 0},
    {"GROUPNO", Value::number(3.5), Value::whole(4), 0},
    {"GROUPNO", Value::yesNo(true), Value::whole(-1), 0},
    {"GROUPNO", text("   "), Value(), 0},
    {"GROUPNO", text("12a"), {}, 3421},
    {"GROUPNO", text("2147483648"), {}, 3421},
    {"GROUPNO", Value::number(1e300), {}, 3421},
    {"GROUPNO", day, {}, 3421},
    {"ROUNDON%", text("12.50"), Value::number(12.5), 0},
    {"rOuNdOn%", text("-1e3"), Value::number(-1000), 0},
    {"ROUNDON%", text("inf"), {}, 3421},
    {"ROUNDON%", Value::number(std::numeric_limits<double>::quiet_NaN()), {}, 3421},
    {"#OfCondiments", longDigits, longDigits, 0},
    {"#OfCondiments", text(" 0012 "), text("0012"), 0},
    {"#OfCondiments", Value::whole(9007199254740993), text("9007199254740993"), 0},
    {"#OfCondiments", text("-0012"), text("-0012"), 0},
    {"#OfCondiments", text("-"), {}, 3421},
    {"#OfCondiments", text("1x"), {}, 3421},
    {"TAX/x", Value::whole(7), Value::yesNo(true), 0},
    {"TAX/x", text("Yes"), Value::yesNo(true), 0},
    {"TAX/x", text("0"), Value::yesNo(false), 0},
    {"TAX/x", text("maybe"), {}, 3421},
    {"OPENEURO&LOCALDRAWER", text("1/2/2003"), day, 0},
    {"OPENEURO&LOCALDRAWER", text("2003-02-01"), day, 0},
    {"OPENEURO&LOCALDRAWER", text("31/2/2003"), {}, 3421},
    {"OPENEURO&LOCALDRAWER", Value::date(QDate()), Value(), 0},
    {"DESCRIPTION", text("Crème brûlée äöü"), text("Crème brûlée äöü"), 0},
    {"DESCRIPTION", text("12345678901234567"), {}, 3163},
    {"DESCRIPTION", text("Cola  "), text("Cola  "), 0},
    {"DESCRIPTION", text(""), text(""), 0},
    {"DESCRIPTION", Value::number(12.50), text("12.5"), 0},
};

/// What was stored is read by another connection, so that it is the file that tells it.
TEST(Value, IsConvertedOrRefusedByItsField)
{
    const StoreFolder folder;
    Database database(folder.path());
    auto items = database.openTable(u"items"_s);
    for (const auto& row : conversions) {
        const QString field = QString::fromUtf8(row.field);
        database.execute(u"delete * from items"_s);
        items.addNew();
        EXPECT_EQ(failureOf([&] { items.setValue(field, row.given); }), row.failure) << row.given.toUtf8();
        items.update();
        Database other(folder.path());
        const auto stored = other.openTable(u"items"_s).value(field);
        EXPECT_EQ(stored, row.failure == 0 ? row.held : Value()) << row.field << ' ' << stored.toUtf8();
    }
}

} // namespace
} // namespace norvane::store::test
