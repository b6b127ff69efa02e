// See TestPage.h.
#include "overlay/TestPage.h"

#include "overlay/OverlayPen.h"
#include "paper/PageDevice.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

using paper::Length;
using paper::millimetres;

constexpr Length lineWidth = millimetres(0.2);
constexpr Length tick = millimetres(6);

Length before(Length place, Length width)
{
    return place - millimetres(width.inMillimetres() / 2);
}

/// A line with a tick across at either end, from outer edge to outer edge.
void drawAcross(OverlayPen& pen, Length x, Length y)
{
    pen.DrawBlock(x, before(y, lineWidth), Qt::black, testLineLength, lineWidth);
    pen.DrawBlock(x, before(y, tick), Qt::black, lineWidth, tick);
    pen.DrawBlock(x + testLineLength - lineWidth, before(y, tick), Qt::black, lineWidth, tick);
}

void drawDown(OverlayPen& pen, Length x, Length y)
{
    pen.DrawBlock(before(x, lineWidth), y, Qt::black, lineWidth, testLineLength);
    pen.DrawBlock(before(x, tick), y, Qt::black, tick, lineWidth);
    pen.DrawBlock(before(x, tick), y + testLineLength - lineWidth, Qt::black, tick, lineWidth);
}

void explain(OverlayPen& pen, const QString& printer)
{
    constexpr Length left = millimetres(35);
    constexpr Length width = millimetres(130);
    pen.setFont({u"Arial"_s, 12, true, false}, Qt::black);
    pen.DrawCmd({left, millimetres(150), width, millimetres(9), u"Test page of the printer "_s + printer});
    pen.setFont({u"Arial"_s, 10, false, false}, Qt::black);
    pen.WordWrap(
        left, millimetres(162), width, millimetres(40),
        u"Measure with a ruler: how long each of the two lines is, how far the line across begins from the "
        "left edge of the paper, and how far the line down begins from its upper edge. Right are 100 mm, "
        "100 mm, %1 mm and %2 mm. Type what you measure into the printer correction."_s
            .arg(testLineLeft.inMillimetres())
            .arg(testLineTop.inMillimetres()));
}

} // namespace

bool printTestPage(QPagedPaintDevice& device, const TargetPrinter& target)
{
    paper::PageDevice paper(device, pageSizeOf(target.sheet.format), target.sheet.orientation);
    QPainter& painter = paper.nextPage();
    painter.setTransform(target.correction.transform(), true);
    OverlayPen pen(painter, geometryOf(Keyboard::Dorvik));
    const Length half = millimetres(testLineLength.inMillimetres() / 2);
    drawAcross(pen, testLineLeft, testLineTop + half);
    drawDown(pen, testLineLeft + half, testLineTop);
    explain(pen, target.name);
    return paper.finish();
}

} // namespace norvane::overlay
