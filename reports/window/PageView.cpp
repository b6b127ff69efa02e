// See PageView.h.
#include "reports/window/PageView.h"

#include "reports/data/PrintableText.h"
#include "reports/pages/LinkPlaces.h"
#include "reports/window/LinkMarks.h"
#include "ui/Appearance.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr int gap = 12; ///< around pages, in pixels
/// In pixels to the millimetre.
constexpr double smallestScale = 0.2;

} // namespace

struct PageView::PagePoint {
    int page;
    QPointF place; ///< in mm
};

PageView::PageView(const ReportDocument& document, QWidget* parent)
    : ZoomedView(paper::Zoom::FitWidth, smallestScale, parent), m_document(&document)
{
    // If the bar appeared only with the second page, the first one would become narrower while it is read.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void PageView::setDocument(const ReportDocument& document)
{
    m_document = &document;
    m_anchor = m_current = m_hovered = m_pressed = -1;
    updateScale();
    goToPage(0);
    updatePages();
}

void PageView::offerLinks()
{
    m_offersLinks = true;
    viewport()->setMouseTracking(true);
    viewport()->update();
}

ReadingPlace PageView::readingPlace() const
{
    return {verticalScrollBar()->value() / pagePitch(), m_current};
}

void PageView::goTo(const ReadingPlace& place)
{
    verticalScrollBar()->setValue(static_cast<int>(std::lround(place.page * pagePitch())));
    choose(place.line < m_document->report().lineCount() ? place.line : -1, false);
}

void PageView::updatePages()
{
    updateBars();
    viewport()->update();
    Q_EMIT currentPageChanged();
}

double PageView::pagePitch() const
{
    return sheet().height() * pixelsPerMillimetre() + gap;
}

/// The place of a page in the viewport, in pixels.
QRectF PageView::pageRect(int page) const
{
    const QSizeF size = sheet().size() * pixelsPerMillimetre();
    const double left = qMax<double>(gap, (viewport()->width() - size.width()) / 2);
    return {QPointF(left - horizontalScrollBar()->value(),
                    gap + page * pagePitch() - verticalScrollBar()->value()),
            size};
}

int PageView::currentPage() const
{
    const int middle = verticalScrollBar()->value() + viewport()->height() / 3;
    return qBound(0, static_cast<int>((middle - gap) / pagePitch()), m_document->pages().pageCount() - 1);
}

void PageView::goToPage(int page)
{
    const int last = m_document->pages().pageCount() - 1;
    verticalScrollBar()->setValue(static_cast<int>(std::lround(qBound(0, page, last) * pagePitch())));
}

QSizeF PageView::surroundings() const
{
    return {2 * gap, 2 * gap};
}

QSizeF PageView::contentsSize() const
{
    return {sheet().width() * pixelsPerMillimetre() + 2 * gap,
            gap + m_document->pages().pageCount() * pagePitch()};
}

/// The same part of the pages remains in sight.
void PageView::updateScale()
{
    const double place = verticalScrollBar()->value() / pagePitch();
    ZoomedView::updateScale();
    verticalScrollBar()->setValue(static_cast<int>(std::lround(place * pagePitch())));
    Q_EMIT currentPageChanged();
}

void PageView::scrollContentsBy(int dx, int dy)
{
    ZoomedView::scrollContentsBy(dx, dy);
    Q_EMIT currentPageChanged();
}

void PageView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), ui::colours::desktop());
    const auto first = static_cast<int>((verticalScrollBar()->value() - gap) / pagePitch());
    for (int page = qMax(0, first); page < m_document->pages().pageCount(); ++page) {
        if (pageRect(page).top() > viewport()->height())
            return;
        paintPage(painter, page);
    }
}

void PageView::paintPage(QPainter& painter, int page) const
{
    const QRectF rect = pageRect(page);
    painter.fillRect(rect, Qt::white);
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(pixelsPerMillimetre(), pixelsPerMillimetre());
    m_document->paint(painter, page);
    if (m_offersLinks)
        paintLinkMarks(painter, *m_document, page, m_hovered);
    if (hasChosen())
        paintChosen(painter, page);
    painter.restore();
}

bool PageView::isChosen(const PlacedLine& line) const
{
    return hasChosen() && !line.isContinued && line.line >= firstChosen() && line.line <= lastChosen();
}

void PageView::paintChosen(QPainter& painter, int page) const
{
    QColor colour = ui::colours::accent;
    colour.setAlphaF(0.25F);
    for (const PlacedLine& line : m_document->pages().placedLines(page)) {
        if (isChosen(line))
            painter.fillRect(line.place, colour);
    }
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    if (m_offersLinks && useLinks(*event))
        return;
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
    const int step = event->key() == Qt::Key_Down ? 1 : event->key() == Qt::Key_Up ? -1 : 0;
    if (step != 0 && extends && hasChosen()) {
        extendBy(step);
    } else if (step != 0) {
        scrollBy(step * arrowStep);
    } else if (event->key() == Qt::Key_Space) {
        scrollBy((viewport()->height() - arrowStep) * (extends ? -1 : 1));
    } else if (!turnPage(event->key())) {
        ZoomedView::keyPressEvent(event);
    }
}

bool PageView::useLinks(const QKeyEvent& event)
{
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    const bool isArrow = event.key() == Qt::Key_Down || event.key() == Qt::Key_Up;
    if (isArrow && event.modifiers() == Qt::ControlModifier) {
        chooseLink(event.key() == Qt::Key_Down ? 1 : -1);
        return true;
    }
    if (!isEnter || !m_document->report().linkValue(m_current))
        return false;
    Q_EMIT linkOpened(m_current);
    return true;
}

/// From the chosen line, or from the first one of the current page.
void PageView::chooseLink(int step)
{
    const qsizetype from = hasChosen() ? m_current + step : m_document->pages().page(currentPage()).firstLine;
    const qsizetype found = nextLink(m_document->report(), from, step);
    if (found >= 0)
        showLine(found);
}

void PageView::hover(qsizetype line)
{
    if (line == m_hovered)
        return;
    m_hovered = line;
    viewport()->setCursor(line < 0 ? Qt::ArrowCursor : Qt::PointingHandCursor);
    viewport()->update();
}

bool PageView::turnPage(int key)
{
    switch (key) {
    case Qt::Key_PageDown:
        goToPage(currentPage() + 1);
        return true;
    case Qt::Key_PageUp:
        // First to the top of this page, then to the one before.
        goToPage(pageRect(currentPage()).top() < 0 ? currentPage() : currentPage() - 1);
        return true;
    case Qt::Key_Home:
        goToPage(0);
        return true;
    case Qt::Key_End:
        goToPage(m_document->pages().pageCount() - 1);
        return true;
    default:
        return false;
    }
}

void PageView::scrollBy(int pixels)
{
    verticalScrollBar()->setValue(verticalScrollBar()->value() + pixels);
}

void PageView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::BackButton || event->button() == Qt::ForwardButton)
        Q_EMIT goWanted(event->button() == Qt::BackButton ? -1 : 1);
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->modifiers() == Qt::NoModifier ? linkAt(event->pos()) : -1;
    choose(lineAt(event->pos()), event->modifiers().testFlag(Qt::ShiftModifier));
}

/// Lines are chosen by pressing and dragging; only a click that does not move to another line opens one.
void PageView::mouseReleaseEvent(QMouseEvent* event)
{
    const qsizetype pressed = std::exchange(m_pressed, -1);
    if (event->button() == Qt::LeftButton && pressed >= 0 && linkAt(event->pos()) == pressed)
        Q_EMIT linkOpened(pressed);
}

bool PageView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        hover(-1);
    return ZoomedView::viewportEvent(event);
}

void PageView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        choose(lineAt(event->pos()), true);
    } else {
        hover(linkAt(event->pos()));
    }
}

/// A press beside the lines chooses nothing; a drag there changes nothing.
void PageView::choose(qsizetype line, bool extends)
{
    if (line < 0 && extends)
        return;
    m_current = line;
    if (!extends || m_anchor < 0)
        m_anchor = line;
    viewport()->update();
}

void PageView::extendBy(int lines)
{
    choose(qBound<qsizetype>(0, m_current + lines, m_document->report().lineCount() - 1), true);
    reveal(m_current);
}

void PageView::chooseAll()
{
    m_anchor = m_document->report().lineCount() > 0 ? 0 : -1;
    m_current = m_document->report().lineCount() - 1;
    viewport()->update();
}

std::optional<PageView::PagePoint> PageView::pagePointAt(QPoint place) const
{
    for (int page = 0; page < m_document->pages().pageCount(); ++page) {
        const QRectF rect = pageRect(page);
        if (rect.contains(place))
            return PagePoint{page, (place - rect.topLeft()) / pixelsPerMillimetre()};
    }
    return std::nullopt;
}

qsizetype PageView::lineAt(QPoint place) const
{
    const auto point = pagePointAt(place);
    return point ? lineOnPage(point->page, point->place) : -1;
}

qsizetype PageView::linkAt(QPoint place) const
{
    const auto point = pagePointAt(place);
    return point && m_offersLinks
               ? reports::linkAt(m_document->report(), m_document->pages(), point->page, point->place)
               : -1;
}

qsizetype PageView::lineOnPage(int page, QPointF place) const
{
    for (const PlacedLine& line : m_document->pages().placedLines(page)) {
        if (!line.isContinued && line.place.contains(place))
            return line.line;
    }
    return -1;
}

void PageView::showLine(qsizetype line)
{
    choose(line, false);
    reveal(line);
}

/// Scrolls a line that is out of sight to the middle of the view.
void PageView::reveal(qsizetype line)
{
    const auto page = m_document->pages().pageOfLine(line);
    if (!page)
        return;
    const auto placed = m_document->pages().placedLines(*page);
    const auto found = std::ranges::find_if(
        placed, [&](const PlacedLine& one) { return one.line == line && !one.isContinued; });
    const double top = pageRect(*page).top() + found->place.top() * pixelsPerMillimetre();
    const double bottom = top + found->place.height() * pixelsPerMillimetre();
    if (top < 0 || bottom > viewport()->height())
        scrollBy(static_cast<int>(top) - viewport()->height() / 2);
    say(line);
}

void PageView::say(qsizetype line)
{
    const auto placed = m_document->pages().placedLines(currentPage());
    const auto found = std::ranges::find(placed, line, &PlacedLine::line);
    if (found != placed.end())
        ui::sayItem(*this, static_cast<int>(found - placed.begin()));
}

int PageView::spokenItemCount() const
{
    return static_cast<int>(m_document->pages().placedLines(currentPage()).size());
}

ui::SpokenItem PageView::spokenItem(int index) const
{
    const PlacedLine line =
        m_document->pages().placedLines(currentPage()).at(static_cast<std::size_t>(index));
    const ReportData& report = m_document->report();
    QStringList cells;
    for (int column = 0; column < report.columnCount(); ++column)
        cells << printable(report.text(line.line, column));
    cells.removeAll(QString());
    const QRectF place(pageRect(currentPage()).topLeft() + line.place.topLeft() * pixelsPerMillimetre(),
                       line.place.size() * pixelsPerMillimetre());
    const bool isLink = m_offersLinks && report.linkValue(line.line);
    return {cells.join(u", "_s), isLink ? u"Link"_s : QString(), place.toAlignedRect(), isChosen(line)};
}

} // namespace norvane::reports
