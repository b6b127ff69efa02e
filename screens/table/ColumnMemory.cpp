// See ColumnMemory.h.
#include "screens/table/ColumnMemory.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

QString keyOf(const QString& screenFile)
{
    return u"Hidden/"_s + QFileInfo(QString(screenFile).replace(u'\\', u'/')).completeBaseName().toLower();
}

} // namespace

ColumnMemory ColumnMemory::ofThisUser()
{
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return ColumnMemory(folder.filePath(u"tables.ini"_s));
}

QStringList ColumnMemory::hidden(const QString& screenFile) const
{
    return QSettings(m_path, QSettings::IniFormat).value(keyOf(screenFile)).toStringList();
}

bool ColumnMemory::keepHidden(const QString& screenFile, const QStringList& fields) const
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(keyOf(screenFile), fields);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace norvane::screens
