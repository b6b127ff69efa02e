// See CellInput.h.
#include "screens/table/CellInput.h"

#include "platform/RuntimeFailure.h"
#include "platform/Windows1252.h"
#include "screens/FieldContents.h"
#include "screens/RegisterRules.h"
#include "store/engine/FieldConversion.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

CellInput refused(const QString& why)
{
    return {std::nullopt, why};
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isHexDigit(QChar character)
{
    const QChar small = character.toLower();
    return isDigit(character) || (small >= u'a' && small <= u'f');
}

/// What a save would store of the control's content, converted as the field does.
CellInput stored(const TableColumn& column, const store::Value& content)
{
    const BoundField bound{column.kind(), column.field.name, false, content};
    try {
        store::Value value = valueToStore(bound, column.field);
        store::convertToField(value, column.field, column.label);
        if (value.isNull() && column.field.required)
            return refused(u"must not be empty"_s);
        return {value, {}};
    } catch (const RuntimeFailure& failure) {
        return refused(failure.failure() == Failure::TextTooLong
                           ? u"has more than %1 characters"_s.arg(column.field.size)
                           : u"does not fit this column"_s);
    }
}

/// @return empty if all characters can be typed into the box.
QString wrongCharacters(const ControlDefinition& control, const QString& text)
{
    if (control.characters.compare("NUMERIC"_L1, Qt::CaseInsensitive) == 0)
        return std::ranges::all_of(text, isDigit) ? QString() : u"has other characters than digits"_s;
    if (control.isHexadecimal) {
        return std::ranges::all_of(text, isHexDigit) ? QString()
                                                     : u"has other characters than 0 to 9, A to F"_s;
    }
    return fitsWindows1252(text) ? QString() : u"has characters that registers do not have"_s;
}

/// Cells of a spreadsheet come with a line end.
CellInput textInput(const TableColumn& column, QString text)
{
    while (text.endsWith(u'\n') || text.endsWith(u'\r'))
        text.chop(1);
    const ControlDefinition& control = column.control;
    if (text.contains(u'\n') || text.contains(u'\r') || text.contains(u'\t'))
        return refused(u"has more than one line"_s);
    if (const QString wrong = wrongCharacters(control, text); !wrong.isEmpty())
        return refused(wrong);
    if (control.maximum && Decimal(text.size(), 0) > *control.maximum)
        return refused(u"has more than %1 characters"_s.arg(control.maximum->toWhole()));
    if (control.largest && text.toInt() > *control.largest)
        return refused(u"is more than %1"_s.arg(*control.largest));
    return stored(column, store::Value::text(text));
}

/// The largest number of the box on the screen.
Decimal largestOf(const TableColumn& column)
{
    constexpr Decimal largestWhole(std::numeric_limits<std::int32_t>::max(), 0);
    constexpr Decimal largestDecimal(std::numeric_limits<std::int64_t>::max() / 10, 0);
    return column.control.maximum.value_or(column.kind() == ControlKind::Integer ? largestWhole
                                                                                 : largestDecimal);
}

CellInput numberInput(const TableColumn& column, QString text)
{
    text = text.trimmed().replace(u',', u'.');
    if (text.isEmpty())
        return cellInput(column, Decimal());
    const auto points = text.count(u'.');
    if (std::ranges::count_if(text, isDigit) + points != text.size() || points > 1 || text == u"."_s)
        return refused(u"is not a number from 0 up"_s);
    const auto number = Decimal::tryParse(text.toStdString());
    return number ? cellInput(column, *number)
                  : refused(u"has more than %1 digits"_s.arg(Decimal::mostDigits));
}

/// The number of an entry, what the list shows of it, or what follows the number there.
CellInput listInput(const TableColumn& column, const QString& text)
{
    const QString sought = text.simplified();
    const auto number = Decimal::tryParse(sought.toStdString());
    const auto isMeant = [&](const ListEntry& entry) {
        const QString shown = entry.shown.simplified();
        return (number && entry.value.toDecimal() == *number) ||
               shown.compare(sought, Qt::CaseInsensitive) == 0 ||
               shown.section(u' ', 1).compare(sought, Qt::CaseInsensitive) == 0;
    };
    const auto meant = std::ranges::find_if(column.entries, isMeant);
    if (sought.isEmpty() || meant == column.entries.end())
        return refused(u"is not in the list"_s);
    if (std::find_if(std::next(meant), column.entries.end(), isMeant) != column.entries.end() && !number)
        return refused(u"is in the list more than once"_s);
    return stored(column, meant->value);
}

CellInput checkInput(const TableColumn& column, const QString& text)
{
    static const QStringList yes{u"yes"_s, u"true"_s, u"1"_s, u"-1"_s, u"x"_s};
    static const QStringList no{u"no"_s, u"false"_s, u"0"_s, QString()};
    const QString word = text.trimmed().toLower();
    if (!yes.contains(word) && !no.contains(word))
        return refused(u"is neither Yes nor No"_s);
    return stored(column, store::Value::whole(yes.contains(word) ? 1 : 0));
}

} // namespace

CellInput cellInput(const TableColumn& column, const QString& text)
{
    switch (column.kind()) {
    case ControlKind::Integer:
    case ControlKind::Decimal:
        return numberInput(column, text);
    case ControlKind::Combo:
        return listInput(column, text);
    case ControlKind::Check:
        return checkInput(column, text);
    default:
        return textInput(column, text);
    }
}

CellInput cellInput(const TableColumn& column, const Decimal& number)
{
    if (number < Decimal())
        return refused(u"is less than 0"_s);
    if (number != number.rounded(column.decimals())) {
        return refused(column.decimals() == 0 ? u"is not a whole number"_s
                                              : u"has more than %1 decimals"_s.arg(column.decimals()));
    }
    if (number > largestOf(column) || isAboveLargest(number, column.field.name))
        return refused(u"is more than a register holds"_s);
    return stored(column, store::Value::decimal(number));
}

} // namespace norvane::screens
