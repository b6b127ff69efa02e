// See KeyText.h.
#include "keys/layout/KeyText.h"

#include "keys/layout/KeyZoom.h"
#include "ui/Appearance.h"

#include <QPainter>

#include <algorithm>

namespace norvane::keys
{
namespace
{

constexpr int markSize = 8;
/// Free left of the top of a PLU's triangle. With it four digits fit on the keys of two keyboards side by
/// side.
constexpr int markCorner = 3;
/// Smaller than the forms' font: a letter and 17 digits must fit into a key's width.
constexpr int numberFontPixels = 10;
constexpr int leastFontPixels = 7;
/// A key may be small, its letters must be read.
constexpr double leastLetters = 0.75;

/// Share of the usual size. A narrow key that is high has room for more lines instead.
double lettersOf(const QRect& cell)
{
    const QSize usual = KeyZoom::usualSize();
    const double wide = static_cast<double>(cell.width()) / usual.width();
    const double high = static_cast<double>(cell.height()) / usual.height();
    return std::max({leastLetters, wide, std::min(1.0, (wide + high) / 2)});
}

bool isNumbered(KeyState state)
{
    return state == KeyState::Plu || state == KeyState::LookUp;
}

bool isNarrow(const QRect& cell)
{
    return cell.width() < KeyZoom::usualSize().width();
}

QFont sized(QFont font, int pixels)
{
    font.setPixelSize(pixels);
    return font;
}

int widthOf(const QFont& font, const QString& text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}

/// The largest font up to @p pixels in which @p fits, or the smallest that can be read. Fonts differ in
/// width.
template <typename Fits>
QFont largest(const QFont& font, int pixels, Fits fits)
{
    while (pixels > leastFontPixels && !fits(sized(font, pixels)))
        --pixels;
    return sized(font, pixels);
}

/// "P1002" for "P00000000000001002".
QString withoutZeros(const QString& number)
{
    return number.first(1) + unfilledNumber(number.sliced(1));
}

/// One size smaller than wanted all digits can be read; from there on the zeros are left out.
QString numberFor(const QFont& font, int pixels, const QString& number, int width)
{
    return widthOf(sized(font, pixels - 1), number) <= width ? number : withoutZeros(number);
}

/// @return the height of the line.
int paintNumber(QPainter& painter, const QRect& place, const QString& number, int pixels)
{
    const QString shown = numberFor(painter.font(), pixels, number, place.width());
    painter.setFont(largest(painter.font(), pixels,
                            [&](const QFont& font) { return widthOf(font, shown) <= place.width(); }));
    const QFontMetrics metrics = painter.fontMetrics();
    painter.drawText(place, Qt::AlignLeft | Qt::AlignTop,
                     metrics.elidedText(shown, Qt::ElideMiddle, place.width()));
    return metrics.height();
}

/// In whole words over as many lines as there is room for.
void paintWords(QPainter& painter, const QRect& place, const QString& text, Qt::Alignment edge, int pixels)
{
    const int flags = static_cast<int>(Qt::AlignLeft | edge) | Qt::TextWordWrap;
    painter.setFont(largest(painter.font(), pixels, [&](const QFont& font) {
        const QSize needed = QFontMetrics(font).boundingRect(place, flags, text).size();
        return needed.width() <= place.width() && needed.height() <= place.height();
    }));
    painter.drawText(place, flags, text);
}

} // namespace

int keyMarkPixels()
{
    return ui::scaled(markSize);
}

QRect keyMarkPlace(const QRect& cell, KeyState state)
{
    const QSize mark(keyMarkPixels(), keyMarkPixels());
    const QPoint corner = cell.bottomRight() - QPoint(mark.width() + keyPadding, mark.height() + keyPadding);
    return {isNumbered(state) && isNarrow(cell) ? QPoint(corner.x(), cell.top() + keyPadding) : corner, mark};
}

void paintKeyText(QPainter& painter, const QRect& cell, const QString& text, KeyState state)
{
    const QRect place = cell.adjusted(keyPadding, keyPadding, -keyPadding, -keyPadding);
    const double letters = lettersOf(cell);
    const int pixels = qRound(ui::fontPixels() * letters);
    if (!isNumbered(state)) {
        paintWords(painter, place, QString(text).replace(u'\r', u'\n'), Qt::AlignTop, pixels);
        return;
    }
    const QRect besideMark = place.adjusted(0, 0, -keyMarkPixels() - 1, 0);
    const QFont usual = painter.font();
    const int line = paintNumber(painter, isNarrow(cell) ? besideMark.adjusted(0, 0, markCorner, 0) : place,
                                 text.section(u' ', 0, 0), qRound(ui::scaled(numberFontPixels) * letters));
    painter.setFont(usual);
    paintWords(painter, (isNarrow(cell) ? place : besideMark).adjusted(0, line, 0, 0), text.section(u' ', 1),
               Qt::AlignBottom, pixels);
}

} // namespace norvane::keys
