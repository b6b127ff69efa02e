// See KeyFont.h.
#include "overlay/KeyFont.h"

#include "paper/UnroundedFont.h"

#include <QPainter>

namespace norvane::overlay
{
namespace
{

using paper::Length;
using paper::millimetres;

QFont fontOf(const CellFont& cell)
{
    // The system substitutes a font that it does not have, but uses any font for an empty name.
    QFont font(cell.name.isEmpty() ? CellFont().name : cell.name);
    font.setBold(cell.isBold);
    font.setItalic(cell.isItalic);
    return paper::unrounded(font);
}

double millimetresPerUnit(float points)
{
    constexpr float smallest = 0.1F; // a painter's scale may not vanish
    constexpr float largest = 2160;
    return points < smallest ? 0
                             : paper::points(qMin(points, largest)).inMillimetres() / paper::unitsPerSquare;
}

} // namespace

KeyFont::KeyFont(const CellFont& font)
    : m_font(fontOf(font)), m_metrics(m_font), m_scale(millimetresPerUnit(font.size))
{
}

Length KeyFont::width(QStringView text) const
{
    double units = 0;
    for (const QChar letter : text)
        units += m_metrics.horizontalAdvance(letter);
    return millimetres(units * m_scale);
}

Length KeyFont::height() const
{
    return millimetres((m_metrics.ascent() + m_metrics.descent()) * m_scale);
}

QString KeyFont::prefixReaching(Length maximum, const QString& text) const
{
    if (!hasLetters())
        return {};
    Length reached;
    qsizetype count = 0;
    while (count < text.size() && reached < maximum) {
        ++count;
        reached = reached + width(QStringView(text).sliced(count - 1, 1));
    }
    return text.first(count);
}

void KeyFont::draw(QPainter& painter, Length x, Length y, const QString& text) const
{
    if (!hasLetters())
        return;
    painter.save();
    painter.translate(x.inMillimetres(), y.inMillimetres());
    painter.scale(m_scale, m_scale);
    painter.setFont(m_font);
    painter.drawText(QPointF(0, m_metrics.ascent()), text);
    painter.restore();
}

} // namespace norvane::overlay
