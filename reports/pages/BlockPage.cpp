// See BlockPage.h.
#include "reports/pages/BlockPage.h"

#include "reports/pages/BlockPainter.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr double columnGap = 8;
constexpr double figureGap = 3;
constexpr double blockGap = 3.6;
constexpr double smallestScale = 0.3; ///< of a layout with far too many blocks
constexpr double scaleStep = 0.98;

} // namespace

BlockPage::BlockPage(const ReportData& report, const PageFont& font, const QRectF& body)
    : m_report(report), m_font(font)
{
    do {
        m_blocks.clear();
        place(body);
        m_scale *= scaleStep;
    } while (m_scale > smallestScale && std::ranges::any_of(m_blocks, [&body](const PlacedBlock& placed) {
                 return placed.place.bottom() > body.bottom();
             }));
    m_scale /= scaleStep;
}

double BlockPage::textSize() const
{
    return BlockPainter::textSize * m_scale;
}

void BlockPage::place(const QRectF& body)
{
    placeFigures(body);
    const double top = m_blocks.empty() ? body.top() : m_blocks.back().place.bottom() + blockGap * m_scale;
    const double width = (body.width() - columnGap) / 2;
    const double left = placeColumn(BlockPlace::Left, QRectF(body.left(), top, width, 0));
    const double right = placeColumn(BlockPlace::Right, QRectF(body.right() - width, top, width, 0));
    (void)placeColumn(BlockPlace::Wide, QRectF(body.left(), std::max(left, right), body.width(), 0));
}

void BlockPage::placeFigures(const QRectF& body)
{
    const auto count = std::ranges::count(m_report.blocks, BlockKind::Figure, &ReportBlock::kind);
    const double width =
        (body.width() - static_cast<double>(count - 1) * figureGap) / static_cast<double>(count);
    QRectF place(body.left(), body.top(), width, 0);
    for (std::size_t i = 0; i < m_report.blocks.size(); ++i) {
        if (m_report.blocks[i].kind != BlockKind::Figure)
            continue;
        place.setHeight(BlockPainter(m_report.blocks[i], m_font, m_scale).height(width));
        m_blocks.push_back({i, place});
        place.translate(width + figureGap, 0);
    }
}

/// @return where the next block below @p area would begin.
double BlockPage::placeColumn(BlockPlace column, const QRectF& area)
{
    double y = area.top();
    for (std::size_t i = 0; i < m_report.blocks.size(); ++i) {
        const ReportBlock& block = m_report.blocks[i];
        if (block.kind == BlockKind::Figure || block.place != column)
            continue;
        const double height = BlockPainter(block, m_font, m_scale).height(area.width());
        m_blocks.push_back({i, QRectF(area.left(), y, area.width(), height)});
        y += height + blockGap * m_scale;
    }
    return y;
}

std::vector<PlacedLine> BlockPage::lines() const
{
    std::vector<PlacedLine> lines;
    for (const PlacedBlock& placed : m_blocks) {
        const ReportBlock& block = m_report.blocks[placed.block];
        const BlockPainter painter(block, m_font, m_scale);
        qsizetype line = block.firstLine;
        if (block.kind != BlockKind::Figure)
            lines.push_back({line++, painter.titleRect(placed.place)});
        for (qsizetype own = 0; own < block.table.lineCount(); ++own)
            lines.push_back({line++, painter.lineRect(placed.place, own)});
    }
    std::ranges::sort(lines, {}, &PlacedLine::line);
    return lines;
}

void BlockPage::paint(QPainter& painter) const
{
    for (const PlacedBlock& placed : m_blocks)
        BlockPainter(m_report.blocks[placed.block], m_font, m_scale).paint(painter, placed.place);
}

} // namespace norvane::reports
