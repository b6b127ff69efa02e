// Values as text, number and truth, and what fields make of the values that they are given.
#include "tests/store/StoreFolder.h"

#include <limits>

namespace norvane::store::test
{
namespace
{

struct Reading {
    const char* what;
    Value value;
    const char* text;
    double number;
    bool isTrue;
};

class ValueReading : public testing::TestWithParam<Reading>
{
};

TEST_P(ValueReading, GivesTextNumberAndTruth)
{
    const auto& reading = GetParam();
    EXPECT_EQ(reading.value.toUtf8(), reading.text);
    EXPECT_EQ(reading.value.toText(), QString::fromUtf8(reading.text));
    EXPECT_EQ(reading.value.toNumber(), reading.number);
    EXPECT_EQ(reading.value.isTrue(), reading.isTrue);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ValueReading,
    testing::Values(Reading{"null", Value(), "", 0, false},
                    Reading{"yes", Value::yesNo(true), "True", -1, true},
                    Reading{"no", Value::yesNo(false), "False", 0, false},
                    Reading{"one is not yes", Value::whole(1), "1", 1, false},
                    Reading{"minus one", Value::whole(-1), "-1", -1, true},
                    Reading{"fraction", Value::number(0.1), "0.1", 0.1, false},
                    Reading{"whole double", Value::number(12), "12", 12, false},
                    Reading{"text with a number first", text(" 1.5x"), " 1.5x", 1.5, false},
                    Reading{"plain number text", text("12.34"), "12.34", 12.34, false},
                    Reading{"no number", text("inf"), "inf", 0, false},
                    Reading{"day", Value::date(QDate(2003, 2, 1)), "01/02/2003", 0, false}),
    [](const auto& test) { return "case" + std::to_string(test.index); });

struct Storing {
    const char* field;
    Value given;
    Value held;  ///< when it converts
    int failure; ///< 0 when it does
};

class FieldStoring : public testing::TestWithParam<Storing>
{
};

/// What was stored is read by another connection, so that it is the file that tells it.
TEST_P(FieldStoring, ConvertsOrRefuses)
{
    const auto& storing = GetParam();
    const QString field = QString::fromUtf8(storing.field);
    const StoreFolder folder;
    Database database(folder.path());
    auto items = database.openTable(QStringLiteral("items"));
    items.addNew();
    EXPECT_EQ(failureOf([&] { items.setValue(field, storing.given); }), storing.failure)
        << storing.given.toUtf8();
    items.update();
    Database other(folder.path());
    const auto held = other.openTable(QStringLiteral("items")).value(field);
    EXPECT_EQ(held, storing.failure == 0 ? storing.held : Value()) << held.toUtf8();
}

const Value longDigits = text("123456789012345678901234567890");
const Value day = Value::date(QDate(2003, 2, 1));

INSTANTIATE_TEST_SUITE_P(
    Fields, FieldStoring,
    testing::Values(
        Storing{"GROUPNO", text(" 42 "), Value::whole(42), 0},
        Storing{"GROUPNO", text("2.5"), Value::whole(2), 0},
        Storing{"GROUPNO", Value::number(3.5), Value::whole(4), 0},
        Storing{"GROUPNO", Value::yesNo(true), Value::whole(-1), 0},
        Storing{"GROUPNO", text("   "), Value(), 0}, Storing{"GROUPNO", text(""), Value(), 0},
        Storing{"GROUPNO", text("12a"), {}, 3421}, Storing{"GROUPNO", text("2147483648"), {}, 3421},
        Storing{"GROUPNO", Value::number(1e300), {}, 3421}, Storing{"GROUPNO", day, {}, 3421},
        Storing{"ROUNDON%", text("12.50"), Value::number(12.5), 0},
        Storing{"rOuNdOn%", text("-1e3"), Value::number(-1000), 0},
        Storing{"ROUNDON%", text("inf"), {}, 3421},
        Storing{"ROUNDON%", Value::number(std::numeric_limits<double>::quiet_NaN()), {}, 3421},
        Storing{"#OfCondiments", longDigits, longDigits, 0},
        Storing{"#OfCondiments", text(" 0012 "), text("0012"), 0},
        Storing{"#OfCondiments", Value::whole(9007199254740993), text("9007199254740993"), 0},
        Storing{"#OfCondiments", Value::number(12), text("12"), 0},
        Storing{"#OfCondiments", text("1x"), {}, 3421}, Storing{"#OfCondiments", text("  "), Value(), 0},
        Storing{"TAX/x", Value::whole(7), Value::yesNo(true), 0},
        Storing{"TAX/x", text("Yes"), Value::yesNo(true), 0},
        Storing{"TAX/x", text("0"), Value::yesNo(false), 0}, Storing{"TAX/x", text("maybe"), {}, 3421},
        Storing{"OPENEURO&LOCALDRAWER", text("1/2/2003"), day, 0},
        Storing{"OPENEURO&LOCALDRAWER", text("2003-02-01"), day, 0},
        Storing{"OPENEURO&LOCALDRAWER", text("31/2/2003"), {}, 3421},
        Storing{"OPENEURO&LOCALDRAWER", Value::date(QDate()), Value(), 0},
        Storing{"DESCRIPTION", text("Crème brûlée äöü"), text("Crème brûlée äöü"), 0},
        Storing{"DESCRIPTION", text("12345678901234567"), {}, 3163},
        Storing{"DESCRIPTION", text("Cola  "), text("Cola  "), 0},
        Storing{"DESCRIPTION", text(""), text(""), 0},
        Storing{"DESCRIPTION", Value::number(12.50), text("12.5"), 0},
        Storing{"DESCRIPTION", Value::whole(-7), text("-7"), 0}),
    [](const auto& test) { return "case" + std::to_string(test.index); });

} // namespace
} // namespace norvane::store::test
