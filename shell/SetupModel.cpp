// Table of the settings and their form in setup.ini; see SetupModel.h.
#include "shell/SetupModel.h"

#include "base/CustomerSettings.h"
#include "platform/Numbers.h"
#include "platform/ProfileFile.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int mostRegisters = 32;
constexpr int storedBits = 16;

QStringList registerCounts()
{
    QStringList counts;
    for (int count = 1; count <= mostRegisters; ++count)
        counts.append(QString::number(count));
    return counts;
}

/// The rows in the order in which they are read, so that the first wrong value of a file is always the one
/// that is reported.
constexpr std::array readingOrder{0, 3, 7, 1, 2, 4, 5, 6};

int indexOf(const Setting& setting, const QString& stored)
{
    const int index = toWholeNumber(stored, storedBits);
    if (index < -1 || index >= setting.items.size()) {
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
    if (setting.form == SettingForm::UpperText)
        return {-1, stored};
    try {
        return {indexOf(setting, stored), {}};
    } catch (const RuntimeFailure& failure) {
        throw RuntimeFailure(failure.failure(), u"%1\n%2=%3 in %4"_s.arg(failure.text(), setting.key, stored,
                                                                         settingsPath(values)));
    }
}

QString storedText(const Setting& setting, const SettingValue& value)
{
    switch (setting.form) {
    case SettingForm::SignedIndex:
        return signedNumberText(value.index);
    case SettingForm::PlainIndex:
        return numberText(value.index);
    case SettingForm::UpperText:
        break;
    }
    return value.text.toUpper();
}

} // namespace

std::span<const Setting> settings()
{
    using enum SettingForm;
    static const std::array table{
        Setting{u"Port"_s,
                SignedIndex,
                u"0"_s,
                u"CboPort"_s,
                u"Serial Port"_s,
                {u"Port 1"_s, u"Port 2"_s, u"Port 3"_s, u"Port 4"_s}},
        Setting{u"Baud"_s,
                SignedIndex,
                u"0"_s,
                u"CboBaud"_s,
                u"Baud Rate"_s,
                {u"2400"_s, u"4800"_s, u"9600"_s, u"19200"_s}},
        Setting{u"ConnectionType"_s,
                SignedIndex,
                u"0"_s,
                u"CboConnection"_s,
                u"Connection"_s,
                {u"Direct"_s, u"Modem"_s}},
        Setting{u"NoOfECRs"_s, PlainIndex, u"0"_s, u"CboECRs"_s, u"No Of ECR's"_s, registerCounts()},
        Setting{u"ModemReset"_s, UpperText, u"AT&F"_s, u"TxtReset"_s, u"Modem Reset"_s, {}},
        Setting{u"ModemString"_s, UpperText, u"ATZ1"_s, u"TxtString"_s, u"Modem String"_s, {}},
        Setting{u"Telephone"_s, UpperText, {}, u"TxtTelephone"_s, u"Telephone No."_s, {}},
        Setting{u"ECRModel"_s,
                SignedIndex,
                u"0"_s,
                u"CboModel"_s,
                u"ECR Model"_s,
                {u"Velmar -V2"_s, u"Velmar V2 Card"_s, u"Velmar +V3"_s, u"Dorvik"_s}},
    };
    return table;
}

QList<SettingValue> readSettings(const ApplicationValues& values)
{
    QList<SettingValue> read(static_cast<qsizetype>(settings().size()));
    for (const int row : readingOrder)
        read[row] = readValue(values, settings()[static_cast<std::size_t>(row)]);
    return read;
}

void writeSettings(const ApplicationValues& values, const QList<SettingValue>& settingValues)
{
    const QString path = settingsPath(values);
    for (qsizetype row = 0; const auto& setting : settings())
        ProfileFile::write(path, u"SetupOption"_s, setting.key, storedText(setting, settingValues[row++]));
}

} // namespace norvane::shell
