// Values as the bytes that the former engine stores.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QtEndian>
#include <QVariant>

#include <cstring>

namespace norvane::test
{

template <typename Number>
QByteArray little(Number number)
{
    QByteArray bytes(sizeof number, '\0');
    const Number stored = qToLittleEndian(number);
    std::memcpy(bytes.data(), &stored, sizeof stored);
    return bytes;
}

inline QByteArray word(int number)
{
    return little(static_cast<quint16>(number));
}

inline QByteArray byte(int number)
{
    return QByteArray(1, static_cast<char>(number));
}

template <typename Bits, typename Number>
QByteArray binary(Number number)
{
    Bits bits{};
    static_assert(sizeof bits == sizeof number);
    std::memcpy(&bits, &number, sizeof bits);
    return little(bits);
}

/// Days since the day 0 of the engine, with the time as a fraction.
inline double daysOf(const QVariant& value)
{
    const QDateTime moment = value.toDateTime();
    const QDate dayZero(1899, 12, 30);
    return static_cast<double>(dayZero.daysTo(moment.date())) +
           static_cast<double>(moment.time().msecsSinceStartOfDay()) / 86'400'000.0;
}

/// Sixteen bytes as four words, the highest first, each with its lowest byte first.
inline QByteArray numericBytes(const QString& decimal)
{
    QString digits = decimal;
    const bool isNegative = digits.startsWith(u'-');
    digits.remove(u'-').remove(u'.');
    const quint64 number = digits.toULongLong();
    return byte(isNegative ? 0x80 : 0) + QByteArray(8, '\0') + little(static_cast<quint32>(number >> 32)) +
           little(static_cast<quint32>(number));
}

} // namespace norvane::test
