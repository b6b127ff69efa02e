// Reading of the customer's setup.ini; see CustomerSettings.h.
#include "base/CustomerSettings.h"

#include "platform/FailurePlace.h"
#include "platform/FilePaths.h"
#include "platform/ProfileFile.h"

#include <QDir>
#include <QFileInfo>

namespace norvane
{
namespace
{

QString modelSetting(const ApplicationValues& values)
{
    return readSetting(values, QStringLiteral("ECRModel"), QStringLiteral("0"));
}

} // namespace

QString settingsPath(const ApplicationValues& values)
{
    return joinPath(values.customerPath, QStringLiteral("setup.ini"));
}

QString readSetting(const ApplicationValues& values, const QString& key, const QString& defaultText)
{
    return ProfileFile(settingsPath(values)).value(QStringLiteral("SetupOption"), key, defaultText);
}

const RegisterModel& registerModel(const ApplicationValues& values)
{
    const QString stored = modelSetting(values);
    const auto withPlace = [&](const QString& text) {
        return QStringLiteral("%1\nECRModel=%2 in %3").arg(text, stored, settingsPath(values));
    };
    return atPlace(withPlace, [&]() -> const RegisterModel& { return modelOfNumber(stored); });
}

const RegisterModel& registerModelByText(const ApplicationValues& values)
{
    return modelOfText(modelSetting(values));
}

QString GetModelCode(const ApplicationValues& values)
{
    return registerModel(values).code;
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
