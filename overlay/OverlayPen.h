// What an overlay is drawn with. Lengths become a painter's millimetres here and nowhere else.
#pragma once

#include "overlay/KeyFont.h"

class QImage;

namespace norvane::overlay
{

/// A control as it is drawn on paper.
struct DrawnControl {
    paper::Length Left;
    paper::Length Top;
    paper::Length Width;
    paper::Length Height;
    QString Caption;
};

/// Draws on any painter whose unit is a millimetre. Outlines are lines of drawing width 8: eight dots at 300
/// dpi, half of them on either side.
class OverlayPen
{
public:
    /// Both must outlive this.
    OverlayPen(QPainter& painter, const KeyboardGeometry& geometry);

    /// The font and colour of the texts that follow.
    void setFont(const CellFont& font, const QColor& colour);

    /// Outlines a control's rectangle in black and prints its caption in the middle.
    void DrawCmd(const DrawnControl& control);
    /// Fills a rectangle, without an outline.
    void DrawBlock(paper::Length x, paper::Length y, const QColor& colour, paper::Length width,
                   paper::Length height);
    /// Prints the part of @p text that fits @p maximumWidth, its top at @p y, centred in that width from @p x
    /// on and never left of it. The background is not painted.
    void PRINTTEXT(paper::Length x, paper::Length y, paper::Length maximumWidth, const QString& text);
    /// Outlines a rectangle of a plain key's width.
    void DrawBox(paper::Length x, paper::Length y, const QColor& colour, paper::Length height);
    /// Outlines a rectangle of a wide key's width.
    void LargeBox(paper::Length x, paper::Length y, const QColor& colour, paper::Length height);
    /// Prints a text in an area, line below line, each in the middle of its width. A text too long for the
    /// area is cut to as many letters of average width as it holds. Lines break at blanks, and within a word
    /// that is wider than the area.
    void WordWrap(paper::Length x, paper::Length y, paper::Length width, paper::Length height, QString text);
    /// Copies a picture to the upper left corner, a point of it as large as a pixel of the screen: 15 twips.
    void PicturePrint(const QImage& picture);

    /// Of the lines that outlines are drawn with.
    static constexpr paper::Length drawingWidth = paper::dots(8, 300);

private:
    void outline(paper::Length x, paper::Length y, const QColor& colour, paper::Length width,
                 paper::Length height);

    QPainter& m_painter;
    const KeyboardGeometry& m_geometry;
    KeyFont m_font{CellFont()};
    QColor m_textColour = Qt::black;
};

} // namespace norvane::overlay
