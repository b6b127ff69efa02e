// The number boxes under a user's fingers.
#include "ui/DecimalBox.h"
#include "ui/IntegerBox.h"

#include <gtest/gtest.h>
#include <QSignalSpy>
#include <QTest>

namespace norvane::ui
{
namespace
{

/// What the box shows after @p keys were typed over its content and the box was left by Enter.
QString typed(NumberBox& box, const char* keys)
{
    box.selectAll();
    QTest::keyClicks(&box, QString::fromLatin1(keys));
    QTest::keyClick(&box, Qt::Key_Return);
    return box.text();
}

TEST(NumberBoxTest, TypingRules)
{
    IntegerBox whole;
    DecimalBox money;
    const struct {
        const char* keys;
        const char* whole;
        const char* money;
    } cases[] = {{"007", "7", "7.00"},
                 {"12.5", "125", "12.50"},
                 {"12,5", "125", "12.50"},
                 {"-3", "3", "3.00"},
                 {"1.2.3", "123", "1.23"},
                 {"1e3x", "13", "13.00"},
                 {"0.12345", "12345", "0.12345"},
                 {".5", "5", "0.50"}};
    for (const auto& [keys, wholeText, moneyText] : cases) {
        EXPECT_EQ(typed(whole, keys), QLatin1String(wholeText)) << keys;
        EXPECT_EQ(typed(money, keys), QLatin1String(moneyText)) << keys;
    }
}

TEST(NumberBoxTest, AnEmptiedBoxIsZero)
{
    IntegerBox box;
    EXPECT_EQ(box.text(), QStringLiteral("0"));
    box.setValue(Decimal(42, 0));
    box.clear();
    EXPECT_EQ(box.value(), Decimal());
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.text(), QStringLiteral("0"));
}

TEST(NumberBoxTest, ValuesSetByProgramComeBackAndRaiseNothing)
{
    DecimalBox box;
    QSignalSpy edited(&box, &NumberBox::valueEdited);
    QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
    box.setMaximum(Decimal(10, 0));
    for (const Decimal value :
         {Decimal(1234, 2), Decimal(-5, 1), Decimal(12345, 4), Decimal(999999999999999999, 0)}) {
        box.setValue(value);
        EXPECT_EQ(box.value(), value) << value.text();
    }
    EXPECT_EQ(edited.count() + exceeded.count(), 0);
    box.setDecimals(0);
    box.setValue(Decimal(7, 0));
    EXPECT_EQ(box.text(), QStringLiteral("7"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(edited.count(), 1);
}

TEST(NumberBoxTest, TheMaximumIsReportedOnceForEachEntryAboveIt)
{
    DecimalBox box;
    QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
    QObject::connect(&box, &NumberBox::maximumExceeded, &box, [&] {
        box.setValue({});
        box.selectAll();
    });
    box.setMaximum(Decimal(9999, 2));
    EXPECT_EQ(typed(box, "99.99"), QStringLiteral("99.99"));
    EXPECT_EQ(typed(box, "0099.990"), QStringLiteral("99.99"));
    EXPECT_EQ(exceeded.count(), 0);
    EXPECT_EQ(typed(box, "99.991"), QStringLiteral("0.00"));
    EXPECT_EQ(exceeded.count(), 1);
    EXPECT_EQ(typed(box, "1005"), QStringLiteral("5.00")) << "the next digit begins a new entry";
    EXPECT_EQ(exceeded.count(), 2);
}

TEST(NumberBoxTest, AWholeNumberBoxWithoutMaximumTakesWhatCanBeSaved)
{
    IntegerBox box;
    QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
    typed(box, "2147483647");
    EXPECT_EQ(exceeded.count(), 0);
    typed(box, "2147483648");
    EXPECT_EQ(exceeded.count(), 1);
}

} // namespace
} // namespace norvane::ui
