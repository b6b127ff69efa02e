// The customer's settings that the setup dialog shows and writes: one row for each key of setup.ini.
#pragma once

#include "base/ApplicationValues.h"
#include "register/RegisterModel.h"

#include <QLatin1StringView>
#include <QList>
#include <QStringList>

#include <span>

namespace norvane::customers
{

/// How a setting is stored and shown.
enum class SettingForm {
    SignedIndex, ///< list index after a blank or "-": "Port= 0"
    PlainIndex,  ///< list index: "NoOfECRs=0"
    UpperText,   ///< text, written in upper case: "ModemReset=AT&F"
};

/// A setting of the setup dialog.
struct Setting {
    QLatin1StringView key; ///< as it is written; case does not matter when it is read
    SettingForm form;
    QLatin1StringView defaultText; ///< shown for a key that is absent or empty
    QLatin1StringView control;     ///< control name
    QLatin1StringView label;
    QLatin1StringView items; ///< the list of an index, with "|" between; see itemsOf()
};

/// The settings in the order in which they are written.
[[nodiscard]] std::span<const Setting> settings();

/// The entries of the list that @p setting is chosen from.
[[nodiscard]] QStringList itemsOf(const Setting& setting);

/// The model as the dialog lists it: "Velmar +V3".
[[nodiscard]] QString modelInWords(const RegisterModel& model);

/// The dialog's value of a setting: the list index (-1 for none) or the text.
struct SettingValue {
    int index = -1;
    QString text;
    bool operator==(const SettingValue&) const = default;
};

/// What setup.ini has for a value: " 2" for an index with room for a sign, texts in upper case.
[[nodiscard]] QString storedText(const Setting& setting, const SettingValue& value);

/// Reads all settings of the customer, in the order of settings().
/// @throws RuntimeFailure with Failure::TypeMismatch or Failure::Overflow if an index is not a whole number,
/// Failure::InvalidArgument if it is outside its list; the text names file and key.
[[nodiscard]] QList<SettingValue> readSettings(const ApplicationValues& values);

/// Writes all settings, key by key; makes the file when it is missing.
/// @return how many of them were written.
[[nodiscard]] int writeSettings(const ApplicationValues& values, const QList<SettingValue>& settingValues);

} // namespace norvane::customers
