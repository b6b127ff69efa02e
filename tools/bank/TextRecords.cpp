// The one engine over all layouts; see TextRecords.h.
#include "tools/bank/TextRecords.h"

#include <algorithm>

namespace bank
{
namespace
{

/// A column's text is wrong; the caller knows where it stands.
struct ColumnFault {
    QString text;
};

QString quoted(const QByteArray& value)
{
    return QStringLiteral("\"%1\"").arg(QString::fromLatin1(value));
}

bool onlyDigitsUpTo(char highest, const QByteArray& value)
{
    return std::all_of(value.begin(), value.end(),
                       [highest](char each) { return each >= '0' && each <= highest; });
}

void checkWidth(const QByteArray& value, const Column& column)
{
    if (value.size() != column.width) {
        throw ColumnFault{QStringLiteral("%1 is %2 characters wide, %3 expected")
                              .arg(quoted(value))
                              .arg(value.size())
                              .arg(column.width)};
    }
}

void checkContent(const QByteArray& value, const Column& column)
{
    const auto isControl = [](char each) {
        return static_cast<unsigned char>(each) < 0x20;
    };
    switch (column.form) {
    case Form::Text:
        if (std::any_of(value.begin(), value.end(), isControl))
            throw ColumnFault{QStringLiteral("a control character stands in the text")};
        break;
    case Form::Digits:
        if (!onlyDigitsUpTo('9', value))
            throw ColumnFault{QStringLiteral("%1 is not all digits").arg(quoted(value))};
        break;
    case Form::Options:
        if (!onlyDigitsUpTo('7', value))
            throw ColumnFault{QStringLiteral("%1 is not two option digits 0 to 7").arg(quoted(value))};
        break;
    case Form::Zeros:
        if (!onlyDigitsUpTo('0', value))
            throw ColumnFault{QStringLiteral("the spare column holds more than zeros")};
        break;
    case Form::Code:
    case Form::Bare:
        if (!column.values.contains(value)) {
            throw ColumnFault{QStringLiteral("%1 is none of %2")
                                  .arg(quoted(value), QString::fromLatin1(column.values.join(' ')))};
        }
        break;
    }
}

QByteArray packDigits(QByteArray digits)
{
    if (digits.size() % 2 != 0)
        digits.prepend('0');
    return QByteArray::fromHex(digits);
}

QByteArray packColumn(const QByteArray& value, const Column& column)
{
    if (column.form != Form::Bare && column.form != Form::Code)
        checkWidth(value, column);
    checkContent(value, column);
    switch (column.form) {
    case Form::Text:
        return value;
    case Form::Zeros:
        return {};
    case Form::Code:
    case Form::Bare:
        return QByteArray(1, static_cast<char>(column.values.indexOf(value)));
    default:
        return packDigits(value);
    }
}

QByteArray unpackColumn(const QByteArray& packed, const Column& column)
{
    QByteArray value;
    switch (column.form) {
    case Form::Text:
        // A cashier may have keyed a comma into a description; the text form has no way to guard it.
        return packed;
    case Form::Zeros:
        return {column.width, '0'};
    case Form::Code:
    case Form::Bare:
        if (static_cast<unsigned char>(packed.at(0)) >= column.values.size())
            throw ColumnFault{QStringLiteral("an unknown code stands in the record")};
        return column.values.at(packed.at(0));
    default:
        value = packed.toHex().right(column.width);
        checkContent(value, column);
        return value;
    }
}

QByteArray packLine(const QByteArray& line, const Columns& columns, qsizetype number)
{
    const auto values = line.split(',');
    QByteArray record;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const auto at = static_cast<qsizetype>(i);
        if (at >= values.size())
            break;
        try {
            record += packColumn(values.at(at), columns.at(i));
        } catch (const ColumnFault& fault) {
            throw TextFault(number, at + 1, fault.text);
        }
    }
    const auto expected = static_cast<qsizetype>(columns.size());
    if (values.size() != expected) {
        throw TextFault(number, std::min(values.size(), expected) + 1,
                        QStringLiteral("%1 columns, %2 expected").arg(values.size()).arg(expected));
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
    const QByteArray lineEnd = QByteArrayLiteral("\r\n");
    if (text.isEmpty())
        throw TextFault(1, 0, QStringLiteral("there is no record"));

    QByteArray records;
    qsizetype number = 0;
    for (qsizetype start = 0; start < text.size();) {
        ++number;
        const auto end = text.indexOf(lineEnd, start);
        if (end < 0) {
            throw TextFault(number, 0,
                            QStringLiteral("the line does not end in carriage return and line feed"));
        }
        records += packLine(text.mid(start, end - start), columns, number);
        start = end + lineEnd.size();
    }
    return records;
}

QList<QByteArray> unpackRecord(const QByteArray& record, const Columns& columns, qsizetype line)
{
    QList<QByteArray> values;
    qsizetype at = 0;
    for (const auto& column : columns) {
        try {
            values += unpackColumn(record.mid(at, column.packedLength()), column);
        } catch (const ColumnFault& fault) {
            throw TextFault(line, values.size() + 1, fault.text);
        }
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
