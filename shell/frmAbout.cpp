// Texts and buttons of the about window; see frmAbout.h.
#include "shell/frmAbout.h"

#include "shell/AboutLabels.h"
#include "shell/frmSysInfo.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr int iconSide = 64;
constexpr int textWidth = 380;

constexpr auto disclaimer =
    "Warning: this program changes how cash registers calculate, print and report. Check every register "
    "after a transfer; its makers accept no liability for losses from its use."_L1;

QLabel* makePicture()
{
    auto* const picture = new QLabel;
    picture->setPixmap(ui::applicationIcon().pixmap(iconSide));
    return picture;
}

/// The picture with the labels beside it.
QLayout* makeHeading()
{
    const AboutLabels labels = makeAboutLabels();
    QFont bold = labels.lblTitle->font();
    bold.setBold(true);
    labels.lblTitle->setFont(bold);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(ui::spacing::formMargin);
    grid->addWidget(makePicture(), 0, 0, 3, 1, Qt::AlignTop);
    for (int row = 0; QLabel* const label : {labels.lblTitle, labels.lblVersion, labels.lblDescription})
        grid->addWidget(label, row++, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLabel* makeDisclaimer()
{
    QLabel* const label = makeTextLabel(u"lblDisclaimer"_s, disclaimer);
    label->setWordWrap(true);
    label->setFixedWidth(ui::scaled(textWidth));
    return label;
}

} // namespace

frmAbout::frmAbout(const ApplicationValues& values, Boxes& boxes, MainStatusBar& status, QWidget* parent)
    : StatusForm(u"frmAbout"_s, aboutCaption(), u"About....."_s, status, parent), m_values(values),
      m_boxes(boxes)
{
    layOut();
}

void frmAbout::layOut()
{
    QVBoxLayout* const column = ui::makeFormColumn(*this, ui::spacing::groupGap);
    column->addLayout(makeHeading());
    auto* const line = new QFrame;
    line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
    column->addWidget(line);
    column->addWidget(makeDisclaimer());
    column->addLayout(makeButtons());
}

QLayout* frmAbout::makeButtons()
{
    QPushButton* const cmdOK = ui::makeButton(u"cmdOK"_s, u"OK"_s, this);
    QPushButton* const cmdSysInfo = ui::makeButton(u"cmdSysInfo"_s, u"&System Info..."_s, this);
    setKeys(cmdOK, cmdOK);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdSysInfo, &QPushButton::clicked, this, [this] { showSystemInfo(m_values, m_boxes, this); });
    return ui::makeButtonRow({cmdOK, cmdSysInfo});
}

} // namespace norvane::shell
