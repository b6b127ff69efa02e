// See OverviewMemory.h.
#include "shell/OverviewMemory.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

const auto shownKey = u"Overview/Shown"_s;

} // namespace

OverviewMemory OverviewMemory::ofThisUser()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return OverviewMemory(folder.filePath(u"overview.ini"_s));
}

bool OverviewMemory::isShown() const
{
    return QSettings(m_path, QSettings::IniFormat).value(shownKey, true).toBool();
}

bool OverviewMemory::keepShown(bool isShown) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(shownKey, isShown);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace norvane::shell
