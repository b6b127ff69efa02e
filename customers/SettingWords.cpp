// See SettingWords.h.
#include "customers/SettingWords.h"

#include "base/CustomerSettings.h"
#include "customers/SetupSettings.h"
#include "platform/ProfileFile.h"
#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::customers
{
namespace
{

constexpr auto modemDelay = "ModemDelay"_L1;

bool isSame(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

[[noreturn]] void failUnknown(const QString& key)
{
    QStringList keys;
    for (const Setting& setting : settings())
        keys << setting.key;
    throw SettingError(
        u"There is no setting \"%1\". The settings are: %2, %3."_s.arg(key, keys.join(u", "_s), modemDelay));
}

/// The entry that the words mean; -1 if none or several have them.
qsizetype entryOf(const QStringList& items, const QString& words)
{
    QStringList found;
    for (const QString& item : items) {
        if (isSame(item, words))
            return items.indexOf(item);
        if (!words.isEmpty() && item.contains(words, Qt::CaseInsensitive))
            found << item;
    }
    return found.size() == 1 ? items.indexOf(found.front()) : -1;
}

StoredSetting fromList(const Setting& setting, const QString& words)
{
    const QStringList items = itemsOf(setting);
    const qsizetype index = entryOf(items, words);
    if (index < 0) {
        throw SettingError(
            u"%1 cannot be \"%2\". It can be: %3."_s.arg(setting.key, words, items.join(u", "_s)));
    }
    return {setting.key, storedText(setting, {static_cast<int>(index), {}}), items[index]};
}

StoredSetting fromText(const Setting& setting, const QString& words)
{
    const bool hasControls =
        std::ranges::any_of(words, [](QChar c) { return c.category() == QChar::Other_Control; });
    if (hasControls || words.size() > profileValueLimit) {
        throw SettingError(u"%1 can be a text of up to %2 characters in one line."_s.arg(setting.key)
                               .arg(profileValueLimit));
    }
    const QString text = storedText(setting, {-1, words});
    return {setting.key, text, text};
}

StoredSetting delay(const QString& words)
{
    bool isNumber = false;
    const int seconds = words.toInt(&isNumber);
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    if (!isNumber || seconds < 0 || seconds > most)
        throw SettingError(u"%1 can be a number of seconds, 0 to %2."_s.arg(modemDelay).arg(most));
    return {modemDelay, QString::number(seconds), QString::number(seconds)};
}

} // namespace

StoredSetting settingInWords(const QString& key, const QString& words)
{
    if (isSame(key, modemDelay.toString()))
        return delay(words);
    const auto all = settings();
    const auto setting =
        std::ranges::find_if(all, [&](const Setting& each) { return isSame(key, each.key.toString()); });
    if (setting == all.end())
        failUnknown(key);
    return setting->form == SettingForm::UpperText ? fromText(*setting, words) : fromList(*setting, words);
}

void storeSettings(const QString& customerPath, const QList<StoredSetting>& changes)
{
    ApplicationValues values;
    values.customerPath = customerPath;
    for (const StoredSetting& change : changes) {
        if (!ProfileFile::write(settingsPath(values), u"SetupOption"_s, change.key, change.text)) {
            throw RuntimeFailure(Failure::PathOrFileAccess,
                                 u"%1 cannot be written, or the disk is full."_s.arg(settingsPath(values)));
        }
    }
}

} // namespace norvane::customers
