// See DefaultPrinter.h.
#include "paper/DefaultPrinter.h"

#include <QPrintEngine>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::paper
{

std::unique_ptr<QPrinter> defaultPrinter()
{
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    return printer.isNull() ? nullptr : std::make_unique<QPrinter>(printer, QPrinter::HighResolution);
}

/// Outside Windows the quality is an option of the print server's job, a name and a value, which the toolkit
/// sets by this number and not by a function. On Windows the full resolution is the high quality.
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
