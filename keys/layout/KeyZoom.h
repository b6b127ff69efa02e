// How large the keys of a grid are shown.
#pragma once

#include <QSize>

namespace norvane::keys
{

/// Sizes of a key in device-independent pixels, from the smallest that can be read to twice the usual one.
class KeyZoom
{
public:
    /// One turn of the wheel, or one press of a button.
    static constexpr int stepPercent = 10;

    /// The size in which the keys of every keyboard open.
    [[nodiscard]] static QSize usualSize();
    /// A key of so many per cent of the usual size, or of the nearest size that is allowed.
    [[nodiscard]] static QSize sizeAt(int percent);
    /// The largest key with which a keyboard of as many columns and rows as @p keys is inside @p room. Width
    /// and height fill it each for itself: a high key has room for a second line of its name.
    [[nodiscard]] static QSize fitting(QSize keys, QSize room);
    /// Of a key this wide, rounded.
    [[nodiscard]] static int percentOf(QSize key);
};

} // namespace norvane::keys
