// See RunProgress.h.
#include "link/RunProgress.h"

#include <algorithm>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

/// No more exact than it is: "about 7 s", "about 40 s", "about 3 min".
QString about(std::chrono::milliseconds time)
{
    constexpr std::int64_t exact = 10;
    constexpr std::int64_t step = 5;
    constexpr std::int64_t minute = 60;
    const std::int64_t seconds =
        std::max(std::chrono::round<std::chrono::seconds>(time).count(), std::int64_t{1});
    if (seconds > 2 * minute)
        return u"about %1 min"_s.arg((seconds + minute / 2) / minute);
    return u"about %1 s"_s.arg(seconds <= exact ? seconds : (seconds + step - 1) / step * step);
}

} // namespace

QString RunProgress::inWords(std::chrono::milliseconds ago) const
{
    if (file == 0)
        return {};
    const QString place = u"file %1 of %2"_s.arg(file).arg(files);
    return left && *left > ago ? u"%1, %2 left"_s.arg(place, about(*left - ago)) : place;
}

} // namespace norvane::link
