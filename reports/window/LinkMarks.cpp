// See LinkMarks.h.
#include "reports/window/LinkMarks.h"

#include "reports/pages/LinkPlaces.h"
#include "ui/Appearance.h"

#include <QPainter>

#include <array>

namespace norvane::reports
{
namespace
{

/// In mm.
constexpr double angleSize = 0.9;
constexpr double lineWidth = 0.3;

} // namespace

void paintLinkMarks(QPainter& painter, const ReportDocument& document, int page, qsizetype hovered)
{
    painter.setPen(QPen(ui::colours::accent, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const PlacedLine& line : document.pages().placedLines(page)) {
        const QRectF place = linkPlace(document.report(), document.pages(), line);
        if (place.isEmpty())
            continue;
        const QPointF tip(place.right(), place.center().y());
        const std::array angle{tip + QPointF(-angleSize, -angleSize), tip,
                               tip + QPointF(-angleSize, angleSize)};
        painter.drawPolyline(angle.data(), static_cast<int>(angle.size()));
        if (line.line == hovered)
            painter.drawLine(place.bottomLeft(), place.bottomRight());
    }
}

} // namespace norvane::reports
