// See PrinterSheet.h.
#include "paper/PrinterSheet.h"

#include <QPrinter>

namespace norvane::paper
{
namespace
{

Margins inMillimetres(const QMarginsF& margins)
{
    return {millimetres(margins.left()), millimetres(margins.top()), millimetres(margins.right()),
            millimetres(margins.bottom())};
}

/// Outside Windows the margins of upright paper are reported for both orientations. A landscape sheet is
/// printed turned to the left: its upper edge is the paper's left one.
Margins turned([[maybe_unused]] const Margins& upright)
{
#ifdef Q_OS_WIN
    return upright;
#else
    return {upright.bottom, upright.left, upright.top, upright.right};
#endif
}

} // namespace

Sheet sheetOf(const QPrinter& printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const bool isLetter = layout.pageSize().id() == QPageSize::Letter;
    const SheetFormat format = isLetter ? SheetFormat::Letter : SheetFormat::A4;
    const Margins margins = inMillimetres(layout.minimumMargins());
    if (margins == Margins())
        return {layout.orientation(), usualMargins, format};
    const bool isTurned = layout.orientation() == QPageLayout::Landscape;
    return {layout.orientation(), isTurned ? turned(margins) : margins, format};
}

} // namespace norvane::paper
