// See OverlayPreview.h.
#include "overlay/OverlayPreview.h"

#include "overlay/CorrectionForm.h"
#include "overlay/SheetFit.h"
#include "overlay/SheetPainter.h"
#include "overlay/SheetView.h"
#include "platform/Boxes.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr QSize goodSize{1120, 860};

/// Several keys, or one.
QString counted(std::size_t count, const QString& one, const QString& several)
{
    return count == 1 ? one : several.arg(count);
}

} // namespace

OverlayPreview::OverlayPreview(const Document& document, TargetPrinter target, PreviewActions actions,
                               const paper::PrinterCorrections& corrections, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_document(document), m_target(std::move(target)), m_actions(std::move(actions)),
      m_corrections(corrections), m_boxes(boxes), m_view(new SheetView(document, this))
{
    setObjectName(u"OverlayPreview"_s);
    setWindowTitle(u"Preview - %1"_s.arg(printerName()));
    buildControls();
    showTarget();
    ui::centreOnScreen(*this, goodSize.boundedTo(screen()->availableSize() * 0.94));
    m_view->setFocus();
}

QString OverlayPreview::printerName() const
{
    return m_target.name.isEmpty() ? u"PDF file"_s : m_target.name;
}

void OverlayPreview::buildControls()
{
    ui::nameControl(*m_view, u"SheetView"_s);
    auto* const column = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::controlGap;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    auto* const row = new QHBoxLayout;
    row->setSpacing(margin);
    addButton(*row, u"PrintButton"_s, u"&Print"_s, &OverlayPreview::print);
    addButton(*row, u"SaveButton"_s, u"&Save as PDF"_s, &OverlayPreview::savePdf);
    addButton(*row, u"CorrectionButton"_s, u"Printer &correction"_s, &OverlayPreview::correct);
    addButton(*row, u"OptionsButton"_s, u"Mar&ks and paper"_s, &OverlayPreview::chooseOptions)
        ->setEnabled(m_actions.chooseOptions != nullptr);
    addZoom(*row);
    m_turn = addButton(*row, u"PageButton"_s, u"Other pa&ge"_s, &OverlayPreview::turnPage);
    row->addStretch();
    addButton(*row, u"CloseButton"_s, u"C&lose"_s, &OverlayPreview::reject);
    column->addLayout(row);
    column->addWidget(makeNotice());
    column->addWidget(m_view, 1);
}

QPushButton* OverlayPreview::addButton(QBoxLayout& row, const QString& name, const QString& caption,
                                       Handler handler)
{
    QPushButton* const button = ui::makeButton(name, caption, this);
    button->setAutoDefault(false);
    button->setMinimumWidth(0); // as wide as its caption: in large type the row needs the room
    connect(button, &QPushButton::clicked, this, handler);
    row.addWidget(button);
    return button;
}

void OverlayPreview::addZoom(QBoxLayout& row)
{
    using paper::Zoom;
    QComboBox* const zoom =
        paper::addZoomBox(row, *m_view, {Zoom::FitPage, Zoom::FitWidth, Zoom::TrueSize}, this);
    zoom->setPlaceholderText(u"Own size"_s);
    zoom->setToolTip(u"Ctrl and the mouse wheel, + and - show any size"_s);
    connect(m_view, &SheetView::zoomedFreely, zoom, [zoom] { zoom->setCurrentIndex(-1); });
}

QWidget* OverlayPreview::makeNotice()
{
    auto* const frame = new QFrame(this);
    frame->setAutoFillBackground(true);
    QPalette palette = frame->palette();
    palette.setColor(QPalette::Window, ui::colours::warningPale);
    palette.setColor(QPalette::WindowText, ui::colours::text);
    frame->setPalette(palette);
    m_notice = new QLabel(frame);
    m_notice->setWordWrap(true);
    ui::nameControl(*m_notice, u"Notice"_s);
    m_move = ui::makeButton(u"MoveButton"_s, u"&Move the sheet"_s, this);
    m_move->setAutoDefault(false);
    m_move->setToolTip(u"Keeps a move in the printer's correction"_s);
    connect(m_move, &QPushButton::clicked, this, &OverlayPreview::moveSheet);
    auto* const row = new QHBoxLayout(frame);
    row->addWidget(m_notice, 1);
    row->addWidget(m_move);
    return frame;
}

void OverlayPreview::print()
{
    m_actions.print(m_target.correction);
}

void OverlayPreview::savePdf()
{
    m_actions.savePdf();
}

void OverlayPreview::correct()
{
    CorrectionForm form(m_target.name, m_target.correction, m_actions.printTestPage, m_boxes, this);
    if (form.exec() == QDialog::Accepted)
        take(form.correction());
}

/// A correction that could not be stored remains in use.
void OverlayPreview::chooseOptions()
{
    if (auto chosen = m_actions.chooseOptions(this)) {
        chosen->correction = m_target.correction;
        m_target = *std::move(chosen);
        showTarget();
    }
}

void OverlayPreview::turnPage()
{
    m_view->showPage((m_view->page() + 1) % m_view->pageCount());
}

void OverlayPreview::moveSheet()
{
    if (const auto moved = correctionToFit(m_document.layout(), m_target))
        take(*moved);
}

void OverlayPreview::take(const paper::PrinterCorrection& correction)
{
    if (!m_corrections.keep(m_target.name, correction)) {
        m_boxes.message(u"The correction could not be stored. It holds until this window is closed."_s,
                        u"Printer Correction"_s, BoxIcon::Exclamation);
    }
    m_target.correction = correction;
    showTarget();
}

void OverlayPreview::showTarget()
{
    m_view->setTarget(m_target);
    QStringList notices = {outsideNotice(), cutNotice()};
    notices.removeAll(QString());
    m_notice->setText(notices.join(u'\n'));
    m_view->setAccessibleName(notices.isEmpty() ? u"The sheet as it will print"_s : m_notice->text());
    m_notice->parentWidget()->setVisible(!notices.isEmpty());
    m_turn->setVisible(m_view->pageCount() > 1);
    const bool hasPrinter = !m_target.name.isEmpty();
    findChild<QPushButton*>(u"CorrectionButton"_s)->setEnabled(hasPrinter);
    m_move->setVisible(hasPrinter && !keysOutside(m_document.layout(), m_target).empty() &&
                       correctionToFit(m_document.layout(), m_target));
}

QString OverlayPreview::outsideNotice() const
{
    const std::size_t outside = keysOutside(m_document.layout(), m_target).size();
    if (outside == 0)
        return {};
    QString notice;
    if (isWiderThanPage(m_document.layout(), m_target)) {
        notice += u"The sheet is wider than the page. "_s;
        if (m_target.sheet.orientation == QPageLayout::Portrait)
            notice += u"Choose Landscape in Printer Setup. "_s;
        if (m_target.options.mayTakeTwoPages)
            notice += u"Two pages are not enough either. "_s;
    }
    const QString area =
        m_target.name.isEmpty()
            ? u" the usual printable area (dashed line) and may not print whole."_s
            : u" the printable area of the printer %1 (dashed line) and will not print whole."_s.arg(
                  m_target.name);
    return notice + counted(outside, u"1 key leaves"_s, u"%1 keys leave"_s) + area;
}

QString OverlayPreview::cutNotice() const
{
    const std::vector<int> cut = cutCells(m_document);
    if (cut.empty())
        return {};
    return counted(cut.size(), u"1 text is"_s, u"%1 texts are"_s) +
           u" wider than the key and will be cut, as shown. The first is \"%1\"."_s.arg(
               m_document.cell(cut.front()).text.left(60));
}

} // namespace norvane::overlay
