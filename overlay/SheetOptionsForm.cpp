// See SheetOptionsForm.h.
#include "overlay/SheetOptionsForm.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr int mostCopies = 99;
constexpr std::array formats{paper::SheetFormat::A4, paper::SheetFormat::Letter};

} // namespace

SheetOptionsForm::SheetOptionsForm(const SheetOptions& initial, int copies, QWidget* parent) : QDialog(parent)
{
    setObjectName(u"SheetOptions"_s);
    setWindowTitle(u"Marks and Paper"_s);
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::controlGap);
    m_boxes.reserve(sheetOptionRows.size());
    for (const SheetOptionRow& row : sheetOptionRows) {
        auto* const box = new QCheckBox(QString::fromLatin1(row.caption), this);
        ui::nameControl(*box, QString::fromLatin1(row.name));
        box->setChecked(initial.*row.member);
        m_boxes.push_back(box);
        column->addWidget(box);
    }
    PaperList = new QComboBox(this); // after the boxes, as Tab goes
    ui::nameControl(*PaperList, u"PaperList"_s);
    for (const paper::SheetFormat format : formats)
        PaperList->addItem(formatName(format));
    PaperList->setCurrentText(formatName(initial.format));
    Copies = new QSpinBox(this);
    ui::nameControl(*Copies, u"Copies"_s);
    Copies->setRange(1, mostCopies);
    Copies->setValue(copies);
    auto* const fields = new QFormLayout;
    fields->addRow(u"&Paper:"_s, PaperList);
    fields->addRow(u"Cop&ies:"_s, Copies);
    column->addLayout(fields);
    column->addLayout(ui::makeOkCancelRow(*this));
}

SheetOptions SheetOptionsForm::options() const
{
    SheetOptions chosen;
    for (std::size_t row = 0; row < sheetOptionRows.size(); ++row)
        chosen.*sheetOptionRows.at(row).member = m_boxes[row]->isChecked();
    chosen.format = formats.at(static_cast<std::size_t>(PaperList->currentIndex()));
    return chosen;
}

int SheetOptionsForm::copies() const
{
    return Copies->value();
}

} // namespace norvane::overlay
