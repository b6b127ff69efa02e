// See CorrectionForm.h.
#include "overlay/CorrectionForm.h"

#include "overlay/TestPage.h"
#include "platform/Boxes.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

using paper::millimetres;

constexpr double percent = 100;
constexpr int boxWidth = 110;

void setUp(QDoubleSpinBox& box, double least, double most, int decimals, const QString& unit)
{
    box.setRange(least, most);
    box.setDecimals(decimals);
    box.setSingleStep(0.1);
    box.setSuffix(u' ' + unit);
}

QString inMillimetres(paper::Length length)
{
    return QString::number(length.inMillimetres());
}

} // namespace

CorrectionForm::CorrectionForm(const QString& printer, const paper::PrinterCorrection& correction,
                               TestPagePrinter printTestPage, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_printTestPage(std::move(printTestPage)), m_boxes(boxes)
{
    setObjectName(u"PrinterCorrection"_s);
    setWindowTitle(u"Printer Correction - %1"_s.arg(printer));
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addWidget(makeMeasured());
    column->addWidget(makeCorrection());
    QPushButton* const page = ui::makeButton(u"TestPageButton"_s, u"Print &test page"_s, this);
    page->setAutoDefault(false);
    connect(page, &QPushButton::clicked, this, &CorrectionForm::printPage);
    column->addLayout(ui::makeOkCancelRow(*this, {page}));
    reset();
    showCorrection(correction);
}

QWidget* CorrectionForm::makeMeasured()
{
    auto* const frame = new QGroupBox(u"Measured on the test page"_s, this);
    auto* const grid = new QGridLayout(frame);
    m_across.length = addBox(*grid, u"MeasuredAcross"_s, u"Line &across, end to end (right: 100 mm):"_s);
    m_down.length = addBox(*grid, u"MeasuredDown"_s, u"Line &down, end to end (right: 100 mm):"_s);
    m_across.start = addBox(
        *grid, u"MeasuredLeft"_s,
        u"&Left edge of the paper to the line across (right: %1 mm):"_s.arg(inMillimetres(testLineLeft)));
    m_down.start = addBox(
        *grid, u"MeasuredTop"_s,
        u"&Upper edge of the paper to the line down (right: %1 mm):"_s.arg(inMillimetres(testLineTop)));
    m_across.rightStart = testLineLeft.inMillimetres();
    m_down.rightStart = testLineTop.inMillimetres();
    for (const Axis& axis : {m_across, m_down}) {
        setUp(*axis.length, testLineLength.inMillimetres() * paper::smallestStretch,
              testLineLength.inMillimetres() * paper::largestStretch, 1, u"mm"_s);
        setUp(*axis.start, 0, 100, 1, u"mm"_s);
    }
    addTakeOver(*grid);
    return frame;
}

void CorrectionForm::addTakeOver(QGridLayout& grid)
{
    QPushButton* const take = ui::makeButton(u"TakeOverButton"_s, u"Ta&ke over"_s, this);
    take->setAutoDefault(false);
    take->setToolTip(u"Works out the correction below from what was measured"_s);
    connect(take, &QPushButton::clicked, this, &CorrectionForm::takeOver);
    grid.addWidget(take, grid.rowCount(), 1);
}

QWidget* CorrectionForm::makeCorrection()
{
    auto* const frame = new QGroupBox(u"Correction of this printer"_s, this);
    auto* const grid = new QGridLayout(frame);
    m_across.offset = addBox(*grid, u"OffsetAcross"_s, u"Move to the &right (less than 0: to the left):"_s);
    m_down.offset = addBox(*grid, u"OffsetDown"_s, u"&Move down (less than 0: up):"_s);
    m_across.stretch = addBox(*grid, u"StretchAcross"_s, u"&Width of the printed sheet:"_s);
    m_down.stretch = addBox(*grid, u"StretchDown"_s, u"&Height of the printed sheet:"_s);
    const double largest = paper::largestOffset.inMillimetres();
    for (const Axis& axis : {m_across, m_down}) {
        setUp(*axis.offset, -largest, largest, 2, u"mm"_s);
        setUp(*axis.stretch, paper::smallestStretch * percent, paper::largestStretch * percent, 2, u"%"_s);
    }
    return frame;
}

QDoubleSpinBox* CorrectionForm::addBox(QGridLayout& grid, const QString& name, const QString& caption)
{
    auto* const label = new QLabel(caption, this);
    auto* const box = new QDoubleSpinBox(this);
    ui::nameControl(*box, name);
    box->setFixedWidth(ui::scaled(boxWidth));
    label->setBuddy(box);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0, Qt::AlignRight);
    grid.addWidget(box, row, 1);
    return box;
}

void CorrectionForm::showCorrection(const paper::PrinterCorrection& correction)
{
    showAxis(m_across, correction.across);
    showAxis(m_down, correction.down);
}

void CorrectionForm::showAxis(const Axis& axis, const paper::AxisCorrection& correction)
{
    axis.offset->setValue(correction.offset.inMillimetres());
    axis.stretch->setValue(correction.stretch * percent);
}

paper::AxisCorrection CorrectionForm::correctionOf(const Axis& axis)
{
    return {millimetres(axis.offset->value()), axis.stretch->value() / percent};
}

paper::PrinterCorrection CorrectionForm::correction() const
{
    return {correctionOf(m_across), correctionOf(m_down)};
}

void CorrectionForm::takeMeasured(const Axis& axis)
{
    showAxis(axis, improved(correctionOf(axis),
                            {millimetres(axis.rightStart), testLineLength, millimetres(axis.start->value()),
                             millimetres(axis.length->value())}));
}

/// The boxes return to the correct values, so that nothing is applied twice.
void CorrectionForm::takeOver()
{
    takeMeasured(m_across);
    takeMeasured(m_down);
    reset();
}

void CorrectionForm::reset()
{
    for (const Axis& axis : {m_across, m_down}) {
        axis.length->setValue(testLineLength.inMillimetres());
        axis.start->setValue(axis.rightStart);
    }
}

void CorrectionForm::printPage()
{
    if (!m_printTestPage(correction()))
        m_boxes.message(u"Printer Failure"_s, u"Error"_s, BoxIcon::Critical);
}

} // namespace norvane::overlay
