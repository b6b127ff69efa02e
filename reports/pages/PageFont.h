// The font of report pages. Screen, paper and PDF get one layout, whatever their resolution.
#pragma once

#include "reports/data/Alignment.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QRectF>
#include <QStringList>
#include <QTextOption>

#include <array>

class QPainter;

namespace norvane::reports
{

/// How a text on a page is drawn.
struct TextStyle {
    double size = 3.1; ///< height of the letters with the space that belongs to them, in mm
    bool isBold = false;
    QColor colour{0, 0, 0};
};

/// Measures and paints single rows of text. Control characters count and show as blanks, in every text.
class PageFont
{
public:
    PageFont();

    /// In mm.
    [[nodiscard]] double width(QStringView text, const TextStyle& style) const;
    /// The rows that @p text takes in @p width mm: broken between words, and within one only where it is
    /// wider than that.
    [[nodiscard]] QStringList wrapped(const QString& text, const TextStyle& style, double width) const;
    /// Likewise, but no word is broken: one that is wider than @p width has a row of its own.
    [[nodiscard]] QStringList wrappedWords(const QString& text, const TextStyle& style, double width) const;
    /// The text, or as much of its beginning as fits into @p width mm together with three dots.
    [[nodiscard]] QString elided(const QString& text, const TextStyle& style, double width) const;
    /// Paints one row in the middle of @p place's height; text wider than the place is narrowed, not cut.
    /// @param painter in millimetres.
    void draw(QPainter& painter, const QRectF& place, const QString& text, const TextStyle& style,
              Alignment alignment) const;

private:
    [[nodiscard]] QStringList rows(const QString& text, const TextStyle& style, double width,
                                   QTextOption::WrapMode mode) const;
    /// A font so large that the widths of its letters need no rounding.
    struct Face {
        explicit Face(bool isBold);

        QFont font;
        QFontMetricsF metrics;
        std::array<double, 0x250> advances{}; ///< of the Latin letters, which most texts are made of
    };
    [[nodiscard]] const Face& face(const TextStyle& style) const { return style.isBold ? m_bold : m_regular; }

    Face m_regular{false};
    Face m_bold{true};
};

} // namespace norvane::reports
