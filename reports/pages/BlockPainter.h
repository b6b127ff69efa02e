// Sizes of a summary's blocks, and how each kind is painted.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/pages/PageFont.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace norvane::reports
{

/// Measures and paints one block. All lengths are in mm.
class BlockPainter
{
public:
    /// All must outlive this. @param scale of letters and rows, 1 where there is room enough.
    BlockPainter(const ReportBlock& block, const PageFont& font, double scale)
        : m_block(block), m_font(font), m_scale(scale)
    {
    }

    [[nodiscard]] double height(double width) const;
    /// The title or, of a figure, all of it.
    [[nodiscard]] QRectF titleRect(const QRectF& place) const;
    /// The line of the table.
    [[nodiscard]] QRectF lineRect(const QRectF& place, qsizetype line) const;
    void paint(QPainter& painter, const QRectF& place) const;

    /// Height of letters at scale 1.
    static constexpr double textSize = 2.7;

private:
    /// Where the columns of a table are, from its left edge.
    struct Columns {
        double letters = 1; ///< size of the letters, less than 1 where large numbers need the room
        std::vector<double> lefts = {};
        std::vector<double> widths = {};
    };

    [[nodiscard]] TextStyle style(bool isBold = false) const { return {textSize * m_scale, isBold}; }
    [[nodiscard]] bool hasHeadings() const;
    [[nodiscard]] double rowHeight() const;
    [[nodiscard]] double numberWidth(int column) const;
    [[nodiscard]] double nameWidth() const;
    [[nodiscard]] Columns columnsIn(double width) const;
    [[nodiscard]] Columns heatColumnsIn(double width) const;
    [[nodiscard]] static QRectF cellRect(const QRectF& row, const Columns& columns, int column);
    [[nodiscard]] QStringList rowsOfText(double width) const;
    void paintFigure(QPainter& painter, const QRectF& place) const;
    void paintTitle(QPainter& painter, const QRectF& place) const;
    void paintHeadings(QPainter& painter, const QRectF& row, const Columns& columns) const;
    void paintLine(QPainter& painter, const QRectF& row, const Columns& columns, qsizetype line) const;
    void paintHeat(QPainter& painter, const QRectF& place, const Columns& columns) const;
    void paintText(QPainter& painter, const QRectF& place) const;

    const ReportBlock& m_block;
    const PageFont& m_font;
    double m_scale;
};

} // namespace norvane::reports
