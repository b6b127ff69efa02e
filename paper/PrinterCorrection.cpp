// See PrinterCorrection.h.
#include "paper/PrinterCorrection.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::paper
{
namespace
{

/// A printer's name may hold a slash, which would begin another group.
QString groupOf(const QString& printer)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(printer));
}

AxisCorrection read(const QSettings& settings, const QString& axis)
{
    const double offset = settings.value(u"Offset"_s + axis, 0).toDouble();
    const double stretch = settings.value(u"Stretch"_s + axis, 1).toDouble();
    const double largest = largestOffset.inMillimetres();
    return {millimetres(std::abs(offset) <= largest ? offset : 0),
            stretch >= smallestStretch && stretch <= largestStretch ? stretch : 1};
}

void write(QSettings& settings, const QString& axis, const AxisCorrection& correction)
{
    settings.setValue(u"Offset"_s + axis, correction.offset.inMillimetres());
    settings.setValue(u"Stretch"_s + axis, correction.stretch);
}

} // namespace

AxisCorrection improved(const AxisCorrection& before, const MeasuredLine& line)
{
    const double ratio = line.measuredLength / line.length;
    const double offset =
        ratio * (line.start + before.offset).inMillimetres() - line.measuredStart.inMillimetres();
    return {millimetres(offset), before.stretch / ratio};
}

QTransform PrinterCorrection::transform() const
{
    QTransform transform;
    transform.scale(across.stretch, down.stretch);
    transform.translate(across.offset.inMillimetres(), down.offset.inMillimetres());
    return transform;
}

PrinterCorrections PrinterCorrections::ofThisComputer()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return PrinterCorrections(folder.filePath(u"printers.ini"_s));
}

PrinterCorrection PrinterCorrections::of(const QString& printer) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupOf(printer));
    return {read(settings, u"Across"_s), read(settings, u"Down"_s)};
}

bool PrinterCorrections::keep(const QString& printer, const PrinterCorrection& correction) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(groupOf(printer));
    write(settings, u"Across"_s, correction.across);
    write(settings, u"Down"_s, correction.down);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace norvane::paper
