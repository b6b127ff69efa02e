// Builds the columns of a record; see RecordWriter.h.
#include "records/RecordWriter.h"

#include "platform/Decimal.h"
#include "platform/Numbers.h"
#include "platform/Windows1252.h"
#include "register/FieldWidth.h"
#include "register/Firmware.h"
#include "register/RegisterMark.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <span>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::records
{
namespace
{

using store::Value;

constexpr int largestCode = 255;
constexpr std::size_t symbolWidth = 3;
constexpr std::size_t pieceWidth = 2;

/// A field's value as text, without a copy where the value is a text. Lives as long as the value.
class ValueText
{
public:
    explicit ValueText(const Value& value)
    {
        if (value.isText()) {
            m_view = value.textView();
        } else if (value.isYesNo()) {
            m_view = value.isTrue() ? "1" : "0";
        } else {
            m_view = m_own = value.toUtf8();
        }
    }
    ValueText(const ValueText&) = delete;
    ValueText& operator=(const ValueText&) = delete;
    ~ValueText() = default;
    [[nodiscard]] std::string_view view() const { return m_view; }

private:
    std::string m_own;
    std::string_view m_view;
};

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// @p utf8 in the register's character set, as a view of itself where that is the same.
class RegisterText
{
public:
    explicit RegisterText(std::string_view utf8) : m_view(utf8)
    {
        if (isAscii(utf8))
            return;
        appendWindows1252FromUtf8(m_own, utf8);
        m_view = m_own;
    }
    RegisterText(const RegisterText&) = delete;
    RegisterText& operator=(const RegisterText&) = delete;
    ~RegisterText() = default;
    [[nodiscard]] std::string_view view() const { return m_view; }

private:
    std::string m_own;
    std::string_view m_view;
};

void appendWhole(std::string& out, std::int64_t number, std::size_t width)
{
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    appendZeroFilled(out, {digits.data(), end}, width);
}

void appendNumber(std::string& out, const Value& value, std::size_t width)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value.data())) {
        appendWhole(out, *whole, width);
        return;
    }
    const ValueText text(value);
    appendZeroFilled(out, RegisterText(text.view()).view(), width);
}

void appendPlainText(std::string& out, std::string_view utf8, std::size_t width)
{
    appendBlankFilled(out, RegisterText(utf8).view(), width);
}

void appendText(std::string& out, std::string_view utf8, std::size_t width)
{
    const auto start = out.size();
    appendPlainText(out, utf8, width);
    std::span<char> field(out.data() + start, width);
    UnescapeDelimiter(field);
}

bool isWritten(const Column& column)
{
    const auto* number = std::get_if<NumberColumn>(&column);
    return number == nullptr || number->written;
}

bool isMessage(const Column& column)
{
    return std::holds_alternative<MessageColumn>(column);
}

bool hasWithheldTexts(const Column& column)
{
    const auto* text = std::get_if<TextColumn>(&column);
    return text != nullptr && !text->withheldTexts.empty();
}

} // namespace

RecordWriter::RecordWriter(const RecordLayout& layout, const store::Recordset& records, RegisterTraits traits)
    : m_layout(layout), m_records(records), m_traits(std::move(traits))
{
    for (const ColumnSet& set : layout.sets) {
        auto& steps = m_sets.emplace_back();
        for (const Column& column : set.columns) {
            if (isWritten(column))
                steps.push_back(stepOf(column));
        }
    }
    const auto& usual = layout.sets.front().columns;
    m_hasMessages = std::any_of(usual.begin(), usual.end(), isMessage);
    m_withholdsTexts = std::any_of(usual.begin(), usual.end(), hasWithheldTexts) &&
                       m_traits.firmwareGeneration() == newerGeneration;
}

int RecordWriter::ordinalOf(const std::string& field)
{
    return m_fields.emplace_back(m_records.fieldOrdinal(QString::fromStdString(field)));
}

RecordWriter::Step RecordWriter::stepOf(const Column& column)
{
    Step step{&column, 0, 0, {}};
    const auto look = [&]<typename Form>(const Form& form) {
        if constexpr (std::is_same_v<Form, OptionsColumn>) {
            addDigits(step, form);
        } else if constexpr (!std::is_same_v<Form, SpareColumn>) {
            step.ordinal = ordinalOf(form.field);
        }
        if constexpr (std::is_same_v<Form, LeftBoundColumn>)
            step.kindOrdinal = ordinalOf(form.kindField);
    };
    std::visit(look, column);
    return step;
}

void RecordWriter::addDigits(Step& step, const OptionsColumn& column)
{
    for (std::size_t place = 0; place < column.digits.size(); ++place) {
        for (const DigitPart& part : column.digits[place])
            step.digits[place].push_back({&part, ordinalOf(part.field)});
    }
}

void RecordWriter::appendLine(std::string& out)
{
    ++m_record;
    if (m_hasMessages)
        m_messageWidth = m_traits.messageWidth();
    for (const Step& step : m_sets[m_layout.setOf(m_record)]) {
        std::visit([&](const auto& column) { append(out, column, step); }, *step.column);
        out += ',';
    }
    // The line end takes the place of the last comma.
    out.back() = '\r';
    out += '\n';
}

void RecordWriter::append(std::string& out, const NumberColumn& column, const Step& step) const
{
    const auto start = out.size();
    appendNumber(out, m_records.value(step.ordinal), column.width);
    if (!column.usual.empty() && std::string_view(out).substr(start) == column.usual)
        out.replace(start, column.usual.size(), column.instead);
    out += column.tail;
}

void RecordWriter::append(std::string& out, const ScaledColumn& column, const Step& step) const
{
    const ValueText text(m_records.value(step.ordinal));
    const auto number = Decimal::leading(text.view()).shifted(column.scale).toWhole();
    appendWhole(out, number, column.width);
}

void RecordWriter::append(std::string& out, const CodeColumn& column, const Step& step) const
{
    const Value& value = m_records.value(step.ordinal);
    const ValueText text(value);
    const auto word = std::find_if(column.words.begin(), column.words.end(),
                                   [&](const CodeWord& known) { return known.stored == text.view(); });
    if (word != column.words.end()) {
        out += word->sent;
    } else {
        appendNumber(out, value, column.width);
    }
}

void RecordWriter::append(std::string& out, const LeftBoundColumn& column, const Step& step) const
{
    const bool leftBound = m_records.value(step.kindOrdinal).toUtf8() == column.kind;
    const auto digits = leftBound ? column.places : column.width;
    appendNumber(out, m_records.value(step.ordinal), digits);
    out.append(column.width - digits, '0');
}

bool RecordWriter::isWithheld(const TextColumn& column) const
{
    const auto last = column.firstWithheld + static_cast<std::int64_t>(column.withheldTexts.size());
    return m_withholdsTexts && m_record >= column.firstWithheld && m_record < last;
}

void RecordWriter::append(std::string& out, const TextColumn& column, const Step& step)
{
    const ValueText text(m_records.value(step.ordinal));
    auto sent = text.view();
    if (isWithheld(column)) {
        if (trimBlanks(sent).empty())
            m_latestDefault = column.withheldTexts[static_cast<std::size_t>(m_record - column.firstWithheld)];
        sent = m_latestDefault;
    }
    const auto start = out.size();
    (column.marksKept ? appendPlainText : appendText)(out, sent, column.width);
    noteComma(std::string_view(out).substr(start));
}

void RecordWriter::append(std::string& out, const MessageColumn& /*column*/, const Step& step)
{
    const auto start = out.size();
    appendText(out, ValueText(m_records.value(step.ordinal)).view(), m_messageWidth);
    noteComma(std::string_view(out).substr(start));
}

void RecordWriter::noteComma(std::string_view text)
{
    if (m_textWithComma.empty() && text.find(',') != std::string_view::npos)
        m_textWithComma = trimBlanks(text);
}

void RecordWriter::append(std::string& out, const OptionsColumn& column, const Step& step) const
{
    const int left = digitOf(step.digits[0]);
    const int right = digitOf(step.digits[1]);
    if (column.isBare) {
        out += std::to_string(10 * left + right);
    } else {
        out += std::to_string(left);
        out += std::to_string(right);
    }
}

/// A code without a character on the register is sent as blanks.
void RecordWriter::append(std::string& out, const SymbolColumn& /*column*/, const Step& step) const
{
    const int code = roundHalfEven(m_records.value(step.ordinal).toNumber());
    std::string symbol;
    if (code > 0 && code <= largestCode)
        symbol = static_cast<char>(code);
    appendBlankFilled(out, UnescapeDelimiter(symbol), symbolWidth);
}

/// The field's two digits as far as they are hexadecimal; the rest counts as missing.
void RecordWriter::append(std::string& out, const HexByteColumn& column, const Step& step) const
{
    const ValueText text(m_records.value(step.ordinal));
    const RegisterText digits(text.view());
    const auto start = std::min(2 * column.place, digits.view().size());
    const auto pair = digits.view().substr(start, 2);
    unsigned byte = 0;
    std::from_chars(pair.data(), pair.data() + pair.size(), byte, 16);
    appendWhole(out, byte, column.width);
}

void RecordWriter::append(std::string& out, const PieceColumn& column, const Step& step) const
{
    const Value& value = m_records.value(step.ordinal);
    const QString number = value.isNull() ? u"0"_s : value.toText();
    const std::string all = formatNumber(number, QString::fromStdString(column.pattern)).toStdString();
    const auto place = static_cast<std::size_t>(std::abs(column.place));
    out += all.substr(column.place < 0 ? all.size() - place : place, pieceWidth);
}

void RecordWriter::append(std::string& out, const SpareColumn& column, const Step& /*step*/) const
{
    out.append(column.zeros, '0');
}

int RecordWriter::digitOf(const std::vector<Digit>& parts) const
{
    int sum = 0;
    for (const Digit& digit : parts)
        sum += weightOf(digit);
    return sum;
}

int RecordWriter::weightOf(const Digit& digit) const
{
    const DigitPart& part = *digit.part;
    const Value& value = m_records.value(digit.ordinal);
    switch (part.writing) {
    case DigitPart::Writing::Nothing:
        return 0;
    case DigitPart::Writing::Always:
        return part.choices.front().weight;
    case DigitPart::Writing::OwnNumber:
        return roundHalfEven(value.toNumber());
    case DigitPart::Writing::Choice:
        break;
    }
    if (part.value == DigitPart::Value::Flag)
        return value.isTrue() ? part.choices.front().weight : 0;
    const auto found = std::find_if(part.choices.begin(), part.choices.end(), [&](const DigitChoice& choice) {
        return choice.value == value.toNumber();
    });
    return found == part.choices.end() ? 0 : found->weight;
}

} // namespace norvane::records
