// See LayoutMistake.h.
#include "reports/lines/LayoutMistake.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// The name in a line "[name]"; nothing for another line.
QString sectionIn(const QString& line)
{
    return line.startsWith(u'[') && line.contains(u']') ? line.mid(1, line.indexOf(u']') - 1).trimmed()
                                                        : QString();
}

bool isSame(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

} // namespace

QString LayoutMistake::place() const
{
    QStringList parts;
    if (line > 0)
        parts << u"line %1"_s.arg(line);
    if (!section.isEmpty())
        parts << u"section [%1]"_s.arg(section);
    if (!key.isEmpty())
        parts << u"key %1"_s.arg(key);
    return parts.join(u", "_s);
}

int lineInLayout(const QString& path, const QString& section, const QString& key)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    QString current;
    int sectionLine = 0;
    for (int number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (const QString name = sectionIn(line); !name.isEmpty())
            current = name;
        if (!isSame(current, section) || line.startsWith(u';'))
            continue;
        if (sectionLine == 0)
            sectionLine = number;
        if (!key.isEmpty() && line.contains(u'=') && isSame(line.section(u'=', 0, 0).trimmed(), key))
            return number;
    }
    return sectionLine;
}

LayoutError::LayoutError(const QString& path, LayoutMistake mistake)
    : ReportError(u"%1, %2: %3"_s.arg(path, mistake.place(), mistake.reason)), m_mistake(std::move(mistake))
{
}

} // namespace norvane::reports
