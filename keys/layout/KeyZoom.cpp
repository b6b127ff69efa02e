// See KeyZoom.h.
#include "keys/layout/KeyZoom.h"

#include "keys/KeyGeometry.h"
#include "paper/Length.h"
#include "ui/Appearance.h"

#include <algorithm>
#include <cmath>

namespace norvane::keys
{
namespace
{

constexpr int leastPercent = 40;
constexpr int mostPercent = 200;
/// A higher one would look like a key of two rows.
constexpr double mostHeightOfWidth = 0.9;

int keyPixels(double twips)
{
    return static_cast<int>(ui::scaled(paper::twips(twips).inDots(paper::screenDotsPerInch)));
}

} // namespace

QSize KeyZoom::usualSize()
{
    return {keyPixels(cellWidthTwips), keyPixels(cellHeightTwips)};
}

QSize KeyZoom::sizeAt(int percent)
{
    return usualSize() * (std::clamp(percent, leastPercent, mostPercent) / 100.0);
}

QSize KeyZoom::fitting(QSize keys, QSize room)
{
    const QSize least = sizeAt(leastPercent);
    const QSize most = sizeAt(mostPercent);
    const int width = std::clamp(room.width() / keys.width(), least.width(), most.width());
    const int height = std::min(room.height() / keys.height(), static_cast<int>(width * mostHeightOfWidth));
    return {width, std::clamp(height, least.height(), most.height())};
}

int KeyZoom::percentOf(QSize key)
{
    return static_cast<int>(std::lround(100.0 * key.width() / usualSize().width()));
}

} // namespace norvane::keys
