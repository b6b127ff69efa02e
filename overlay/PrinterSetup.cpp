// See PrinterSetup.h.
#include "overlay/PrinterSetup.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr int listWidth = 280;

} // namespace

PrinterSetup::PrinterSetup(const PrinterChoice& initial, QWidget* parent)
    : QDialog(parent), PrinterList(new QComboBox(this))
{
    setObjectName(u"PrinterSetup"_s);
    setWindowTitle(u"Printer Setup"_s);
    ui::nameControl(*PrinterList, u"PrinterList"_s);
    PrinterList->setMinimumWidth(ui::scaled(listWidth));
    fillPrinters(initial.name);
    auto* const label = new QLabel(u"Prin&ter:"_s, this);
    label->setBuddy(PrinterList);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    column->addWidget(label);
    column->addWidget(PrinterList);
    column->addWidget(makeOrientation(initial.orientation));
    column->addLayout(ui::makeOkCancelRow(*this));
}

/// A chosen printer that was removed since remains in the list: printing reports the failure.
void PrinterSetup::fillPrinters(const QString& chosen)
{
    const QString usual = QPrinterInfo::defaultPrinterName();
    PrinterList->addItem(usual.isEmpty() ? u"Default printer (none)"_s : u"Default printer (%1)"_s.arg(usual),
                         QString());
    QStringList names = QPrinterInfo::availablePrinterNames();
    if (!chosen.isEmpty() && !names.contains(chosen))
        names += chosen;
    for (const QString& name : names)
        PrinterList->addItem(name, name);
    PrinterList->setCurrentIndex(qMax(0, PrinterList->findData(chosen)));
}

QWidget* PrinterSetup::makeOrientation(QPageLayout::Orientation chosen)
{
    auto* const frame = new QGroupBox(u"Orientation of the A4 sheet"_s, this);
    auto* const row = new QHBoxLayout(frame);
    auto* const portrait = new QRadioButton(u"&Portrait"_s, frame);
    Landscape = new QRadioButton(u"&Landscape (the keyboards need it)"_s, frame);
    ui::nameControl(*portrait, u"Portrait"_s);
    ui::nameControl(*Landscape, u"Landscape"_s);
    (chosen == QPageLayout::Landscape ? Landscape : portrait)->setChecked(true);
    row->addWidget(portrait);
    row->addWidget(Landscape);
    return frame;
}

PrinterChoice PrinterSetup::choice() const
{
    return {PrinterList->currentData().toString(),
            Landscape->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait};
}

} // namespace norvane::overlay
