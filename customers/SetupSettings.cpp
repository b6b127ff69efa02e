// Table of the settings and their values in setup.ini; see SetupSettings.h.
#include "customers/SetupSettings.h"

#include "base/CustomerSettings.h"
#include "platform/FailurePlace.h"
#include "platform/Numbers.h"
#include "platform/ProfileFile.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

using enum SettingForm;

// clang-format off
constexpr auto table = std::to_array<Setting>({
    {"Port"_L1, SignedIndex, "0"_L1, "CboPort"_L1, "Serial Port"_L1, "Port 1|Port 2|Port 3|Port 4"_L1},
    {"Baud"_L1, SignedIndex, "0"_L1, "CboBaud"_L1, "Baud Rate"_L1, "2400|4800|9600|19200"_L1},
    {"ConnectionType"_L1, SignedIndex, "0"_L1, "CboConnection"_L1, "Connection"_L1, "Direct|Modem"_L1},
    {"NoOfECRs"_L1, PlainIndex, "0"_L1, "CboECRs"_L1, "No Of ECR's"_L1,
     "1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23|24|25|26|27|28|29|30|31|32"_L1},
    {"ModemReset"_L1, UpperText, "AT&F"_L1, "TxtReset"_L1, "Modem Reset"_L1, {}},
    {"ModemString"_L1, UpperText, "ATZ1"_L1, "TxtString"_L1, "Modem String"_L1, {}},
    {"Telephone"_L1, UpperText, {}, "TxtTelephone"_L1, "Telephone No."_L1, {}},
    {"ECRModel"_L1, SignedIndex, "0"_L1, "CboModel"_L1, "ECR Model"_L1,
     "Velmar -V2|Velmar V2 Card|Velmar +V3|Dorvik"_L1},
});
// clang-format on

/// The order of reading decides which of several wrong values is reported.
constexpr std::array readingOrder{0, 3, 7, 1, 2, 4, 5, 6};

/// Indexes are numbers of 16 bits.
constexpr int indexBits = 16;

int indexOf(const Setting& setting, const QString& stored)
{
    const int index = toWholeNumber(stored, indexBits);
    if (index < -1 || index >= itemsOf(setting).size()) {
        throw RuntimeFailure(Failure::InvalidArgument,
                             u"Invalid property value: there is no entry %1 in the list"_s.arg(index));
    }
    return index;
}

SettingValue readValue(const ApplicationValues& values, const Setting& setting)
{
    QString stored = readSetting(values, setting.key, setting.defaultText);
    if (stored.isEmpty())
        stored = setting.defaultText;
    if (setting.form == UpperText)
        return {-1, stored};
    const auto withPlace = [&](const QString& text) {
        return u"%1\n%2=%3 in %4"_s.arg(text, setting.key, stored, settingsPath(values));
    };
    return {atPlace(withPlace, [&] { return indexOf(setting, stored); }), {}};
}

} // namespace

std::span<const Setting> settings()
{
    return table;
}

QStringList itemsOf(const Setting& setting)
{
    return setting.items.toString().split(u'|');
}

QString modelInWords(const RegisterModel& model)
{
    return itemsOf(*std::ranges::find(table, "ECRModel"_L1, &Setting::key))[model.place];
}

QString storedText(const Setting& setting, const SettingValue& value)
{
    switch (setting.form) {
    case SignedIndex:
        return signedNumberText(value.index);
    case PlainIndex:
        return numberText(value.index);
    case UpperText:
        break;
    }
    return value.text.toUpper();
}

QList<SettingValue> readSettings(const ApplicationValues& values)
{
    QList<SettingValue> read(std::ssize(table));
    for (const int row : readingOrder)
        read[row] = readValue(values, settings()[static_cast<std::size_t>(row)]);
    return read;
}

int writeSettings(const ApplicationValues& values, const QList<SettingValue>& settingValues)
{
    const QString path = settingsPath(values);
    int written = 0;
    for (qsizetype row = 0; const auto& setting : settings()) {
        const QString text = storedText(setting, settingValues[row++]);
        written += ProfileFile::write(path, u"SetupOption"_s, setting.key, text) ? 1 : 0;
    }
    return written;
}

} // namespace norvane::customers
