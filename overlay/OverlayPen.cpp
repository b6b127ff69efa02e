// See OverlayPen.h.
#include "overlay/OverlayPen.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace norvane::overlay
{
namespace
{

using paper::Length;
using paper::millimetres;

/// The only place where lengths become the painter's numbers.
QRectF toPainter(Length x, Length y, Length width, Length height)
{
    return {x.inMillimetres(), y.inMillimetres(), width.inMillimetres(), height.inMillimetres()};
}

Length half(Length length)
{
    return millimetres(length.inMillimetres() / 2);
}

Length nothingOrMore(Length length)
{
    return std::max(length, Length());
}

/// As many letters of average width as the area holds.
QString cutToArea(const QString& text, const KeyFont& font, Length width, Length height)
{
    const double lines = std::floor(height.inMillimetres() / font.height().inMillimetres());
    const double room = lines * width.inMillimetres();
    const double needed = font.width(text).inMillimetres();
    if (needed == 0 || needed <= room)
        return text;
    return text.first(static_cast<qsizetype>(room / needed * static_cast<double>(text.size())));
}

/// How many characters of @p text make its first line: whole words, or a part of the first one.
qsizetype lineEnd(QStringView text, const KeyFont& font, Length width)
{
    qsizetype end = 0;
    for (qsizetype next = 0; next >= 0 && end < text.size();) {
        next = text.indexOf(u' ', end + 1);
        const qsizetype wordEnd = next < 0 ? text.size() : next;
        if (font.width(text.first(wordEnd)) > width)
            break;
        end = wordEnd;
    }
    if (end > 0)
        return end;
    for (end = 1; end < text.size() && font.width(text.first(end + 1)) <= width;)
        ++end;
    return end;
}

} // namespace

OverlayPen::OverlayPen(QPainter& painter, const KeyboardGeometry& geometry)
    : m_painter(painter), m_geometry(geometry)
{
}

void OverlayPen::setFont(const CellFont& font, const QColor& colour)
{
    m_font = KeyFont(font);
    m_textColour = colour;
}

void OverlayPen::DrawCmd(const DrawnControl& control)
{
    outline(control.Left, control.Top, Qt::black, control.Width, control.Height);
    const Length free = nothingOrMore(control.Height - m_font.height());
    PRINTTEXT(control.Left, control.Top + half(free), control.Width, control.Caption);
}

void OverlayPen::DrawBlock(Length x, Length y, const QColor& colour, Length width, Length height)
{
    // On a screen, two smooth edges that meet would let the ground shine through.
    const bool wasSmooth = m_painter.testRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.fillRect(toPainter(x, y, width, height), colour);
    m_painter.setRenderHint(QPainter::Antialiasing, wasSmooth);
}

void OverlayPen::PRINTTEXT(Length x, Length y, Length maximumWidth, const QString& text)
{
    const QString printed = m_font.prefixReaching(maximumWidth, text);
    const Length free = nothingOrMore(maximumWidth - m_font.width(printed));
    m_painter.setBackgroundMode(Qt::TransparentMode);
    m_painter.setPen(m_textColour);
    m_font.draw(m_painter, x + half(free), y, printed);
}

void OverlayPen::DrawBox(Length x, Length y, const QColor& colour, Length height)
{
    outline(x, y, colour, m_geometry.shape(KeyKind::Plain).width, height);
}

void OverlayPen::LargeBox(Length x, Length y, const QColor& colour, Length height)
{
    outline(x, y, colour, m_geometry.shape(KeyKind::Wide).width, height);
}

void OverlayPen::outline(Length x, Length y, const QColor& colour, Length width, Length height)
{
    QPen pen(colour, drawingWidth.inMillimetres());
    pen.setJoinStyle(Qt::MiterJoin);
    m_painter.setPen(pen);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(toPainter(x, y, width, height));
}

void OverlayPen::WordWrap(Length x, Length y, Length width, Length height, QString text)
{
    text = cutToArea(text, m_font, width, height);
    for (QStringView rest = text; !rest.isEmpty(); y = y + m_font.height()) {
        const qsizetype end = lineEnd(rest, m_font, width);
        PRINTTEXT(x, y, width, rest.first(end).toString());
        rest = rest.sliced(end);
        while (rest.startsWith(u' '))
            rest = rest.sliced(1);
    }
}

void OverlayPen::PicturePrint(const QImage& picture)
{
    const auto points = [](int count) {
        return paper::dots(count, paper::screenDotsPerInch);
    };
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    m_painter.drawImage(toPainter({}, {}, points(picture.width()), points(picture.height())), picture);
}

} // namespace norvane::overlay
