// Lists of names in the tables of cases.
#pragma once

#include <QStringList>

namespace norvane::test
{

/// The names between the blanks.
inline QStringList words(const char* names)
{
    return QString::fromUtf8(names).split(QLatin1Char(' '));
}

} // namespace norvane::test
