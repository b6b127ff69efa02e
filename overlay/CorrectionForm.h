// The form for the errors of a printer.
#pragma once

#include "paper/PrinterCorrection.h"

#include <QDialog>

#include <functional>

class QDoubleSpinBox;
class QGridLayout;

namespace norvane
{
class Boxes;
}

namespace norvane::overlay
{

/// Two steps in one window: the values measured on the test page are applied to the correction, which can
/// also be typed. Any number of test pages can be printed meanwhile, each with the current correction.
class CorrectionForm : public QDialog
{
    Q_OBJECT

public:
    /// Prints the test page under a correction. @return false when the printer failed.
    using TestPagePrinter = std::function<bool(const paper::PrinterCorrection&)>;

    CorrectionForm(const QString& printer, const paper::PrinterCorrection& correction,
                   TestPagePrinter printTestPage, Boxes& boxes, QWidget* parent);

    [[nodiscard]] paper::PrinterCorrection correction() const;

private:
    struct Axis {
        QDoubleSpinBox* offset;
        QDoubleSpinBox* stretch;
        QDoubleSpinBox* start;
        QDoubleSpinBox* length;
        double rightStart;
    };

    [[nodiscard]] QWidget* makeMeasured();
    void addTakeOver(QGridLayout& grid);
    [[nodiscard]] QWidget* makeCorrection();
    [[nodiscard]] QDoubleSpinBox* addBox(QGridLayout& grid, const QString& name, const QString& caption);
    void showCorrection(const paper::PrinterCorrection& correction);
    static void showAxis(const Axis& axis, const paper::AxisCorrection& correction);
    [[nodiscard]] static paper::AxisCorrection correctionOf(const Axis& axis);
    static void takeMeasured(const Axis& axis);
    void takeOver();
    void reset();
    void printPage();

    TestPagePrinter m_printTestPage;
    Boxes& m_boxes;
    Axis m_across{};
    Axis m_down{};
};

} // namespace norvane::overlay
