// Reading of the customer's setup.ini; see CustomerSettings.h.
#include "base/CustomerSettings.h"

#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "platform/Numbers.h"
#include "platform/ProfileFile.h"

#include <QDir>
#include <QFileInfo>

namespace norvane
{

QString settingsPath(const ApplicationValues& values)
{
    return joinPath(values.customerPath, QStringLiteral("setup.ini"));
}

QString readSetting(const ApplicationValues& values, const QString& key, const QString& defaultText)
{
    return ProfileFile(settingsPath(values)).value(QStringLiteral("SetupOption"), key, defaultText);
}

double ecrModel(const ApplicationValues& values)
{
    const QString stored = readSetting(values, QStringLiteral("ECRModel"), QStringLiteral("0"));
    const auto withPlace = [&](const QString& text) {
        return QStringLiteral("%1\nECRModel=%2 in %3").arg(text, stored, settingsPath(values));
    };
    return atPlace(withPlace, [&] { return toNumber(stored); });
}

int messageWidth(const ApplicationValues& values)
{
    constexpr int wide = 40;
    constexpr int narrow = 32;
    const double model = ecrModel(values);
    return model == 0 || model == 1 || model == 2 ? wide : narrow;
}

QString runNotesName()
{
    return QStringLiteral("exchange.ini");
}

QString customerOf(const ApplicationValues& values, const QString& database)
{
    const QDir folder = QFileInfo(database).dir();
    return folder == QDir(values.customerPath) ? values.customerName : folder.dirName();
}

} // namespace norvane
