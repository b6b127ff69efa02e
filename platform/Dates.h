// Days and times of day as files, databases and registers write them.
#pragma once

#include <QDate>
#include <QString>

#include <string>

namespace norvane
{

/// "2026-11-25", which sorts by time.
[[nodiscard]] inline std::string isoDay(QDate day)
{
    return day.toString(Qt::ISODate).toStdString();
}

[[nodiscard]] inline bool isSameMonth(QDate left, QDate right)
{
    return left.year() == right.year() && left.month() == right.month();
}

/// "09:05". @param digits hhmm as registers write it, with or without leading zeros.
[[nodiscard]] inline QString clockTime(const QString& digits)
{
    constexpr int length = 4;
    const QString padded = digits.rightJustified(length, u'0');
    return padded.chopped(2) + u':' + padded.right(2);
}

} // namespace norvane
