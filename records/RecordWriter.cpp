// Builds the columns of a record; see RecordWriter.h.
#include "records/RecordWriter.h"

#include "platform/Decimal.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "platform/TextFields.h"
#include "platform/Windows1252.h"
#include "records/RecordText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

namespace norvane::records
{
namespace
{

using store::Value;

constexpr int largestCode = 255;
/// Firmware from here on keeps some texts to itself.
constexpr int withholdingGeneration = 3;

/// A field's value as text without a copy where the value has one already; lives as long as the value.
class ValueText
{
public:
    explicit ValueText(const Value& value)
    {
        if (value.isText()) {
            m_view = value.textView();
        } else if (value.isYesNo()) {
            m_view = value.isTrue() ? "1" : "0";
        } else if (const auto* whole = std::get_if<std::int64_t>(&value.data())) {
            const auto end = std::to_chars(m_digits.data(), m_digits.data() + m_digits.size(), *whole).ptr;
            m_view = {m_digits.data(), static_cast<std::size_t>(end - m_digits.data())};
        } else if (!value.isNull()) {
            m_own = value.toUtf8();
            m_view = m_own;
        }
    }
    ValueText(const ValueText&) = delete;
    ValueText& operator=(const ValueText&) = delete;
    ~ValueText() = default;
    [[nodiscard]] std::string_view view() const { return m_view; }

private:
    std::array<char, 24> m_digits{};
    std::string m_own;
    std::string_view m_view;
};

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

void appendPlainNumber(std::string& out, std::string_view text, std::size_t width)
{
    if (isAscii(text)) {
        appendZeroFilled(out, text, width);
        return;
    }
    std::string bytes;
    appendWindows1252FromUtf8(bytes, text);
    appendZeroFilled(out, bytes, width);
}

void appendScaledNumber(std::string& out, std::string_view text, const Column& column)
{
    const auto number = Decimal::leading(text).shifted(column.scale).toWhole();
    appendZeroFilled(out, std::to_string(number), column.width);
}

} // namespace

RecordWriter::RecordWriter(const RecordLayout& layout, const store::Recordset& records, RegisterTraits traits)
    : m_layout(layout), m_records(records), m_traits(std::move(traits))
{
    const auto isMessage = [](const Column& column) {
        return column.isMessageLine;
    };
    const auto withholds = [](const Column& column) {
        return !column.withheldTexts.empty();
    };
    for (const ColumnSet& set : layout.sets) {
        auto& steps = m_sets.emplace_back();
        for (const Column& column : set.columns) {
            if (column.written)
                steps.push_back(stepOf(column));
        }
    }
    const auto& usual = layout.sets.front().columns;
    m_hasMessages = std::any_of(usual.begin(), usual.end(), isMessage);
    m_withholdsTexts = std::any_of(usual.begin(), usual.end(), withholds) &&
                       m_traits.firmwareGeneration() == withholdingGeneration;
}

int RecordWriter::ordinalOf(const std::string& field)
{
    return m_fields.emplace_back(m_records.fieldOrdinal(QString::fromStdString(field)));
}

RecordWriter::Step RecordWriter::stepOf(const Column& column)
{
    Step step{&column, 0, 0, {}};
    if (column.form != Form::Literal && column.form != Form::Options)
        step.ordinal = ordinalOf(column.field);
    if (!column.kindField.empty())
        step.kindOrdinal = ordinalOf(column.kindField);
    for (std::size_t place = 0; place < column.digits.size(); ++place) {
        for (const DigitPart& part : column.digits[place])
            step.digits[place].push_back({&part, ordinalOf(part.field)});
    }
    return step;
}

void RecordWriter::appendLine(std::string& out)
{
    ++m_record;
    if (m_hasMessages)
        m_messageWidth = m_traits.messageWidth();
    const auto& steps = m_sets[m_layout.setOf(m_record)];
    for (const Step& step : steps) {
        if (&step != &steps.front())
            out += ',';
        appendColumn(out, step);
    }
    out += "\r\n";
}

void RecordWriter::appendColumn(std::string& out, const Step& step)
{
    switch (step.column->form) {
    case Form::Number:
        appendNumber(out, step);
        break;
    case Form::Text:
        appendText(out, step);
        break;
    case Form::Options:
        appendOptions(out, step);
        break;
    case Form::Symbol:
        appendSymbol(out, step);
        break;
    case Form::HexByte:
        appendHexByte(out, step);
        break;
    case Form::Piece:
        appendPiece(out, step);
        break;
    case Form::Literal:
        break;
    }
    out += step.column->literal;
}

bool RecordWriter::isWithheld(const Column& column) const
{
    const auto last = column.firstWithheld + static_cast<std::int64_t>(column.withheldTexts.size());
    return m_withholdsTexts && m_record >= column.firstWithheld && m_record < last;
}

void RecordWriter::appendText(std::string& out, const Step& step)
{
    const Column& column = *step.column;
    const ValueText text(m_records.value(step.ordinal));
    auto sent = text.view();
    if (isWithheld(column)) {
        if (trimBlanks(sent).empty())
            m_latestDefault = column.withheldTexts[static_cast<std::size_t>(m_record - column.firstWithheld)];
        sent = m_latestDefault;
    }
    const auto width = column.isMessageLine ? m_messageWidth : column.width;
    (column.marksKept ? appendPlainBlankFilled : appendBlankFilled)(out, sent, width);
}

void RecordWriter::appendLeftBound(std::string& out, const Step& step) const
{
    const Column& column = *step.column;
    appendPlainNumber(out, ValueText(m_records.value(step.ordinal)).view(), column.leftPlaces);
    out.append(column.width - column.leftPlaces, '0');
}

/// The field's two digits as far as they are hexadecimal, the rest counts as not there.
void RecordWriter::appendHexByte(std::string& out, const Step& step) const
{
    const ValueText text(m_records.value(step.ordinal));
    std::string digits;
    appendWindows1252FromUtf8(digits, text.view());
    const auto start = std::min(2 * static_cast<std::size_t>(step.column->place), digits.size());
    const auto pair = std::string_view(digits).substr(start, 2);
    unsigned byte = 0;
    std::from_chars(pair.data(), pair.data() + pair.size(), byte, 16);
    appendZeroFilled(out, std::to_string(byte), step.column->width);
}

void RecordWriter::appendPiece(std::string& out, const Step& step) const
{
    const Column& column = *step.column;
    const Value& value = m_records.value(step.ordinal);
    const QString number = value.isNull() ? QStringLiteral("0") : value.toText();
    const std::string all = formatNumber(number, QString::fromStdString(column.pattern)).toStdString();
    const auto place = static_cast<std::size_t>(std::abs(column.place));
    out += all.substr(column.place < 0 ? all.size() - place : place, column.width);
}

void RecordWriter::appendNumber(std::string& out, const Step& step) const
{
    const Column& column = *step.column;
    if (!column.kindField.empty() && m_records.value(step.kindOrdinal).toUtf8() == column.kind) {
        appendLeftBound(out, step);
        return;
    }
    const ValueText text(m_records.value(step.ordinal));
    const auto& words = column.codeWords;
    const auto word = std::find_if(words.begin(), words.end(),
                                   [&](const CodeWord& known) { return known.stored == text.view(); });
    if (word != words.end()) {
        out += word->sent;
        return;
    }
    const auto start = out.size();
    if (column.scale == 0) {
        appendPlainNumber(out, text.view(), column.width);
    } else {
        appendScaledNumber(out, text.view(), column);
    }
    const auto& [usual, instead] = column.replacement;
    if (!usual.empty() && std::string_view(out).substr(start) == usual)
        out.replace(start, usual.size(), instead);
}

void RecordWriter::appendOptions(std::string& out, const Step& step) const
{
    const int left = digitOf(step.digits[0]);
    const int right = digitOf(step.digits[1]);
    if (step.column->bareOptions) {
        out += std::to_string(10 * left + right);
    } else {
        out += std::to_string(left) + std::to_string(right);
    }
}

/// A code that stands for no character of the register is sent as blanks.
void RecordWriter::appendSymbol(std::string& out, const Step& step) const
{
    const int code = roundHalfEven(m_records.value(step.ordinal).toNumber());
    std::string utf8;
    if (code > 0 && code <= largestCode)
        appendUtf8FromWindows1252(utf8, std::string(1, static_cast<char>(code)));
    appendBlankFilled(out, utf8, step.column->width);
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
