// The boxes and lists of the screens under a user's fingers.
#include "tests/support/FormTest.h"
#include "ui/DecimalBox.h"
#include "ui/IntegerBox.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

namespace norvane::ui
{
namespace
{

/// What the box shows after @p keys were typed over its content and the box was left by Enter.
QString typed(NumberBox& box, const char* keys)
{
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, QString::fromLatin1(keys));
    QTest::keyClick(&box, Qt::Key_Return);
    return box.text();
}

TEST(NumberBox, TypedCharactersFollowTheRules)
{
    IntegerBox whole;
    DecimalBox money;
    constexpr const char* cases[][3] = {{"007", "7", "7.00"},           {"12,5", "125", "12.50"},
                                        {"1.2.3", "123", "1.23"},       {"-1e3x", "13", "13.00"},
                                        {".12345", "12345", "0.12345"}, {"", "0", "0.00"}};
    for (const auto& [keys, wholeText, moneyText] : cases) {
        EXPECT_EQ(typed(whole, keys), QLatin1String(wholeText)) << keys;
        EXPECT_EQ(typed(money, keys), QLatin1String(moneyText)) << keys;
    }
}

TEST(NumberBox, ValuesSetByProgramAreKeptWithoutASignal)
{
    DecimalBox box;
    QSignalSpy edited(&box, &NumberBox::valueEdited);
    QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
    box.setMaximum(Decimal(10, 0));
    for (const Decimal value : {Decimal(-5, 1), Decimal(12345, 4), Decimal(999999999999999999, 0)}) {
        box.setValue(value);
        EXPECT_EQ(box.value(), value) << value.text();
    }
    EXPECT_EQ(edited.count() + exceeded.count(), 0);
    box.setDecimals(0);
    box.setValue(Decimal(7, 0));
    EXPECT_EQ(box.text(), u"7"_s);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(edited.count(), 1);
}

TEST(NumberBox, InputFromAScreenReaderFollowsTheSameRules)
{
    DecimalBox box;
    box.setMaximum(Decimal(9999, 2));
    box.setValue(Decimal(150, 2));
    QSignalSpy edited(&box, &NumberBox::valueEdited);
    QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
    const auto give = [&box](const QString& text) {
        auto& editing = *QAccessible::queryAccessibleInterface(&box)->editableTextInterface();
        editing.replaceText(0, static_cast<int>(box.text().size()), text);
        return box.text();
    };
    for (const auto& given : {u"2,90"_s, u"-3"_s, u"3 euro"_s})
        EXPECT_EQ(give(given), u"2.90"_s);
    EXPECT_EQ(edited.count() + exceeded.count(), 1) << "the others were refused";
    EXPECT_EQ(give(u"100"_s), u"0.00"_s);
    EXPECT_EQ(exceeded.count(), 1);
}

TEST(NumberBox, NamesItsRangeAndShowsItAtARefusedKey)
{
    DecimalBox money;
    EXPECT_EQ(money.toolTip(), u"From 0 to 999999999999999999"_s);
    money.setMaximum(Decimal(9999, 2));
    money.setDecimals(3);
    EXPECT_EQ(money.toolTip(), u"From 0 to 99.990"_s);
    money.show();
    for (const char* refused : {"-", "x"}) {
        QToolTip::hideText();
        QTest::keyClicks(&money, QString::fromLatin1(refused));
        EXPECT_EQ(QToolTip::text(), money.toolTip()) << refused;
    }
}

TEST(NumberBox, APriceTypedAfterAClickOrADoubleClickReplacesTheFormerOne)
{
    QWidget form;
    DecimalBox first(&form);
    DecimalBox price(&form);
    price.move(0, 50);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    for (const auto click : {QTest::MouseClick, QTest::MouseDClick}) {
        first.setFocus();
        price.setValue(Decimal(320, 2));
        QTest::mouseEvent(click, &price, Qt::LeftButton, {}, {});
        QTest::keyClicks(&price, u"2.90"_s);
        EXPECT_EQ(price.text(), u"2.90"_s);
    }
    QTest::mouseClick(&price, Qt::LeftButton);
    EXPECT_FALSE(price.hasSelectedText()) << "the next click sets the cursor";
}

TEST(NumberBox, AnEntryAboveTheMaximumIsReportedOnceAndEmptied)
{
    IntegerBox whole;
    DecimalBox money;
    DecimalBox limited;
    limited.setMaximum(Decimal(9999, 2));
    // Without a maximum, what the box can hold is the largest.
    const std::tuple<NumberBox&, const char*, QString> cases[] = {
        {limited, "0099.990", u"99.99"_s},
        {limited, "99.991", u"0.00"_s},
        {money, "000999999999999999999", u"999999999999999999.00"_s},
        {money, "1234567890123456789", u"0.00"_s},
        {money, "1.123456789012345678", u"0.00"_s},
        {whole, "2147483647", u"2147483647"_s},
        {whole, "2147483648", u"0"_s}};
    for (const auto& [box, keys, kept] : cases) {
        const QSignalSpy exceeded(&box, &NumberBox::maximumExceeded);
        EXPECT_EQ(typed(box, keys), kept);
        EXPECT_EQ(exceeded.count(), kept.startsWith(u'0') ? 1 : 0) << keys;
    }
    QObject::connect(&limited, &NumberBox::maximumExceeded, &limited, &QLineEdit::selectAll);
    EXPECT_EQ(typed(limited, "1005"), u"5.00"_s) << "the next digit begins a new entry";
}

TEST(TextBox, TypingStopsAtTheLimitButAStoredTextIsKept)
{
    TextBox box;
    box.setLimit(4);
    box.showText(u"Cocktails"_s);
    EXPECT_EQ(box.text(), u"Cocktails"_s);
    for (const auto& [limit, kept] : {std::pair{4, u"Drin"_s}, {0, u"Drinks"_s}}) {
        box.setLimit(limit);
        box.showText({});
        QTest::keyClicks(&box, u"Drinks"_s);
        EXPECT_EQ(box.text(), kept);
        EXPECT_EQ(QToolTip::text(), u"At most 4 characters"_s);
    }
}

TEST(TextBox, ATimeOfDayEndsAtItsLargest)
{
    TextBox box;
    box.setLimit(4);
    box.setLargest(2400);
    const QSignalSpy exceeded(&box, &TextBox::maximumExceeded);
    EXPECT_EQ(box.toolTip(), u"From 0000 to 2400"_s);
    for (const auto& [keys, kept, times] :
         {std::tuple{"2400", "2400", 0}, {"0930", "0930", 0}, {"2401", "0000", 1}}) {
        box.selectAll();
        QTest::keyClicks(&box, QString::fromLatin1(keys));
        EXPECT_EQ(box.text(), QLatin1String(kept));
        EXPECT_EQ(exceeded.count(), times) << keys;
    }
}

TEST(TextBox, TypingIntoAPaddedTextReplacesItsBlanks)
{
    TextBox box;
    box.setLimit(8);
    box.showText(u"Ale     "_s);
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClicks(&box, u"pp"_s);
    EXPECT_EQ(box.text(), u"Apple   "_s);
    QTest::keyClicks(&box, u"12345"_s);
    EXPECT_EQ(box.text(), u"App123le"_s) << "no letter is lost";
    box.showText(u"Ale     "_s);
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClicks(&box, u"s 1"_s);
    EXPECT_EQ(box.text(), u"Ales 1  "_s) << "the end is after the text, not after its blanks";
}

const QString tooLong = u"At most 8 characters. Select the text first to replace it."_s;
const QString cutOff = u"Only the first 8 characters were pasted"_s;

/// The text of a box of 8 characters, the selected part, what is pasted; text and tip afterwards.
const struct {
    QString former;
    std::pair<int, int> selection;
    QString pasted;
    QString kept;
    QString tip;
} pastes[] = {
    {u"Ale"_s, {3, 0}, u" 0.5l\r\n"_s, u"Ale 0.5l"_s, {}},
    {u"Ale     "_s, {3, 0}, u"s"_s, u"Ales    "_s, {}},
    {u"Orange"_s, {6, 0}, u"Latte"_s, u"Orange"_s, tooLong},
    {u"Orange"_s, {0, 6}, u"Latte"_s, u"Latte"_s, {}},
    {u"Orange"_s, {3, 0}, u"Latte macchiato"_s, u"Latte ma"_s, cutOff},
    {u"Orange"_s, {0, 3}, u"Latte macchi\u0142to"_s, u"Latte ma"_s, cutOff},
    {u"Orange"_s, {0, 3}, u"\u0141atte macchiato"_s, u"Orange"_s, {}},
};

TEST(TextBox, APastedTextNeverJoinsAPartOfTheFormerOne)
{
    TextBox box;
    box.setLimit(8);
    box.show();
    for (const auto& [former, selection, pasted, kept, tip] : pastes) {
        box.showText(former);
        box.setSelection(selection.first, selection.second);
        QApplication::clipboard()->setText(pasted);
        const QString before = QToolTip::text();
        QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(box.text(), kept) << pasted.toStdString();
        EXPECT_EQ(QToolTip::text(), tip.isEmpty() ? before : tip) << pasted.toStdString();
        if (kept != former) {
            box.undo();
            EXPECT_EQ(box.text().trimmed(), former.trimmed());
        }
    }
    box.showText(u"Orange"_s);
    QApplication::clipboard()->setText(u"Latte"_s);
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {5, 5}, box.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&box, &rightClick);
    for (QAction* const action : QApplication::activePopupWidget()->actions()) {
        if (action->text().contains(u"Paste"_s))
            action->trigger();
    }
    EXPECT_EQ(QToolTip::text(), tooLong);
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(box.text(), u"Orange"_s) << "from the menu as well";
}

TEST(TextBox, RefusesWhatTheFieldCannotHold)
{
    using enum TextBox::Characters;
    for (const auto& [characters, typed, kept] :
         {std::tuple{Register, u"Caf\u00e9 5\u20ac \u2605\u0142\u201cok\u201d"_s,
                     u"Caf\u00e9 5\u20ac \u201cok\u201d"_s},
          {Digits, u"1a-2 3\u0663"_s, u"123"_s},
          {Hexadecimal, u"0Ag f9.-x"_s, u"0Af9"_s}}) {
        TextBox box;
        box.setCharacters(characters);
        for (const QChar character : typed) // QTest's own key clicks know no keys beyond Latin-1
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString(character), Qt::NoModifier);
        EXPECT_EQ(box.text(), kept);
        QApplication::clipboard()->setText(typed);
        box.paste();
        EXPECT_EQ(box.text(), kept) << "pasted";
    }
}

TEST(ValueList, TheValueSelectsItsRowAndIsKeptAsGiven)
{
    ValueList list;
    const QSignalSpy edited(&list, &ValueList::valueEdited);
    EXPECT_TRUE(list.value().isNull());
    EXPECT_EQ(list.currentIndex(), -1);
    list.setValue(u"02"_s);
    list.setRows({{u"0"_s, u"Not used"_s}, {u"1"_s, u"Wines"_s}, {u"2"_s, u"Beers"_s}});
    EXPECT_EQ(list.currentText(), u"2  Beers"_s);
    EXPECT_EQ(list.value(), u"02"_s);
    list.setValue(u"7"_s);
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.value(), u"7"_s);
    list.setValueColumn(1);
    list.setValue(u"Wines"_s);
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(edited.count(), 0);
}

TEST(ValueList, TheWheelScrollsTheScreenAndTheOpenListIsAsWideAsItsColumns)
{
    ValueList list;
    list.setRows({{u"1"_s, u"Wines"_s}, {u"2"_s, u"Beers"_s}});
    list.setValue(u"2"_s);
    QWheelEvent turn({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&list, &turn);
    EXPECT_EQ(list.value(), u"2"_s);
    EXPECT_FALSE(turn.isAccepted());
    list.resize(40, 24);
    list.setColumnWidths({0, 150});
    EXPECT_EQ(list.currentText(), u"Beers"_s) << "columns of no width are hidden";
    list.show();
    list.showPopup();
    EXPECT_GE(list.view()->width(), 150);
    QTest::keyClick(list.view(), Qt::Key_Up);
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_EQ(list.value(), u"1"_s);
}

} // namespace
} // namespace norvane::ui
