// Picture and texts of the splash; see frmSplash.h.
#include "shell/frmSplash.h"

#include "shell/AboutLabels.h"
#include "ui/Appearance.h"
#include "ui/RegisterPicture.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

constexpr QSize splashSize{560, 260};
constexpr int pictureSide = 160;
constexpr int pictureMargin = 36;
constexpr int titlePixels = 20;
constexpr int textPixels = 14;

void setLook(QLabel& label, int pixels, QFont::Weight weight, const QColor& colour)
{
    QFont font = label.font();
    font.setPixelSize(ui::scaled(pixels));
    font.setWeight(weight);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, colour);
    label.setPalette(palette);
    label.setWordWrap(true);
}

AboutLabels makeSplashLabels()
{
    const AboutLabels labels = makeAboutLabels();
    setLook(*labels.lblTitle, titlePixels, QFont::DemiBold, Qt::white);
    setLook(*labels.lblDescription, textPixels, QFont::Normal, ui::colours::linePale);
    setLook(*labels.lblVersion, textPixels, QFont::Normal, ui::colours::linePale);
    return labels;
}

} // namespace

frmSplash::frmSplash(MainStatusBar& status)
    : StatusForm(u"frmSplash"_s, aboutCaption(), u"About....."_s, status, nullptr)
{
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFixedSize(ui::scaled(splashSize));
    layOut();
}

void frmSplash::layOut()
{
    const AboutLabels labels = makeSplashLabels();
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(ui::scaled(pictureSide + 2 * pictureMargin), ui::scaled(pictureMargin),
                             ui::scaled(pictureMargin), ui::scaled(pictureMargin));
    rows->setSpacing(ui::spacing::groupGap);
    rows->addStretch();
    rows->addWidget(labels.lblTitle);
    rows->addWidget(labels.lblDescription);
    rows->addStretch();
    rows->addWidget(labels.lblVersion);
}

void frmSplash::unload()
{
    m_unloading = true;
    close();
}

void frmSplash::closeEvent(QCloseEvent* event)
{
    if (m_unloading) {
        StatusForm::closeEvent(event);
    } else {
        event->ignore();
    }
}

void frmSplash::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QLinearGradient ground(rect().topLeft(), rect().bottomRight());
    ground.setColorAt(0, ui::colours::accent);
    ground.setColorAt(1, ui::colours::accentDark);
    painter.fillRect(rect(), ground);
    ui::paintRegister(painter,
                      QRectF(pictureMargin, (height() - pictureSide) / 2.0, pictureSide, pictureSide));
}

} // namespace norvane::shell
