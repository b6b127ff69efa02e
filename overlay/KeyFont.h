// The letters on a key, measured as they print. Every device has the same measures, so that screen, preview
// and paper show the same part of a text.
#pragma once

#include "overlay/Document.h"

#include <QFont>
#include <QFontMetricsF>

class QPainter;

namespace norvane::overlay
{

/// A size of 0 or less draws no letters, and a size above 2,160 points is drawn at 2,160.
class KeyFont
{
public:
    /// A font that this computer does not have is replaced; Arial by one of the same widths.
    explicit KeyFont(const CellFont& font);

    [[nodiscard]] paper::Length width(QStringView text) const;
    /// From the top of a line to the top of the next.
    [[nodiscard]] paper::Length height() const;
    /// The shortest part of @p text, from its beginning, that is @p maximum wide or wider; all of a text that
    /// is not. The last letter may reach beyond @p maximum.
    [[nodiscard]] QString prefixReaching(paper::Length maximum, const QString& text) const;
    /// @param painter in millimetres. @param x, y the upper left corner of the first letter.
    void draw(QPainter& painter, paper::Length x, paper::Length y, const QString& text) const;

private:
    [[nodiscard]] bool hasLetters() const { return m_scale > 0; }

    QFont m_font;
    QFontMetricsF m_metrics;
    double m_scale; ///< mm to a unit of the font
};

} // namespace norvane::overlay
