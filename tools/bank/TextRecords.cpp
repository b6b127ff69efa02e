// The one engine over all layouts; see TextRecords.h.
#include "tools/bank/TextRecords.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace bank
{
namespace
{

/// A column's text is wrong; the caller knows its position.
struct ColumnFault {
    QString text;
};

QString quoted(const QByteArray& value)
{
    return u"\"%1\""_s.arg(QString::fromLatin1(value));
}

bool onlyDigitsUpTo(char highest, const QByteArray& value)
{
    return std::all_of(value.begin(), value.end(),
                       [highest](char each) { return each >= '0' && each <= highest; });
}

void checkWidth(const QByteArray& value, const Column& column)
{
    if (value.size() != column.width) {
        throw ColumnFault{u"%1 is %2 characters wide, %3 expected"_s.arg(quoted(value))
                              .arg(value.size())
                              .arg(column.width)};
    }
}

bool hasControlCharacter(const QByteArray& value)
{
    return std::any_of(value.begin(), value.end(),
                       [](char each) { return static_cast<unsigned char>(each) < 0x20; });
}

/// What is wrong with a column's content, or "".
QString complaintAbout(const QByteArray& value, const Column& column)
{
    switch (column.form) {
    case Form::Text:
        return hasControlCharacter(value) ? u"the text contains a control character"_s : QString();
    case Form::Digits:
        return onlyDigitsUpTo('9', value) ? QString() : quoted(value) + " is not all digits"_L1;
    case Form::Options:
        return onlyDigitsUpTo('7', value) ? QString() : quoted(value) + " is not two option digits 0 to 7"_L1;
    case Form::Zeros:
        return onlyDigitsUpTo('0', value) ? QString() : u"the spare column holds more than zeros"_s;
    default:
        return column.values.contains(value)
                   ? QString()
                   : quoted(value) + " is none of "_L1 + QString::fromLatin1(column.values.join(' '));
    }
}

void checkContent(const QByteArray& value, const Column& column)
{
    const QString complaint = complaintAbout(value, column);
    if (!complaint.isEmpty())
        throw ColumnFault{complaint};
}

bool isCode(const Column& column)
{
    return column.form == Form::Code || column.form == Form::Bare;
}

QByteArray packDigits(QByteArray digits)
{
    if (digits.size() % 2 != 0)
        digits.prepend('0');
    return QByteArray::fromHex(digits);
}

QByteArray packColumn(const QByteArray& value, const Column& column)
{
    if (!isCode(column))
        checkWidth(value, column);
    checkContent(value, column);
    if (isCode(column))
        return {1, static_cast<char>(column.values.indexOf(value))};
    if (column.form == Form::Text)
        return value;
    return column.form == Form::Zeros ? QByteArray() : packDigits(value);
}

QByteArray codeText(char code, const Column& column)
{
    if (static_cast<unsigned char>(code) >= column.values.size())
        throw ColumnFault{u"the record contains an unknown code"_s};
    return column.values.at(code);
}

/// A comma keyed in by a cashier is kept: the text form cannot quote it.
QByteArray unpackColumn(const QByteArray& packed, const Column& column)
{
    if (isCode(column))
        return codeText(packed.at(0), column);
    if (column.form == Form::Text)
        return packed;
    if (column.form == Form::Zeros)
        return {column.width, '0'};
    QByteArray value = packed.toHex().right(column.width);
    checkContent(value, column);
    return value;
}

/// Runs @p work; a column's fault that it throws gets its place.
template <typename Work>
QByteArray atColumn(qsizetype line, qsizetype column, Work work)
{
    try {
        return work();
    } catch (const ColumnFault& fault) {
        throw TextFault(line, column, fault.text);
    }
}

QByteArray packLine(const QByteArray& line, const Columns& columns, qsizetype number)
{
    const auto values = line.split(',');
    const auto expected = static_cast<qsizetype>(columns.size());
    QByteArray record;
    for (qsizetype i = 0; i < std::min(values.size(), expected); ++i) {
        const auto& column = columns.at(static_cast<std::size_t>(i));
        record += atColumn(number, i + 1, [&] { return packColumn(values.at(i), column); });
    }
    if (values.size() != expected) {
        throw TextFault(number, std::min(values.size(), expected) + 1,
                        u"%1 columns, %2 expected"_s.arg(values.size()).arg(expected));
    }
    return record;
}

} // namespace

TextFault::TextFault(qsizetype line, qsizetype column, const QString& text)
    : std::runtime_error(text.toStdString()), m_line(line), m_column(column)
{
}

QByteArray packText(const QByteArray& text, const Columns& columns)
{
    if (text.isEmpty())
        throw TextFault(1, 0, u"there is no record"_s);

    QByteArray records;
    qsizetype number = 0;
    for (qsizetype start = 0; start < text.size();) {
        const auto end = text.indexOf("\r\n", start);
        if (end < 0)
            throw TextFault(number + 1, 0, u"the line does not end in carriage return and line feed"_s);
        records += packLine(text.mid(start, end - start), columns, ++number);
        start = end + 2;
    }
    return records;
}

QList<QByteArray> unpackRecord(const QByteArray& record, const Columns& columns, qsizetype line)
{
    QList<QByteArray> values;
    qsizetype at = 0;
    for (const auto& column : columns) {
        const auto packed = record.mid(at, column.packedLength());
        values += atColumn(line, values.size() + 1, [&] { return unpackColumn(packed, column); });
        at += column.packedLength();
    }
    return values;
}

QByteArray unpackText(const QByteArray& records, const Columns& columns)
{
    const int length = packedLength(columns);
    QByteArray text;
    for (qsizetype at = 0; at < records.size(); at += length)
        text += unpackRecord(records.mid(at, length), columns, at / length + 1).join(',') + "\r\n";
    return text;
}

} // namespace bank
