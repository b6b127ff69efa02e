// See PrintableText.h.
#include "reports/data/PrintableText.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

bool isControl(QChar letter)
{
    return letter.category() == QChar::Other_Control;
}

} // namespace

QString printable(QString text)
{
    if (std::any_of(text.cbegin(), text.cend(), isControl))
        std::replace_if(text.begin(), text.end(), isControl, u' ');
    return text;
}

QChar printable(QChar letter)
{
    return isControl(letter) ? QChar(u' ') : letter;
}

} // namespace norvane::reports
