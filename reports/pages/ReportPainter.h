// Paints the pages of a report, the same on screen, paper and in files.
#pragma once

#include "reports/pages/ReportPages.h"

class QPainter;

namespace norvane::reports
{

/// Paints single pages of a report that ReportPages has laid out.
class ReportPainter
{
public:
    /// All must outlive this.
    ReportPainter(const ReportData& report, const ReportPages& pages, const PageFont& font);

    /// Paints the page at @p index from 0. Its heading shows the number of pages once all are laid out.
    /// @param painter in millimetres from the sheet's upper left corner.
    void paint(QPainter& painter, int index) const;

private:
    void paintHeading(QPainter& painter, int index) const;
    void paintHeadingRows(QPainter& painter, const QStringList& rows, const TextStyle& style,
                          QRectF& row) const;
    void paintOrigin(QPainter& painter, int index) const;
    void paintColumnHeadings(QPainter& painter) const;
    void paintLine(QPainter& painter, const PlacedLine& line) const;
    void paintCell(QPainter& painter, const PlacedLine& line, const CellBox& cell) const;
    void paintNotice(QPainter& painter) const;

    const ReportData& m_report;
    const ReportPages& m_pages;
    const PageFont& m_font;
};

} // namespace norvane::reports
