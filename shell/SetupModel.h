// The customer's settings as the setup dialog shows and writes them: one row for each key of setup.ini.
#pragma once

#include "base/ApplicationValues.h"

#include <QList>
#include <QStringList>

#include <span>

namespace norvane::shell
{

enum class SettingForm {
    SignedIndex, ///< list index with a place for the sign: "Port= 0"
    PlainIndex,  ///< list index without one: "NoOfECRs=0"
    UpperText,   ///< text, upper-cased when it is written: "ModemReset=AT&F"
};

struct Setting {
    QString key; ///< as it is written; readers spell it in other cases, too
    SettingForm form;
    QString defaultText; ///< shown for a key that is absent or empty
    QString control;     ///< name of its control
    QString label;
    QStringList items; ///< the list of an index
};

/// The settings in the order in which they are written.
[[nodiscard]] std::span<const Setting> settings();

/// What the dialog shows for each row of settings(): the list index (-1 for none) or the text.
struct SettingValue {
    int index = -1;
    QString text;
};

/// Reads all settings of the customer.
/// @throws RuntimeFailure 13 or 6 when an index is no whole number, 5 when it lies outside its list; the text
/// names file and key.
[[nodiscard]] QList<SettingValue> readSettings(const ApplicationValues& values);

/// Writes all settings, key by key; makes a file that is missing. A write that fails is passed over, as the
/// platform's profile routines do.
void writeSettings(const ApplicationValues& values, const QList<SettingValue>& settingValues);

} // namespace norvane::shell
