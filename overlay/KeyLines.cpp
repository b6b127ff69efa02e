// See KeyLines.h.
#include "overlay/KeyLines.h"

#include "platform/Trimming.h"

namespace norvane::overlay
{
namespace
{

constexpr qsizetype lineLength = 7;

/// How many characters of @p rest make the next line.
qsizetype nextLine(QStringView rest)
{
    const qsizetype blank = rest.indexOf(u' ');
    const bool breaksThere = blank >= 0 && blank < lineLength - 1;
    return breaksThere ? blank + 1 : qMin(lineLength, rest.size());
}

} // namespace

QString RemoveCarriage(QString text)
{
    return text.replace(u'\r', u' ').replace(u'\n', u' ');
}

std::array<QString, 3> CUTTEXTUP(const QString& text)
{
    QStringView rest = trimBlanks(QStringView(text));
    if (rest.size() < lineLength)
        return {QString(), rest.toString(), QString()};
    std::array<QString, 3> lines;
    for (QString& line : lines) {
        const qsizetype length = nextLine(rest);
        line = rest.first(length).toString();
        rest = rest.sliced(length);
    }
    return lines;
}

} // namespace norvane::overlay
