// The one page of a summary: its blocks in two columns. All lengths are in millimetres from the sheet's upper
// left corner.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/pages/PageFont.h"
#include "reports/pages/PlacedLine.h"

#include <QRectF>

#include <vector>

class QPainter;

namespace norvane::reports
{

/// The place of a block.
struct PlacedBlock {
    std::size_t block = 0; ///< counts the report's blocks from 0
    QRectF place;
};

/// Places figures side by side at the top, below them two columns of blocks, and wide blocks at the foot. A
/// summary is always one page: where its blocks are too high for it, all letters become smaller.
class BlockPage
{
public:
    /// @p report and @p font must outlive this. @param body the page below its heading.
    BlockPage(const ReportData& report, const PageFont& font, const QRectF& body);

    /// The lines of the report, which are the titles and lines of its blocks.
    [[nodiscard]] std::vector<PlacedLine> lines() const;
    [[nodiscard]] const std::vector<PlacedBlock>& blocks() const { return m_blocks; }
    /// The height of the letters in the blocks, in mm.
    [[nodiscard]] double textSize() const;
    void paint(QPainter& painter) const;

private:
    void place(const QRectF& body);
    void placeFigures(const QRectF& body);
    [[nodiscard]] double placeColumn(BlockPlace column, const QRectF& area);

    const ReportData& m_report;
    const PageFont& m_font;
    double m_scale = 1; ///< of letters and rows
    std::vector<PlacedBlock> m_blocks;
};

} // namespace norvane::reports
