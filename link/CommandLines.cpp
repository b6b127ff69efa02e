// Words and forms of the transfer tool's command lines.
#include "link/CommandLines.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

struct Words {
    std::array<const char*, 4> byIndex;
    const char* other;
};

constexpr Words speedWords{{"s2 ", "s4 ", "s9 ", "s1 "}, "s9 "};
constexpr Words bareRates{{"1200", "2400", "9600", "19200"}, "9600"};
constexpr Words portWords{{"c1", "c2 ", "c3 ", "c4 "}, "c1 "};

QString word(const Words& words, int index)
{
    const bool listed = index >= 0 && index < static_cast<int>(words.byIndex.size());
    return QLatin1String(listed ? words.byIndex[static_cast<std::size_t>(index)] : words.other);
}

const QString tool = u"VELMARCOMM "_s;
const QString blank = u" "_s;

} // namespace

QString speedWord(int baudIndex)
{
    return word(speedWords, baudIndex);
}

QString bareRate(int baudIndex)
{
    return word(bareRates, baudIndex);
}

QString portWord(int portIndex)
{
    return word(portWords, portIndex);
}

QString uploadLine(const LinkSettings& link, const QString& suffix)
{
    return tool + speedWord(link.baudIndex) + portWord(link.portIndex) + suffix;
}

QString downloadOpeningLine(const LinkSettings& link, const QString& suffix)
{
    return tool + speedWord(link.baudIndex) + blank + portWord(link.portIndex) + suffix;
}

QString downloadLine(const LinkSettings& link, const QString& suffix)
{
    return tool + speedWord(link.baudIndex) + u" F1 "_s + link.rangeWord + blank + portWord(link.portIndex) +
           suffix;
}

QString salesOpeningLine(const LinkSettings& link, const QString& suffix)
{
    return tool + bareRate(link.baudIndex) + blank + suffix;
}

QString salesLine(const LinkSettings& link, const QString& suffix)
{
    return tool + bareRate(link.baudIndex) + u" F1 "_s + link.rangeWord + blank + suffix;
}

} // namespace norvane::link
