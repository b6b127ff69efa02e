// Conversions on storing and seeking, one small function for each field type; see FieldConversion.h.
#include "store/engine/FieldConversion.h"

#include "platform/Excerpt.h"
#include "platform/Numbers.h"
#include "platform/NumberScan.h"
#include "platform/RuntimeFailure.h"
#include "platform/Trimming.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

constexpr std::string_view digitSigns = "0123456789";
/// Whole numbers up to here are exact in a double.
constexpr double largestExactWhole = 9007199254740992.0;

QString fieldName(const FieldDefinition& field, const QString& table)
{
    return u"Field %1 of table %2"_s.arg(field.name, table);
}

/// For a message. A text is not copied whole.
QString shown(const Value& value)
{
    return value.isText() ? excerptOfUtf8(value.textView()) : value.toText();
}

[[noreturn]] void failConversion(const Value& value, const FieldDefinition& field, const QString& table)
{
    throw RuntimeFailure(Failure::Conversion, u"Data type conversion error. %1 cannot hold \"%2\"."_s.arg(
                                                  fieldName(field, table), shown(value)));
}

[[noreturn]] void failTooLong(const Value& value, const FieldDefinition& field, const QString& table)
{
    throw RuntimeFailure(Failure::TextTooLong, u"The text is too long. %1 holds %2 characters, not \"%3\"."_s
                                                   .arg(fieldName(field, table))
                                                   .arg(field.size)
                                                   .arg(shown(value)));
}

bool isBlank(std::string_view text)
{
    return trimBlanks(text).empty();
}

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of(digitSigns) == std::string_view::npos;
}

/// Reads the whole text as a number in any form; nothing if it is not a number or too large.
std::optional<double> wholeTextNumber(std::string_view text)
{
    const auto scanned = scanWholeNumber(text);
    return scanned ? norvane::toDouble(*scanned) : std::nullopt;
}

bool isDecimal(const Value& value)
{
    return std::holds_alternative<Decimal>(value.data());
}

/// The numeric value of a field; nothing for null, dates and texts that are not numbers.
std::optional<double> numberOf(const Value& value)
{
    if (value.isYesNo() || value.isWhole() || isDecimal(value) ||
        (value.isDouble() && std::isfinite(value.toNumber())))
        return value.toNumber();
    if (value.isText())
        return wholeTextNumber(value.textView());
    return std::nullopt;
}

bool fitsLong(std::int64_t number)
{
    return number >= std::numeric_limits<std::int32_t>::min() &&
           number <= std::numeric_limits<std::int32_t>::max();
}

std::optional<Value> toLong(const Value& value)
{
    const auto* held = std::get_if<std::int64_t>(&value.data());
    const auto whole = held ? std::optional(*held) : plainWhole(value.textView());
    if (whole)
        return fitsLong(*whole) ? std::optional(Value::whole(*whole)) : std::nullopt;
    const auto number = numberOf(value);
    // The default rounding mode takes halves to the even neighbour.
    const double rounded = number ? std::nearbyint(*number) : 0;
    if (!number || std::abs(rounded) > largestExactWhole || !fitsLong(static_cast<std::int64_t>(rounded)))
        return std::nullopt;
    return Value::whole(static_cast<std::int64_t>(rounded));
}

std::optional<Value> toDouble(const Value& value)
{
    const auto number = numberOf(value);
    return number ? std::optional(Value::number(*number)) : std::nullopt;
}

/// Digits are kept as written, leading zeros too; a number in another form becomes its digits.
std::optional<Value> toDigits(const Value& value)
{
    if (isDecimal(value))
        return toDigits(Value::text(value.toUtf8()));
    std::string_view text = trimBlanks(value.textView());
    const bool negative = text.starts_with('-');
    if (isDigits(text.substr(negative ? 1 : 0)))
        return Value::text(std::string(text));
    if (value.isWhole())
        return Value::text(value.toUtf8());
    const auto number = numberOf(value);
    if (!number || std::abs(*number) > largestExactWhole)
        return std::nullopt;
    return Value::text(std::to_string(static_cast<std::int64_t>(std::nearbyint(*number))));
}

std::optional<bool> yesNoWord(std::string_view text)
{
    struct Word {
        QLatin1StringView word;
        bool yes;
    };
    static constexpr Word words[] = {
        {"true"_L1, true},   {"yes"_L1, true}, {"on"_L1, true},
        {"false"_L1, false}, {"no"_L1, false}, {"off"_L1, false},
    };
    const QString trimmed = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
    for (const auto& word : words) {
        if (trimmed.compare(word.word, Qt::CaseInsensitive) == 0)
            return word.yes;
    }
    return std::nullopt;
}

std::optional<Value> toYesNo(const Value& value)
{
    if (const auto number = numberOf(value))
        return Value::yesNo(*number != 0);
    const auto word = yesNoWord(value.textView());
    return word ? std::optional(Value::yesNo(*word)) : std::nullopt;
}

std::optional<Value> toDay(const Value& value)
{
    const QDate date = value.toDate();
    return date.isValid() ? std::optional(Value::date(date)) : std::nullopt;
}

bool isTooLong(std::string_view text, int size)
{
    // Every character takes at least one byte, so most texts need no counting.
    if (size <= 0 || text.size() <= static_cast<std::size_t>(size))
        return false;
    const auto characters = std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    return characters > size;
}

void convertToText(Value& value, const FieldDefinition& field, const QString& table)
{
    if (!value.isText())
        value = Value::text(value.toUtf8());
    if (isTooLong(value.textView(), field.size))
        failTooLong(value, field, table);
}

/// Whether @p value is what a field of @p type holds already, as nearly all values of an import are.
bool fits(const Value& value, FieldType type)
{
    switch (type) {
    case FieldType::YesNo:
        return value.isYesNo();
    case FieldType::Long:
    case FieldType::Counter: {
        const auto* whole = std::get_if<std::int64_t>(&value.data());
        return whole && fitsLong(*whole);
    }
    case FieldType::Double: {
        const auto* number = std::get_if<double>(&value.data());
        return number && std::isfinite(*number);
    }
    case FieldType::Date: {
        const auto* date = std::get_if<QDate>(&value.data());
        return date && date->isValid();
    }
    case FieldType::Digits:
    case FieldType::Text:
        break;
    }
    return false;
}

std::optional<Value> convertedTo(FieldType type, const Value& value)
{
    switch (type) {
    case FieldType::YesNo:
        return toYesNo(value);
    case FieldType::Long:
    case FieldType::Counter:
        return toLong(value);
    case FieldType::Double:
        return toDouble(value);
    case FieldType::Digits:
        return toDigits(value);
    case FieldType::Date:
        return toDay(value);
    case FieldType::Text:
        break;
    }
    return value;
}

bool isUnset(const Value& value)
{
    const auto* date = std::get_if<QDate>(&value.data());
    return value.isNull() || (value.isText() && isBlank(value.textView())) || (date && !date->isValid());
}

Value convertedOrFail(const Value& value, const FieldDefinition& field, const QString& table)
{
    auto converted = convertedTo(field.type, value);
    if (!converted)
        failConversion(value, field, table);
    return std::move(*converted);
}

std::string_view significantDigits(std::string_view digits)
{
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits;
}

} // namespace

void convertToField(Value& value, const FieldDefinition& field, const QString& table)
{
    if (value.isNull() || fits(value, field.type))
        return;
    if (field.type == FieldType::Text) {
        convertToText(value, field, table);
    } else if (isUnset(value)) {
        value = Value();
    } else {
        value = convertedOrFail(value, field, table);
    }
}

Value indexKey(const Value& key, const FieldDefinition& field, const QString& table)
{
    if (field.type == FieldType::Text)
        return key.isNull() ? key : Value::text(key.toUtf8());
    if (isUnset(key))
        return Value();
    const bool isLong = field.type == FieldType::Long || field.type == FieldType::Counter;
    auto converted = isLong ? toDouble(key) : convertedTo(field.type, key);
    if (!converted)
        failConversion(key, field, table);
    return std::move(*converted);
}

int compareDigits(std::string_view left, std::string_view right)
{
    const bool leftNegative = left.starts_with('-');
    const bool rightNegative = right.starts_with('-');
    left = significantDigits(left.substr(leftNegative ? 1 : 0));
    right = significantDigits(right.substr(rightNegative ? 1 : 0));
    if (left.empty() && right.empty())
        return 0;
    if (leftNegative != rightNegative)
        return leftNegative ? -1 : 1;
    const int bySize = left.size() == right.size()  ? left.compare(right)
                       : left.size() < right.size() ? -1
                                                    : 1;
    return leftNegative ? -bySize : bySize;
}

QDate dateOfText(std::string_view text)
{
    const QString trimmed = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).trimmed();
    const QDate iso = QDate::fromString(trimmed, Qt::ISODate);
    return iso.isValid() ? iso : QDate::fromString(trimmed, u"d/M/yyyy"_s);
}

} // namespace norvane::store
