// The table of the link values: key, default and conversion.
#include "link/LinkSettings.h"

#include "base/CustomerSettings.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

int listIndex(const QString& text)
{
    return roundHalfEven(leadingNumber(text));
}

int smallNumber(const QString& text)
{
    using Small = std::numeric_limits<std::int16_t>;
    const int number = roundHalfEven(leadingNumber(text));
    if (number < Small::min() || number > Small::max())
        throw RuntimeFailure(Failure::Overflow, u"ModemDelay in setup.ini is out of range: %1"_s.arg(text));
    return number;
}

QString connectionWord(const QString& text)
{
    return text == "1"_L1 ? u"MODEM"_s : u"DIRECT"_s;
}

const QString carriageReturn = u"\r"_s;

struct LinkKey {
    const char* key;
    const char* defaultText;
    void (*take)(LinkSettings& link, const QString& text);
};

// clang-format off
constexpr LinkKey linkKeys[] = {
    {"Connectiontype", "0",      [](LinkSettings& l, const QString& t) { l.connectionType = connectionWord(t); }},
    {"ModemReset",     "AT&F ",  [](LinkSettings& l, const QString& t) { l.resetString = t + carriageReturn; }},
    {"ModemString",    "ATZ1 ",  [](LinkSettings& l, const QString& t) { l.setUpString = t + carriageReturn; }},
    {"telephone",      " ",      [](LinkSettings& l, const QString& t) { l.dialString = u"ATD"_s + t + carriageReturn; }},
    {"ModemDelay",     " ",      [](LinkSettings& l, const QString& t) { l.modemDelay = smallNumber(t); }},
    {"baud",           " ",      [](LinkSettings& l, const QString& t) { l.baudIndex = listIndex(t); }},
    {"port",           " ",      [](LinkSettings& l, const QString& t) { l.portIndex = listIndex(t); }},
    {"NoOfECRs",       " ",      [](LinkSettings& l, const QString& t) { l.rangeWord = numberText(listIndex(t) + 1.0) + u'T'; }},
};
// clang-format on

} // namespace

LinkSettings readLinkSettings(const ApplicationValues& values)
{
    LinkSettings link;
    for (const LinkKey& key : linkKeys)
        key.take(link, readSetting(values, QLatin1String(key.key), QLatin1String(key.defaultText)));
    return link;
}

QString registersInWords(const LinkSettings& link)
{
    const QString last = link.rangeWord.chopped(std::min<qsizetype>(1, link.rangeWord.size()));
    return last == "1"_L1 ? u"register 1"_s : u"registers 1 to %1"_s.arg(last);
}

} // namespace norvane::link
