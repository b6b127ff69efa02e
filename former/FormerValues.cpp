// Conversion of single values; see FormerValues.h.
#include "former/FormerValues.h"

#include "former/ReaderMarks.h"
#include "platform/Excerpt.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/FieldConversion.h"

#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::former
{
namespace
{

using store::FieldDefinition;
using store::FieldType;
using store::Value;

constexpr std::size_t dayLength = 10; // 2026-11-24
constexpr std::string_view midnight = "T00:00:00";
/// Whole numbers up to here are exact in a double.
constexpr double largestExactWhole = 9007199254740992.0;

char escaped(char letter)
{
    switch (letter) {
    case 't':
        return '\t';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    default:
        return letter;
    }
}

std::string plainText(std::string_view raw)
{
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); ++i)
        text += raw[i] == '\\' && i + 1 < raw.size() ? escaped(raw[++i]) : raw[i];
    return text;
}

template <typename Number>
Number numberOf(std::string_view raw)
{
    Number number{};
    std::from_chars(raw.data(), raw.data() + raw.size(), number);
    return number;
}

/// "2.6000" is stored as "2.6", as a price that a user types.
std::string_view withoutTrailingZeros(std::string_view decimal)
{
    if (decimal.find('.') == std::string_view::npos)
        return decimal;
    decimal.remove_suffix(decimal.size() - 1 - decimal.find_last_not_of('0'));
    if (decimal.ends_with('.'))
        decimal.remove_suffix(1);
    return decimal;
}

/// A field of digits or text shows a number's digits; those of a large binary number would be made up.
bool isExactIn(double number, FieldType type)
{
    if (type != FieldType::Digits && type != FieldType::Text)
        return true;
    if (std::abs(number) > largestExactWhole)
        return false;
    return type == FieldType::Text || number == std::trunc(number);
}

Loss setNumber(Value& value, double number, FieldType type)
{
    if (!isExactIn(number, type))
        return Loss::Emptied;
    if (number == std::trunc(number) && std::abs(number) <= largestExactWhole) {
        value = Value::whole(static_cast<std::int64_t>(number));
    } else {
        value = Value::number(number);
    }
    return Loss::None;
}

Loss setDate(Value& value, std::string_view raw)
{
    value = Value::date(store::dateOfText(raw.substr(0, dayLength)));
    return raw.substr(std::min(dayLength, raw.size())) == midnight ? Loss::None : Loss::Cut;
}

Loss setRaw(Value& value, std::string_view raw, FieldKind kind, FieldType type)
{
    switch (kind) {
    case FieldKind::YesNo:
        value = Value::yesNo(raw == "1");
        return Loss::None;
    case FieldKind::Whole:
        value = Value::whole(numberOf<std::int64_t>(raw));
        return Loss::None;
    case FieldKind::Number:
        return setNumber(value, numberOf<double>(raw), type);
    case FieldKind::Decimal:
        value = Value::text(std::string(withoutTrailingZeros(raw)));
        return Loss::None;
    case FieldKind::Date:
        if (type == FieldType::Date)
            return setDate(value, raw);
        [[fallthrough]];
    case FieldKind::Text:
        value = Value::text(plainText(raw));
        return Loss::None;
    case FieldKind::Other:
        break;
    }
    return Loss::Emptied;
}

/// A number with places would be rounded in a field of whole numbers.
bool isRounded(const Value& before, const Value& after, FieldType type)
{
    const bool isWhole = type == FieldType::Long || type == FieldType::Digits || type == FieldType::Counter;
    return isWhole && (before.isDouble() || before.isText()) && before.toNumber() != after.toNumber() &&
           std::abs(before.toNumber()) < largestExactWhole;
}

void cutText(Value& value, int size)
{
    value = Value::text(
        QString::fromUtf8(value.textView().data(), static_cast<qsizetype>(value.textView().size()))
            .left(size));
}

} // namespace

Loss convertValue(Value& value, std::string_view raw, FieldKind kind, const FieldDefinition& field,
                  const QString& table)
{
    value = Value();
    if (raw == nullText)
        return Loss::None;
    Loss loss = raw == unreadableText ? Loss::Emptied : setRaw(value, raw, kind, field.type);
    if (loss == Loss::Emptied) {
        value = Value();
        return loss;
    }
    try {
        const Value before = value;
        store::convertToField(value, field, table);
        if (isRounded(before, value, field.type))
            loss = Loss::Cut;
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::TextTooLong) {
            value = Value();
            return Loss::Emptied;
        }
        cutText(value, field.size);
        loss = Loss::Cut;
    }
    return loss;
}

bool mayNotBeEmpty(const FieldDefinition& field)
{
    return field.required && field.defaultText.isEmpty() && field.type != FieldType::Counter;
}

QString shownValue(std::string_view raw)
{
    if (raw == nullText)
        return {};
    return raw == unreadableText ? u"(cannot be read)"_s : excerptOfUtf8(plainText(raw));
}

} // namespace norvane::former
