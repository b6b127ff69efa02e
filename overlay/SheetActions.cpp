// See SheetActions.h.
#include "overlay/SheetActions.h"

#include "overlay/CorrectionForm.h"
#include "overlay/OverlayPreview.h"
#include "overlay/SheetOptionsForm.h"
#include "overlay/SheetPainter.h"
#include "overlay/TestPage.h"
#include "paper/DefaultPrinter.h"
#include "paper/PrinterSheet.h"
#include "platform/Boxes.h"
#include "platform/Excerpt.h"
#include "platform/RuntimeFailure.h"

#include <QDate>
#include <QPrinterInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

QString percentOf(double stretch)
{
    return QString::number(stretch * 100, 'g', 5) + u" %"_s;
}

} // namespace

std::unique_ptr<QPrinter> findPrinter(const PrinterChoice& choice)
{
    if (choice.name.isEmpty())
        return paper::defaultPrinter();
    const QPrinterInfo printer = QPrinterInfo::printerInfo(choice.name);
    return printer.isNull() ? nullptr : std::make_unique<QPrinter>(printer, QPrinter::HighResolution);
}

SheetActions::SheetActions(const Document& document, Boxes& boxes, OverlayDialogs& dialogs,
                           PrinterInUse& printer, QString shop)
    : m_document(document), m_boxes(boxes), m_dialogs(dialogs), m_printer(printer), m_shop(std::move(shop))
{
}

void SheetActions::setUpPrinter()
{
    if (const auto chosen = m_dialogs.printer(m_printer.choice))
        m_printer.choice = *chosen;
}

std::unique_ptr<QPrinter> SheetActions::printerForSheet() const
{
    auto printer = m_printer.find(m_printer.choice);
    if (printer) {
        printer->setPageSize(pageSizeOf(m_options.format));
        printer->setPageOrientation(m_printer.choice.orientation);
        paper::askForHighQuality(*printer);
    }
    return printer;
}

TargetPrinter SheetActions::targetOf(const QPrinter& printer) const
{
    return {printer.printerName(), paper::sheetOf(printer), m_corrections.of(printer.printerName()),
            m_options, caption()};
}

TargetPrinter SheetActions::pdfTarget() const
{
    return {QString(),
            {m_printer.choice.orientation, paper::usualMargins, m_options.format},
            {},
            m_options,
            caption()};
}

/// "DEMO CAFE, Velmar keyboard, level 1, 2026-11-26".
QString SheetActions::caption() const
{
    QStringList parts{m_shop, u"%1 keyboard"_s.arg(m_document.geometry().name)};
    if (m_document.notes().level > 0)
        parts << u"level %1"_s.arg(m_document.notes().level);
    parts << QDate::currentDate().toString(Qt::ISODate);
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

std::optional<TargetPrinter> SheetActions::chooseOptions(QWidget* parent)
{
    SheetOptionsForm form(m_options, m_copies, parent);
    if (form.exec() != QDialog::Accepted)
        return std::nullopt;
    m_options = form.options();
    m_copies = form.copies();
    if (!m_keptOptions.keep(m_options)) {
        m_boxes.message(u"The choice could not be stored. It holds until the designer is closed."_s,
                        u"Marks and Paper"_s, BoxIcon::Exclamation);
    }
    return target();
}

/// Without a printer the sheet is seen as a PDF will have it.
TargetPrinter SheetActions::target() const
{
    const auto printer = printerForSheet();
    return printer ? targetOf(*printer) : pdfTarget();
}

bool SheetActions::printOn(const QString& name, const std::optional<paper::PrinterCorrection>& correction,
                           const Painter& paint) const
{
    const auto printer = printerForSheet();
    if (!printer)
        return false;
    printer->setDocName(name);
    TargetPrinter target = targetOf(*printer);
    target.correction = correction.value_or(target.correction);
    const bool isPrinted = paint(*printer, target) && paper::isThere(*printer);
    // The page size is reset to Letter afterwards. The job has ended, so this prints no further page.
    printer->setPageSize(QPageSize(QPageSize::Letter));
    return isPrinted;
}

bool SheetActions::mayCut() const
{
    const std::vector<int> cut = cutCells(m_document);
    if (cut.empty())
        return true;
    const QString first = excerpt(m_document.cell(cut.front()).text);
    const QString notice =
        cut.size() == 1
            ? u"The text \"%1\" is wider than its key and will be cut."_s.arg(first)
            : u"%1 texts are wider than their keys and will be cut, the first of them is \"%2\"."_s
                  .arg(cut.size())
                  .arg(first);
    return m_boxes.ask(notice + u"\r\rPrint all the same?"_s, u"Print Option"_s);
}

QString SheetActions::destination(const std::optional<paper::PrinterCorrection>& correction) const
{
    const TargetPrinter used = target();
    const paper::PrinterCorrection& in = correction ? *correction : used.correction;
    const bool isLandscape = used.sheet.orientation == QPageLayout::Landscape;
    const QString scale =
        in.across.stretch == in.down.stretch
            ? percentOf(in.across.stretch)
            : u"%1 across, %2 down"_s.arg(percentOf(in.across.stretch), percentOf(in.down.stretch));
    return u"Printer: %1. Paper: %2 %3. Scale: %4."_s.arg(
        used.name.isEmpty() ? u"none"_s : used.name, formatName(used.sheet.format),
        isLandscape ? u"landscape"_s : u"portrait"_s, scale);
}

bool SheetActions::print(const QString& name, const std::optional<paper::PrinterCorrection>& correction)
{
    if (!m_boxes.confirm(u"Start Printing?"_s, u"Print Option"_s) || !mayCut())
        return false;
    const auto paint = [this](QPrinter& printer, const TargetPrinter& target) {
        printer.setCopyCount(m_copies);
        return printSheet(m_document, printer, target);
    };
    const bool isPrinted = printOn(name, correction, paint);
    if (!isPrinted)
        m_boxes.message(u"Printer Failure"_s, u"Error"_s, BoxIcon::Critical);
    return isPrinted;
}

QString SheetActions::savePdf(const QString& suggested)
{
    QString path = m_boxes.fileToSave({u"Save as PDF"_s, suggested, u"PDF (*.pdf)"_s, u"pdf"_s});
    if (path.isEmpty())
        return {};
    try {
        writeSheetPdf(m_document, pdfTarget(), path);
        return path;
    } catch (const RuntimeFailure& failure) {
        m_boxes.message(failure.text(), u"Save as PDF"_s, BoxIcon::Critical);
        return {};
    }
}

void SheetActions::preview(std::function<void(const paper::PrinterCorrection&)> print,
                           std::function<void()> savePdf, QWidget* parent)
{
    OverlayPreview window(m_document, target(),
                          {std::move(print), std::move(savePdf),
                           [this](const paper::PrinterCorrection& tried) { return printTest(tried); },
                           [this](QWidget* above) {
                               return chooseOptions(above);
                           }},
                          m_corrections, m_boxes, parent);
    window.exec();
}

bool SheetActions::printTest(const paper::PrinterCorrection& correction) const
{
    return printOn(u"Test page"_s, correction, &printTestPage);
}

void SheetActions::correctPrinter(QWidget* parent)
{
    const TargetPrinter corrected = target();
    if (corrected.name.isEmpty()) {
        m_boxes.message(u"There is no printer to correct. Choose one with Printer Setup."_s,
                        u"Printer Correction"_s, BoxIcon::Information);
        return;
    }
    CorrectionForm form(
        corrected.name, corrected.correction,
        [this](const paper::PrinterCorrection& tried) { return printTest(tried); }, m_boxes, parent);
    if (form.exec() == QDialog::Accepted && !m_corrections.keep(corrected.name, form.correction())) {
        m_boxes.message(u"The correction could not be stored."_s, u"Printer Correction"_s,
                        BoxIcon::Exclamation);
    }
}

} // namespace norvane::overlay
