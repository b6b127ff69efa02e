// See TakingsBars.h.
#include "shell/TakingsBars.h"

#include "ui/Appearance.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int leastBar = 60; ///< room for the longest bar
constexpr int lineGap = 4;
constexpr int axisWidth = 1;

} // namespace

TakingsBars::TakingsBars(QWidget* parent) : QWidget(parent)
{
    setObjectName(u"TakingsBars"_s);
    setAccessibleName(u"Net sales by day"_s);
}

void TakingsBars::setBars(const std::vector<OverviewBar>& bars)
{
    m_bars = bars;
    updateGeometry();
    update();
}

int TakingsBars::lineHeight() const
{
    return fontMetrics().height() + lineGap;
}

QRect TakingsBars::lineOf(int index) const
{
    return {contentsRect().left(), index * lineHeight(), contentsRect().width(), lineHeight()};
}

int TakingsBars::widest(const QString OverviewBar::*text) const
{
    int widest = 0;
    for (const OverviewBar& bar : m_bars)
        widest = std::max(widest, fontMetrics().horizontalAdvance(bar.*text));
    return widest;
}

QSize TakingsBars::sizeHint() const
{
    return {contentsMargins().left() + widest(&OverviewBar::day) + widest(&OverviewBar::value) +
                ui::scaled(leastBar) + 2 * ui::spacing::controlGap,
            spokenItemCount() * lineHeight()};
}

ui::SpokenItem TakingsBars::spokenItem(int index) const
{
    const OverviewBar& bar = m_bars[static_cast<std::size_t>(index)];
    return {u"%1: %2"_s.arg(bar.day, bar.value), {}, lineOf(index)};
}

void TakingsBars::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    for (int index = 0; index < spokenItemCount(); ++index)
        paintDay(painter, m_bars[static_cast<std::size_t>(index)], lineOf(index));
}

void TakingsBars::paintDay(QPainter& painter, const OverviewBar& bar, const QRect& line) const
{
    constexpr int gap = ui::spacing::controlGap;
    const int left = widest(&OverviewBar::day) + gap;
    const QRect room = line.adjusted(left, 0, -widest(&OverviewBar::value) - gap, 0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, bar.day);
    if (!bar.isCollected) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(line.adjusted(left, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, bar.value);
        return;
    }
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, bar.value);
    const int length = qRound((room.width() - axisWidth) * bar.share);
    painter.fillRect(
        QRect(room.left(), room.top() + lineGap / 2, axisWidth + length, room.height() - lineGap),
        palette().color(QPalette::Link));
}

} // namespace norvane::shell
