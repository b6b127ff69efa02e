// Texts and buttons of the about window; see frmAbout.h.
#include "shell/frmAbout.h"

#include "shell/AboutLabels.h"
#include "ui/Appearance.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
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

QString disclaimer()
{
    return u"Warning: this program changes how cash registers calculate, print and report. Check every "
           u"register "
           "after a transfer; its makers answer for no loss that comes from its use."_s;
}

} // namespace

frmAbout::frmAbout(Boxes& boxes, MainStatusBar& status, QWidget* parent)
    : StatusForm(u"frmAbout"_s, aboutCaption(), u"About....."_s, status, parent), m_boxes(boxes)
{
    layOut();
}

void frmAbout::layOut()
{
    auto* const rows = new QVBoxLayout(this);
    constexpr int margin = ui::spacing::formMargin;
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setSpacing(ui::spacing::groupGap);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addLayout(layOutLabels());
    auto* const line = new QFrame;
    line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
    rows->addWidget(line);
    QLabel* const lblDisclaimer = makeTextLabel(u"lblDisclaimer"_s, disclaimer());
    lblDisclaimer->setWordWrap(true);
    lblDisclaimer->setFixedWidth(textWidth);
    rows->addWidget(lblDisclaimer);
    rows->addLayout(layOutButtons());
}

QLayout* frmAbout::layOutLabels()
{
    auto* const picture = new QLabel;
    picture->setPixmap(ui::applicationIcon().pixmap(iconSide));
    const AboutLabels labels = makeAboutLabels();
    QFont bold = labels.lblTitle->font();
    bold.setBold(true);
    labels.lblTitle->setFont(bold);

    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(ui::spacing::formMargin);
    grid->addWidget(picture, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(labels.lblTitle, 0, 1);
    grid->addWidget(labels.lblVersion, 1, 1);
    grid->addWidget(labels.lblDescription, 2, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout* frmAbout::layOutButtons()
{
    QPushButton* const cmdOK = addButton(u"cmdOK"_s, u"OK"_s);
    QPushButton* const cmdSysInfo = addButton(u"cmdSysInfo"_s, u"&System Info..."_s);
    setKeys(cmdOK, cmdOK);
    connect(cmdOK, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::startSysInfo);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(ui::spacing::controlGap);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdSysInfo);
    return buttons;
}

/// No platform that the program runs on so far has a program of that kind which it could name.
void frmAbout::startSysInfo()
{
    m_boxes.message(u"System Information Is Unavailable At This Time"_s);
}

} // namespace norvane::shell
