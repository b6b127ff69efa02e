// See OverlayPrinting.h.
#include "overlay/OverlayPrinting.h"

#include "overlay/SheetPainter.h"
#include "overlay/SheetPrint.h"
#include "paper/DefaultPrinter.h"
#include "platform/Boxes.h"

#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

bool mayCut(const Document& document, Boxes& boxes)
{
    const std::vector<int> cut = cutCells(document);
    if (cut.empty())
        return true;
    const QString first = document.cell(cut.front()).text;
    const QString told =
        cut.size() == 1
            ? u"The text \"%1\" is wider than its key and will be cut."_s.arg(first)
            : u"%1 texts are wider than their keys and will be cut, the first of them is \"%2\"."_s
                  .arg(cut.size())
                  .arg(first);
    return boxes.ask(told + u"\r\rPrint all the same?"_s, u"Print Option"_s);
}

/// The system takes a job for a printer that has gone and says nothing of it.
bool isThere(const QPrinter& printer)
{
    return printer.outputFormat() != QPrinter::NativeFormat ||
           !QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

bool print(const Document& document, const QString& name, const PrinterChoice& choice,
           const PrinterFinder& finder)
{
    const std::unique_ptr<QPrinter> printer = finder(choice);
    if (!printer)
        return false;
    setUpSheet(*printer, choice);
    printer->setDocName(name);
    const QString printerName = printer->printerName();
    const bool isPrinted = printSheet(document, *printer,
                                      {printerName, paper::sheetOf(*printer),
                                       paper::PrinterCorrections::ofThisComputer().of(printerName)}) &&
                           isThere(*printer);
    // Letter is what the printer is left with. The job has ended, so no further page comes of it.
    printer->setPageSize(QPageSize(QPageSize::Letter));
    return isPrinted;
}

} // namespace

std::unique_ptr<QPrinter> findPrinter(const PrinterChoice& choice)
{
    if (choice.name.isEmpty())
        return paper::defaultPrinter();
    const QPrinterInfo printer = QPrinterInfo::printerInfo(choice.name);
    return printer.isNull() ? nullptr : std::make_unique<QPrinter>(printer, QPrinter::HighResolution);
}

void setUpSheet(QPrinter& printer, const PrinterChoice& choice)
{
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(choice.orientation);
}

void printOverlay(const Document& document, const QString& name, const PrinterChoice& choice,
                  const PrinterFinder& finder, Boxes& boxes)
{
    if (!boxes.confirm(u"Start Printing?"_s, u"Print Option"_s) || !mayCut(document, boxes))
        return;
    if (!print(document, name, choice, finder))
        boxes.message(u"Printer Failure"_s, u"Error"_s, BoxIcon::Critical);
}

} // namespace norvane::overlay
