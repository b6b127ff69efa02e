// See SheetPainter.h.
#include "overlay/SheetPainter.h"

#include "overlay/KeyLines.h"

#include <QPainter>

namespace norvane::overlay
{
namespace
{

using paper::Length;
using paper::millimetres;

constexpr Length bandOffset = millimetres(0.1); ///< of a band from its line, across; down only of two lines
constexpr Length singleTextOffset = millimetres(0.5);
/// Bands of one colour would show a light seam if one ended exactly where the next begins. So a band extends
/// under the next one.
constexpr Length underNextBand = millimetres(0.15);

Length halfOutline()
{
    return millimetres(OverlayPen::drawingWidth.inMillimetres() / 2);
}

} // namespace

SheetPainter::SheetPainter(QPainter& painter, const Document& document)
    : m_document(document), m_geometry(document.geometry()), m_pen(painter, m_geometry)
{
    painter.setRenderHint(QPainter::TextAntialiasing);
}

void SheetPainter::paint(const std::function<bool(const OverlayKey&)>& has)
{
    m_has = has;
    m_nextKey = 0;
    for (const KeyColumns& group : m_geometry.columns) {
        for (int column = 0; column < group.columns; ++column) {
            for (const KeyRun& run : group.runs)
                printRun(run);
        }
    }
}

void SheetPainter::printRun(const KeyRun& run)
{
    if (run.kind == KeyKind::Plain) {
        SmallKeys(run.count);
    } else {
        DoubleKeys(run.count);
    }
}

void SheetPainter::SmallKeys(int count)
{
    for (int index = 0; index < count; ++index) {
        const OverlayKey& key = takeKey();
        if (m_has(key))
            printThreeLines(key);
    }
}

void SheetPainter::DoubleKeys(int count)
{
    for (int index = 0; index < count; ++index) {
        const OverlayKey& key = takeKey();
        if (!m_has(key))
            continue;
        if (key.kind == KeyKind::Single) {
            printSingle(key);
        } else {
            printThreeLines(key);
        }
    }
}

const OverlayKey& SheetPainter::takeKey()
{
    return m_document.layout().keys()[m_nextKey++];
}

/// The outlines come before the texts: they would take the accents of the first line and the feet of the
/// third.
void SheetPainter::printThreeLines(const OverlayKey& key)
{
    printBands(key);
    trimBands(key);
    for (int line = 0; line < key.cells; ++line)
        printText(key, key.firstCell + line, key.x, lineTop(key, line));
}

Length SheetPainter::lineTop(const OverlayKey& key, int line) const
{
    return key.y + line * m_geometry.lineStep;
}

void SheetPainter::printBands(const OverlayKey& key)
{
    for (int line = 0; line < key.cells; ++line) {
        const bool isMiddle = line == 1;
        const bool isLast = line == key.cells - 1;
        const QColor colour = drawnBackground(m_document.cell(key.firstCell + line).background);
        m_pen.DrawBlock(key.x + bandOffset, lineTop(key, line) + (isMiddle ? Length() : bandOffset), colour,
                        key.width, m_geometry.bandHeight + (isLast ? Length() : underNextBand));
    }
}

/// White outlines trim the bands to the key's edge. Below the first of them no band shows.
void SheetPainter::trimBands(const OverlayKey& key)
{
    for (const Length height : m_geometry.outlines) {
        if (key.kind == KeyKind::Wide) {
            m_pen.LargeBox(key.x, key.y, Qt::white, height);
        } else {
            m_pen.DrawBox(key.x, key.y, Qt::white, height);
        }
    }
    const Length top = key.y + m_geometry.outlines.front();
    const Length bandEnd = lineTop(key, key.cells - 1) + bandOffset + m_geometry.bandHeight;
    m_pen.DrawBlock(key.x - halfOutline(), top, Qt::white, key.width + OverlayPen::drawingWidth,
                    bandEnd - top + halfOutline());
}

void SheetPainter::printSingle(const OverlayKey& key)
{
    const TextCell& cell = m_document.cell(key.firstCell);
    m_pen.DrawBlock(key.x, key.y, drawnBackground(cell.background), key.width, key.height);
    m_pen.DrawBox(key.x, key.y, drawnBackground(lightGrey), key.height);
    printText(key, key.firstCell, key.x + singleTextOffset, key.y + singleTextOffset);
}

void SheetPainter::printText(const OverlayKey& key, int cell, Length x, Length y)
{
    const TextCell& printed = m_document.cell(cell);
    if (printed.text.isEmpty())
        return;
    m_pen.setFont(printed.font, drawnText(printed.textColour));
    m_pen.PRINTTEXT(x, y, m_geometry.shape(key.kind).printWidth, RemoveCarriage(printed.text));
}

QString printedText(const Document& document, int index)
{
    const TextCell& cell = document.cell(index);
    if (cell.text.isEmpty())
        return {};
    const KeyKind kind = document.layout().keyOf(index).kind;
    return KeyFont(cell.font).prefixReaching(document.geometry().shape(kind).printWidth,
                                             RemoveCarriage(cell.text));
}

std::vector<int> cutCells(const Document& document)
{
    std::vector<int> cut;
    for (int cell = 0; cell < document.cellCount(); ++cell) {
        if (printedText(document, cell).size() < document.cell(cell).text.size())
            cut.push_back(cell);
    }
    return cut;
}

} // namespace norvane::overlay
