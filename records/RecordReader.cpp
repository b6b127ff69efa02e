// Converts the columns of a record; see RecordReader.h. An import of all PLUs converts some two million
// columns here, so the usual column takes a short path.
#include "records/RecordReader.h"

#include "platform/Decimal.h"
#include "platform/NumberScan.h"
#include "platform/RuntimeFailure.h"
#include "records/RecordLines.h"
#include "register/FieldWidth.h"
#include "register/Firmware.h"
#include "register/OptionDigits.h"
#include "register/RegisterMark.h"

#include <algorithm>
#include <optional>
#include <type_traits>

namespace norvane::records
{
namespace
{

using store::FieldType;
using store::Value;

/// Any number this short fits a Long.
constexpr std::size_t shortNumber = 9;

bool holdsNumbers(FieldType type)
{
    return type == FieldType::Long || type == FieldType::Double || type == FieldType::YesNo;
}

Value numberValue(FieldType type, std::string_view text)
{
    if (type != FieldType::Text && trimBlanks(text).empty())
        return Value::whole(0);
    const bool fits = holdsNumbers(type) && text.size() <= shortNumber;
    if (const auto number = fits ? plainWhole(text) : std::nullopt)
        return Value::whole(*number);
    return Value::text(plainFromRegister(text));
}

[[noreturn]] void failNoNumber(std::string_view text)
{
    throw RuntimeFailure(
        Failure::TypeMismatch,
        QStringLiteral("Type mismatch: \"%1\" is not a number").arg(shownFromRegister(text)));
}

/// A register fills columns that it does not use with blanks: they are 0 as an empty column is.
Decimal numberOf(std::string_view text)
{
    if (trimBlanks(text).empty())
        return {};
    const auto number = Decimal::parse(text);
    if (!number)
        failNoNumber(text);
    return *number;
}

/// What the field would make of the decimal, made here: an import has no time for a second conversion.
Value exactValue(FieldType type, const Decimal& number)
{
    return holdsNumbers(type) ? Value::number(number.toDouble()) : Value::text(number.text());
}

Value scaledValue(FieldType type, std::string_view text, const ScaledColumn& column)
{
    if (column.leading)
        return exactValue(type, Decimal::leading(text).shifted(-column.scale));
    return exactValue(type, numberOf(text).shifted(-column.scale));
}

/// @p utf8 cut to @p characters.
std::string_view cutTo(std::string_view utf8, int characters)
{
    std::size_t end = 0;
    for (; end < utf8.size(); ++end) {
        const bool begins = (static_cast<unsigned char>(utf8[end]) & 0xC0U) != 0x80;
        if (begins && characters-- == 0)
            break;
    }
    return utf8.substr(0, end);
}

/// The two hexadecimal digits of a byte in decimal; of a larger number those of its lowest byte.
std::string hexByte(std::string_view text)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr unsigned digitMask = 0xF;
    const auto byte = static_cast<std::uint64_t>(numberOf(text).toWhole());
    return {digits[(byte >> 4U) & digitMask], digits[byte & digitMask]};
}

/// The choice digit after the column's leading zeros; any other character is not a choice.
std::array<int, 2> firstDigit(std::string_view text)
{
    const char first = StripLeadingZero(text).front();
    return {first == '4' ? 4 : first == '2' ? 2 : 0, 0};
}

Value choiceValue(const DigitPart& part, int number)
{
    return part.value == DigitPart::Value::Flag ? Value::yesNo(number != 0) : Value::whole(number);
}

} // namespace

RecordReader::RecordReader(const RecordLayout& layout, store::Recordset& records, RegisterTraits traits)
    : m_layout(layout), m_records(records), m_traits(std::move(traits)),
      m_numbersLines(!layout.lineNumberField.empty())
{
    if (m_numbersLines)
        m_lineNumberField = targetOf(layout.lineNumberField);
    for (const ColumnSet& set : layout.sets) {
        auto& steps = m_sets.emplace_back();
        for (const Column& column : set.columns)
            steps.push_back(stepOf(column));
    }
}

RecordReader::Target RecordReader::targetOf(const std::string& field) const
{
    const int ordinal = m_records.fieldOrdinal(QString::fromStdString(field));
    const auto& definition = m_records.field(ordinal);
    return {ordinal, definition.type, definition.size};
}

RecordReader::Step RecordReader::stepOf(const Column& column) const
{
    Step step{&column, false, false, {}, {}, {}};
    const auto look = [&]<typename Form>(const Form& form) {
        if constexpr (std::is_same_v<Form, NumberColumn>) {
            step.target = targetOf(form.readField);
            step.rereads = form.rereads;
            step.newerOnly = form.newerOnly;
        } else if constexpr (std::is_same_v<Form, OptionsColumn>) {
            addDigits(step, form);
        } else if constexpr (!std::is_same_v<Form, SpareColumn>) {
            step.target = targetOf(form.field);
        }
        if constexpr (std::is_same_v<Form, LeftBoundColumn>)
            step.kind = targetOf(form.kindField);
    };
    std::visit(look, column);
    return step;
}

void RecordReader::addDigits(Step& step, const OptionsColumn& column) const
{
    if (!column.numberField.empty())
        step.target = targetOf(column.numberField);
    for (std::size_t place = 0; place < column.digits.size(); ++place) {
        for (const DigitPart& part : column.digits[place]) {
            if (part.reading != DigitPart::Reading::Nothing)
                step.digits.push_back({&part, targetOf(part.readField), part.fromRightDigit ? 1 : place});
        }
    }
}

void RecordReader::read(std::string_view line, std::int64_t lineNumber)
{
    m_column = 0;
    m_line = lineNumber;
    if (m_numbersLines)
        set(m_lineNumberField, Value::whole(lineNumber));
    std::string_view text;
    for (const Step& step : m_sets[m_layout.setOf(lineNumber)]) {
        if (step.newerOnly && m_traits.firmwareGeneration() != newerGeneration)
            break;
        if (!step.rereads) {
            ++m_column;
            text = takeField(line);
            if (!std::holds_alternative<SpareColumn>(*step.column))
                checkLength(text);
        }
        std::visit([&](const auto& column) { store(column, step, text); }, *step.column);
    }
    m_column = 0;
}

void RecordReader::store(const NumberColumn& column, const Step& step, std::string_view text)
{
    text = text.substr(0, column.cut);
    std::string_view digits = column.raw ? text : StripLeadingZero(text);
    if (column.firstCharacter)
        digits = digits.substr(0, 1);
    set(step.target, numberValue(step.target.type, digits));
}

void RecordReader::store(const ScaledColumn& column, const Step& step, std::string_view text)
{
    set(step.target, scaledValue(step.target.type, StripLeadingZero(text), column));
}

void RecordReader::store(const CodeColumn& column, const Step& step, std::string_view text)
{
    const std::string name = plainFromRegister(withoutLeadingZeros(text));
    const auto found = std::find_if(column.words.begin(), column.words.end(),
                                    [&](const CodeWord& word) { return word.answered == name; });
    set(step.target, Value::text(found == column.words.end() ? name : found->stored));
}

void RecordReader::store(const LeftBoundColumn& column, const Step& step, std::string_view text)
{
    if (m_records.value(step.kind.ordinal).toUtf8() == column.kind)
        text = text.substr(0, column.places);
    set(step.target, numberValue(step.target.type, StripLeadingZero(text)));
}

void RecordReader::store(const TextColumn& column, const Step& step, std::string_view text)
{
    if (!column.defaultText.empty() && trimBlanks(text).empty()) {
        const std::string name = column.defaultText + std::to_string(m_line);
        set(step.target, Value::text(std::string(cutTo(name, step.target.size))));
    } else {
        set(step.target, Value::text(textFromRegister(column.stripped ? StripLeadingZero(text) : text)));
    }
}

void RecordReader::store(const MessageColumn& /*column*/, const Step& step, std::string_view text)
{
    set(step.target, Value::text(textFromRegister(StripLeadingZero(text))));
}

void RecordReader::store(const OptionsColumn& column, const Step& step, std::string_view text)
{
    if (!column.numberField.empty()) {
        set(step.target, numberValue(step.target.type, StripLeadingZero(text)));
        return;
    }
    const auto digits = column.firstCharacter ? firstDigit(text) : optionDigits(text);
    for (const Digit& digit : step.digits)
        storeDigit(digit, digits.at(digit.place), text);
}

/// A symbol is stored as its code, the register's mark as the code of "^".
void RecordReader::store(const SymbolColumn& /*column*/, const Step& step, std::string_view text)
{
    const auto code = static_cast<unsigned char>(StripLeadingZero(text).front());
    set(step.target, Value::whole(code == registerMark ? shownMark : code));
}

void RecordReader::store(const HexByteColumn& column, const Step& step, std::string_view text)
{
    if (column.place == 0)
        m_joined.clear();
    m_joined += hexByte(text);
    set(step.target, Value::text(m_joined));
}

/// A column that is not there adds nothing, not even the point; one of blanks counts as zeros.
void RecordReader::store(const PieceColumn& column, const Step& step, std::string_view text)
{
    if (column.place == 0)
        m_joined.clear();
    const bool isBlank = trimBlanks(text).empty();
    if (!text.empty())
        m_joined.append(column.point).append(isBlank ? std::string(text.size(), '0') : text);
    set(step.target, numberValue(step.target.type, m_joined));
}

void RecordReader::store(const SpareColumn& /*column*/, const Step& /*step*/, std::string_view /*text*/) {}

void RecordReader::storeDigit(const Digit& digit, int value, std::string_view column)
{
    const DigitPart& part = *digit.part;
    if (part.reading == DigitPart::Reading::FirstCharacter) {
        const auto first = column.empty() ? std::string_view("0") : column.substr(0, 1);
        set(digit.target, numberValue(digit.target.type, first));
        return;
    }
    const auto found = std::find_if(part.choices.begin(), part.choices.end(), [&](const DigitChoice& choice) {
        return DigitFlagSet(value, choice.selector);
    });
    if (found != part.choices.end()) {
        set(digit.target, choiceValue(part, found->value));
    } else if (part.reading != DigitPart::Reading::ChoiceOrKept) {
        set(digit.target, choiceValue(part, 0));
    }
}

void RecordReader::set(const Target& target, Value&& value)
{
    m_records.setValue(target.ordinal, std::move(value));
}

} // namespace norvane::records
