// What an overlay form does with the sheet: preview, printing, PDF, the printer's set-up and correction.
#pragma once

#include "overlay/OverlayDialogs.h"
#include "overlay/SheetPrint.h"

#include <QPrinter>

#include <functional>
#include <memory>

class QWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::overlay
{

/// Finds the printer that was chosen; null when the system does not have it (any more).
using SheetPrinterFinder = std::function<std::unique_ptr<QPrinter>(const PrinterChoice&)>;
[[nodiscard]] std::unique_ptr<QPrinter> findPrinter(const PrinterChoice& choice);

/// Where sheets are printed. The designers share one as long as the program runs.
struct PrinterInUse {
    PrinterChoice choice;
    SheetPrinterFinder find = findPrinter;
};

/// Works on a document and a printer. All arguments must outlive this.
class SheetActions
{
public:
    /// @param shop whose keyboard it is, for the caption.
    SheetActions(const Document& document, Boxes& boxes, OverlayDialogs& dialogs, PrinterInUse& printer,
                 QString shop = {});

    void setUpPrinter();
    /// Printer, paper and scale of the next print, in words. @param correction as for print().
    [[nodiscard]] QString destination(const std::optional<paper::PrinterCorrection>& correction) const;
    /// Asks whether to start, and once more if texts will be cut; reports a failure of the printer.
    /// @param name of the document, for the print queue.
    /// @param correction in force; without one, the printer's stored one.
    /// @return whether the sheet was sent to the printer.
    bool print(const QString& name, const std::optional<paper::PrinterCorrection>& correction = {});
    /// @param suggested path. @return where the file was written; empty when it was not.
    QString savePdf(const QString& suggested);
    /// @param print what the preview's Print button does, under the correction that the preview shows.
    /// @param savePdf what its other button does.
    void preview(std::function<void(const paper::PrinterCorrection&)> print, std::function<void()> savePdf,
                 QWidget* parent);
    /// Lets the user measure and correct the chosen printer.
    void correctPrinter(QWidget* parent);

private:
    using Painter = std::function<bool(QPrinter&, const TargetPrinter&)>;

    [[nodiscard]] TargetPrinter target() const;
    [[nodiscard]] TargetPrinter targetOf(const QPrinter& printer) const;
    [[nodiscard]] std::unique_ptr<QPrinter> printerForSheet() const;
    [[nodiscard]] TargetPrinter pdfTarget() const;
    [[nodiscard]] QString caption() const;
    [[nodiscard]] std::optional<TargetPrinter> chooseOptions(QWidget* parent);
    [[nodiscard]] bool mayCut() const;
    [[nodiscard]] bool printOn(const QString& name, const std::optional<paper::PrinterCorrection>& correction,
                               const Painter& paint) const;
    [[nodiscard]] bool printTest(const paper::PrinterCorrection& correction) const;

    const Document& m_document;
    Boxes& m_boxes;
    OverlayDialogs& m_dialogs;
    PrinterInUse& m_printer;
    QString m_shop;
    KeptSheetOptions m_keptOptions = KeptSheetOptions::ofThisUser();
    SheetOptions m_options = m_keptOptions.read();
    int m_copies = 1; ///< until the designer is closed
    paper::PrinterCorrections m_corrections = paper::PrinterCorrections::ofThisComputer();
};

} // namespace norvane::overlay
