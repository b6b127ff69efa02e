// See DefaultPrinter.h.
#include "paper/DefaultPrinter.h"

#include <QPrintEngine>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

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

std::unique_ptr<QPrinter> defaultPrinter()
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    return printer.isNull() ? nullptr : std::make_unique<QPrinter>(printer, QPrinter::HighResolution);
}

Sheet sheetOf(const QPrinter& printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const Margins margins = inMillimetres(layout.minimumMargins());
    if (margins == Margins())
        return {layout.orientation(), usualMargins};
    const bool isTurned = layout.orientation() == QPageLayout::Landscape;
    return {layout.orientation(), isTurned ? turned(margins) : margins};
}

/// Outside Windows the quality is an option of the print server's job, a name and a value, which the widget
/// kit sets by this number and not by a function. On Windows the full resolution is the high quality.
void askForHighQuality([[maybe_unused]] QPrinter& printer)
{
#ifndef Q_OS_WIN
    constexpr auto jobOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xfe00);
    QPrintEngine& engine = *printer.printEngine();
    const QStringList high = {u"print-quality"_s, u"5"_s};
    engine.setProperty(jobOptions, engine.property(jobOptions).toStringList() + high);
#endif
}

bool isThere(const QPrinter& printer)
{
    return printer.outputFormat() != QPrinter::NativeFormat ||
           !QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

} // namespace norvane::paper
