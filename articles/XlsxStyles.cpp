// See XlsxStyles.h.
#include "articles/XlsxStyles.h"

#include "articles/XmlPart.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

/// The formats that need no definition in the file, first and last number: days, times, and those of the
/// languages that write days in their own way.
constexpr auto builtInTimes = std::to_array<std::pair<int, int>>({{14, 22}, {27, 36}, {45, 47}, {50, 58}});

bool isBuiltInTime(int format)
{
    return std::ranges::any_of(
        builtInTimes, [format](const auto& span) { return format >= span.first && format <= span.second; });
}

} // namespace

bool showsTime(QStringView format)
{
    static const QRegularExpression text(uR"("[^"]*"|[\\_*].|\[(?!h+\]|m+\]|s+\])[^\]]*\])"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    static constexpr QStringView letters = u"dmyhsDMYHS";
    const QString signs = format.toString().remove(text);
    return std::ranges::any_of(signs, [](QChar letter) { return letters.contains(letter); });
}

std::vector<bool> timeStyles(XmlPart& styles)
{
    std::vector<bool> areTimes;
    QSet<int> times;
    QString list;
    styles.forEach([&] {
        if (styles.depth() == 1) {
            list = styles.name().toString();
        } else if (styles.name() == "numFmt"_L1 && showsTime(styles.attribute(u"formatCode"))) {
            times.insert(styles.attribute(u"numFmtId").toInt());
        } else if (styles.name() == "xf"_L1 && list == "cellXfs"_L1) {
            const int format = styles.attribute(u"numFmtId").toInt();
            areTimes.push_back(isBuiltInTime(format) || times.contains(format));
        }
    });
    return areTimes;
}

} // namespace norvane::articles
