// Settings by the words of the setup dialog, for a command line.
#pragma once

#include "platform/TextError.h"

#include <QList>
#include <QString>

namespace norvane::customers
{

/// A line of setup.ini.
struct StoredSetting {
    QString key;   ///< as it is written
    QString text;  ///< as it is stored: " 2"
    QString words; ///< as the setup dialog shows it: "9600"
};

/// There is no such setting, or it cannot have this value; the text lists what is possible.
class SettingError : public TextError
{
public:
    using TextError::TextError;
};

/// The setting named @p key, in any case, with the value that @p words mean: an entry of its list in any
/// case, or a part of it that no other entry has ("v3" for "Velmar +V3"); for others the text. Also takes
/// ModemDelay, which no dialog shows: seconds.
/// @throws SettingError
[[nodiscard]] StoredSetting settingInWords(const QString& key, const QString& words);

/// Stores @p changes in the setup.ini of the folder @p customerPath; its other lines are kept.
/// @throws RuntimeFailure with Failure::PathOrFileAccess; settings before the failing one are stored.
void storeSettings(const QString& customerPath, const QList<StoredSetting>& changes);

} // namespace norvane::customers
