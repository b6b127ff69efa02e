// See DefaultPrinter.h.
#include "paper/DefaultPrinter.h"

#include <QPrinterInfo>

namespace norvane::paper
{

std::unique_ptr<QPrinter> defaultPrinter()
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    return printer.isNull() ? nullptr : std::make_unique<QPrinter>(printer, QPrinter::HighResolution);
}

Sheet sheetOf(const QPrinter& printer)
{
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF margins = layout.minimumMargins();
    if (margins.isNull())
        return {layout.orientation(), usualMargins};
    return {layout.orientation(),
            {millimetres(margins.left()), millimetres(margins.top()), millimetres(margins.right()),
             millimetres(margins.bottom())}};
}

bool isThere(const QPrinter& printer)
{
    return printer.outputFormat() != QPrinter::NativeFormat ||
           !QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

} // namespace norvane::paper
