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

} // namespace norvane::paper
