// See PageFont.h.
#include "reports/pages/PageFont.h"

#include "paper/UnroundedFont.h"
#include "reports/data/PrintableText.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace norvane::reports
{
namespace
{

using paper::unitsPerSquare;

QFont pageFont(bool isBold)
{
    QFont font;
    font.setBold(isBold);
    return paper::unrounded(font);
}

QStringList rowsOf(const QTextLayout& layout)
{
    QStringList rows;
    for (int row = 0; row < layout.lineCount(); ++row) {
        const QTextLine line = layout.lineAt(row);
        rows << layout.text().mid(line.textStart(), line.textLength()).trimmed();
    }
    return rows;
}

} // namespace

PageFont::Face::Face(bool isBold) : font(pageFont(isBold)), metrics(font)
{
    for (std::size_t code = 0; code < advances.size(); ++code) {
        const QChar letter(static_cast<char16_t>(code));
        advances[code] = metrics.horizontalAdvance(printable(letter));
    }
}

PageFont::PageFont() = default;

double PageFont::width(QStringView text, const TextStyle& style) const
{
    const Face& letters = face(style);
    double units = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= letters.advances.size())
            return letters.metrics.horizontalAdvance(text.toString()) * style.size / unitsPerSquare;
        units += letters.advances[letter.unicode()];
    }
    return units * style.size / unitsPerSquare;
}

QStringList PageFont::wrapped(const QString& text, const TextStyle& style, double width) const
{
    return rows(text, style, width, QTextOption::WrapAtWordBoundaryOrAnywhere);
}

QStringList PageFont::wrappedWords(const QString& text, const TextStyle& style, double width) const
{
    return rows(text, style, width, QTextOption::WordWrap);
}

QStringList PageFont::rows(const QString& text, const TextStyle& style, double width,
                           QTextOption::WrapMode mode) const
{
    if (this->width(text, style) <= width)
        return {text};
    QTextLayout layout(printable(text), face(style).font);
    QTextOption option;
    option.setWrapMode(mode);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(std::max(width, style.size) * unitsPerSquare / style.size);
    layout.endLayout();
    return rowsOf(layout);
}

QString PageFont::elided(const QString& text, const TextStyle& style, double width) const
{
    return face(style).metrics.elidedText(printable(text), Qt::ElideRight,
                                          width * unitsPerSquare / style.size);
}

void PageFont::draw(QPainter& painter, const QRectF& place, const QString& text, const TextStyle& style,
                    Alignment alignment) const
{
    const Face& letters = face(style);
    const double natural = width(text, style);
    const double narrowed = natural > place.width() ? place.width() / natural : 1;
    const double free = place.width() - natural * narrowed;
    const double left = alignment == Alignment::Left ? 0 : alignment == Alignment::Right ? free : free / 2;
    const double scale = style.size / unitsPerSquare;
    const double baseline = (letters.metrics.ascent() - letters.metrics.descent()) / 2 * scale;
    painter.save();
    painter.translate(place.left() + left, place.center().y() + baseline);
    painter.scale(scale * narrowed, scale);
    painter.setFont(letters.font);
    painter.setPen(style.colour);
    painter.drawText(QPointF(), printable(text));
    painter.restore();
}

} // namespace norvane::reports
