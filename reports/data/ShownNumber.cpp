// See ShownNumber.h.
#include "reports/data/ShownNumber.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

QString shownDigits(QString plain, int leastDecimals)
{
    const qsizetype point = plain.indexOf(u'.');
    const qsizetype places = point < 0 ? 0 : plain.size() - point - 1;
    if (places < leastDecimals) {
        if (point < 0)
            plain += u'.';
        plain += QString(leastDecimals - places, u'0');
    }
    return plain.replace(u"."_s, QLocale().decimalPoint());
}

QString shownNumber(const Decimal& number, int leastDecimals, int mostDecimals)
{
    return shownDigits(QString::fromStdString(number.rounded(mostDecimals).text()), leastDecimals);
}

/// Words in place of a number, as for a sum of too many digits, are left as they are.
QString dressed(QString number, const NumberDress& dress)
{
    constexpr qsizetype thousands = 3;
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    qsizetype end = first;
    while (end < number.size() && number.at(end).isDigit())
        ++end;
    if (end == first)
        return number;
    for (qsizetype at = end - thousands; dress.isGrouped && at > first; at -= thousands)
        number.insert(at, QLocale().groupSeparator());
    return number.insert(first, dress.currency);
}

} // namespace norvane::reports
