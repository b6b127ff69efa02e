// See ChartPane.h.
#include "reports/window/ChartPane.h"

#include "reports/pages/ChartPainter.h"
#include "ui/SpokenItems.h"

#include <QPainter>
#include <QScrollBar>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr double pixelsPerMillimetre = paper::screenPixelsPerMillimetre;
constexpr double margin = 5; ///< around charts, in mm

} // namespace

class ChartPane::Sheet : public QWidget, public ui::SpokenItems
{
public:
    explicit Sheet(const ReportDocument& document) : m_document(&document) {}
    void setDocument(const ReportDocument& document)
    {
        m_document = &document;
        fitHeight();
        update();
    }

    /// Each point of each chart; its place in the picture adds no information.
    [[nodiscard]] int spokenItemCount() const override
    {
        int points = 0;
        for (const Chart& chart : m_document->report().charts)
            points += static_cast<int>(chart.points.size());
        return points;
    }
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override
    {
        auto left = static_cast<std::size_t>(index);
        const auto* chart = m_document->report().charts.data();
        for (; left >= chart->points.size(); ++chart)
            left -= chart->points.size();
        const ChartPoint& point = chart->points[left];
        const QString value = shownValue(*chart, point.value);
        return {u"%1 %2"_s.arg(point.label, value), chart->title, rect()};
    }

protected:
    void resizeEvent(QResizeEvent* /*event*/) override { fitHeight(); }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.scale(pixelsPerMillimetre, pixelsPerMillimetre);
        QPointF corner(margin, margin);
        for (const Chart& chart : m_document->report().charts) {
            const double height = heightOf(chart);
            paintChart(painter, QRectF(corner, QSizeF(chartWidth(), height - margin)), chart,
                       m_document->font());
            corner.ry() += height;
        }
    }

private:
    void fitHeight()
    {
        double height = margin;
        for (const Chart& chart : m_document->report().charts)
            height += heightOf(chart);
        setMinimumHeight(static_cast<int>(std::ceil(height * pixelsPerMillimetre)));
    }

    [[nodiscard]] double chartWidth() const { return width() / pixelsPerMillimetre - 2 * margin; }
    /// In mm, with the space below the chart; 0 for a chart without points.
    [[nodiscard]] double heightOf(const Chart& chart) const
    {
        return chart.points.empty() ? 0 : chartHeight(chart, chartWidth()) + margin;
    }

    const ReportDocument* m_document;
};

ChartPane::ChartPane(const ReportDocument& document, QWidget* parent)
    : QScrollArea(parent), m_sheet(new Sheet(document))
{
    m_sheet->setAccessibleName(u"Charts of the report"_s);
    setWidget(m_sheet);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumWidth(200);
}

void ChartPane::setDocument(const ReportDocument& document)
{
    m_sheet->setDocument(document);
    verticalScrollBar()->setValue(0);
}

} // namespace norvane::reports
