// The sheet before it is printed.
#pragma once

#include "overlay/SheetPrint.h"

#include <QDialog>

#include <functional>
#include <optional>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace norvane
{
class Boxes;
}

namespace norvane::overlay
{

class SheetView;

/// What the preview's buttons do beside the preview itself.
struct PreviewActions {
    /// Prints under the correction that the preview shows, which may not have been stored.
    std::function<void(const paper::PrinterCorrection&)> print;
    std::function<void()> savePdf;
    /// Prints the test page under a correction. @return false when the printer failed.
    std::function<bool(const paper::PrinterCorrection&)> printTestPage;
    /// Asks for marks and paper, above a window. @return what prints then; nothing if the user cancels.
    std::function<std::optional<TargetPrinter>(QWidget*)> chooseOptions = {};
};

/// Shows a document as a printer will print it, lists the keys that it cannot print completely and the texts
/// that it cuts, and opens its correction.
class OverlayPreview : public QDialog
{
    Q_OBJECT

public:
    /// @p document, @p corrections and @p boxes must outlive the dialog. The correction of @p target is the
    /// one that @p corrections has for its name.
    OverlayPreview(const Document& document, TargetPrinter target, PreviewActions actions,
                   const paper::PrinterCorrections& corrections, Boxes& boxes, QWidget* parent = nullptr);

private:
    using Handler = void (OverlayPreview::*)();

    void buildControls();
    QPushButton* addButton(QBoxLayout& row, const QString& name, const QString& caption, Handler handler);
    void addZoom(QBoxLayout& row);
    [[nodiscard]] QWidget* makeNotice();
    void print();
    void savePdf();
    void correct();
    void chooseOptions();
    void turnPage();
    void moveSheet();
    void take(const paper::PrinterCorrection& correction);
    void showTarget();
    [[nodiscard]] QString outsideNotice() const;
    [[nodiscard]] QString cutNotice() const;
    [[nodiscard]] QString printerName() const;

    const Document& m_document;
    TargetPrinter m_target;
    PreviewActions m_actions;
    const paper::PrinterCorrections& m_corrections;
    Boxes& m_boxes;
    SheetView* m_view;
    QLabel* m_notice = nullptr;
    QPushButton* m_move = nullptr;
    QPushButton* m_turn = nullptr;
};

} // namespace norvane::overlay
