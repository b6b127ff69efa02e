// See SheetOptions.h.
#include "overlay/SheetOptions.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QAnyStringView section = "Sheet";
constexpr QAnyStringView paperKey = "Paper";

} // namespace

QString formatName(paper::SheetFormat format)
{
    return format == paper::SheetFormat::A4 ? u"A4"_s : u"Letter"_s;
}

QPageSize pageSizeOf(paper::SheetFormat format)
{
    return QPageSize(format == paper::SheetFormat::A4 ? QPageSize::A4 : QPageSize::Letter);
}

KeptSheetOptions KeptSheetOptions::ofThisUser()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return KeptSheetOptions(folder.filePath(u"sheets.ini"_s));
}

SheetOptions KeptSheetOptions::read() const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(section);
    SheetOptions options;
    for (const SheetOptionRow& row : sheetOptionRows)
        options.*row.member = settings.value(row.name).toBool();
    if (settings.value(paperKey).toString() == formatName(paper::SheetFormat::Letter))
        options.format = paper::SheetFormat::Letter;
    return options;
}

bool KeptSheetOptions::keep(const SheetOptions& options) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(section);
    for (const SheetOptionRow& row : sheetOptionRows)
        settings.setValue(row.name, options.*row.member);
    settings.setValue(paperKey, formatName(options.format));
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace norvane::overlay
