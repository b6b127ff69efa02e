// Look of the program; see Appearance.h.
#include "ui/Appearance.h"

#include "ui/FormStyle.h"
#include "ui/RegisterPicture.h"
#include "ui/SpokenCombos.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

double luminance(const QColor& colour)
{
    const auto light = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * light(colour.redF()) + 0.7152 * light(colour.greenF()) + 0.0722 * light(colour.blueF());
}

/// By the web's rules for accessible contents (1.4.3): from 1 to 21.
double contrast(const QColor& left, const QColor& right)
{
    const auto [dark, light] = std::minmax({luminance(left), luminance(right)});
    return (light + 0.05) / (dark + 0.05);
}

/// Ordinary desktops use softer texts, or distinguish windows from boxes by their backgrounds.
bool isOfHighContrast(const QPalette& palette)
{
    constexpr double least = 15;
    constexpr double sameGround = 1.1;
    const QColor window = palette.color(QPalette::Window);
    const QColor base = palette.color(QPalette::Base);
    return contrast(window, base) < sameGround &&
           contrast(window, palette.color(QPalette::WindowText)) >= least &&
           contrast(base, palette.color(QPalette::Text)) >= least;
}

/// A part of the way from the ground to the letters.
QColor paler(const QColor& text, const QColor& ground)
{
    constexpr double share = 0.6;
    const auto mixed = [](float letter, float under) {
        return static_cast<float>(letter * share + under * (1 - share));
    };
    return QColor::fromRgbF(mixed(text.redF(), ground.redF()), mixed(text.greenF(), ground.greenF()),
                            mixed(text.blueF(), ground.blueF()));
}

/// The desktop's own colours. Where it has none, the toolkit makes some up that are too pale.
QPalette contrastPalette(QPalette palette)
{
    const QColor ground = palette.color(QPalette::Window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        if (contrast(palette.color(QPalette::Disabled, role), ground) < 4.5)
            palette.setColor(QPalette::Disabled, role, paler(palette.color(role), ground));
    }
    const QColor text = palette.color(QPalette::Text);
    palette.setColor(QPalette::PlaceholderText, text);
    palette.setColor(QPalette::AlternateBase, palette.color(QPalette::Base));
    if (contrast(palette.color(QPalette::Link), ground) < 7)
        palette.setColor(QPalette::Link, palette.color(QPalette::WindowText));
    return palette;
}

struct Scheme {
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor text;
    QColor greyedText;
    QColor placeholder;
    QColor highlight;
    QColor link;
};

const Scheme light{{0xf2, 0xf4, 0xf6},  {0xff, 0xff, 0xff}, {0xf7, 0xf9, 0xfb}, colours::text,
                   colours::greyedText, {0x66, 0x70, 0x7a}, colours::accent,    colours::accent};
const Scheme dark{{0x2a, 0x2e, 0x33}, {0x1d, 0x20, 0x24}, {0x24, 0x28, 0x2c}, {0xe6, 0xea, 0xee},
                  {0x86, 0x8e, 0x96}, {0x9a, 0xa4, 0xad}, {0x2b, 0x6c, 0xa0}, {0x7c, 0xb8, 0xe8}};

/// The shades of frames and buttons follow from the window's colour.
QPalette formPalette(const Scheme& scheme)
{
    QPalette palette(scheme.window);
    palette.setColor(QPalette::Base, scheme.base);
    palette.setColor(QPalette::AlternateBase, scheme.alternateBase);
    palette.setColor(QPalette::Highlight, scheme.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, scheme.link);
    palette.setColor(QPalette::ToolTipBase, scheme.base);
    palette.setColor(QPalette::ToolTipText, scheme.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, scheme.text);
        palette.setColor(QPalette::Disabled, role, scheme.greyedText);
    }
    palette.setColor(QPalette::PlaceholderText, scheme.placeholder);
    return palette;
}

QPixmap iconOfSize(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours::accent);
    const double corner = size * 0.18;
    painter.drawRoundedRect(QRectF(0, 0, size, size), corner, corner);
    const double margin = size * 0.14;
    paintRegister(painter, QRectF(margin, margin, size - 2 * margin, size - 2 * margin));
    return pixmap;
}

} // namespace

void applyAppearance(QApplication& application)
{
    const QPalette desktop = QApplication::palette();
    QApplication::setStyle(new FormStyle);
    QApplication::setPalette(isOfHighContrast(desktop) ? contrastPalette(desktop)
                                                       : formPalette(isDark(desktop) ? dark : light));
    QFont font = QApplication::font();
    font.setPixelSize(fontPixels());
    QApplication::setFont(font);
    application.setWindowIcon(applicationIcon());
    speakCombos();
}

int fontPixels()
{
    return qMax(usualFontPixels, QFontInfo(QApplication::font()).pixelSize());
}

int scaled(double pixels)
{
    return qRound(pixels * fontPixels() / usualFontPixels);
}

QSize scaled(QSize size)
{
    return {scaled(size.width()), scaled(size.height())};
}

bool isHighContrast()
{
    return isOfHighContrast(QApplication::palette());
}

QColor colours::yielding(const QColor& usual, QPalette::ColorRole role)
{
    return isHighContrast() ? QApplication::palette().color(role) : usual;
}

QColor colours::desktop()
{
    if (isHighContrast())
        return QApplication::palette().color(QPalette::Window);
    return isDark(QApplication::palette()) ? QColor(0x16, 0x18, 0x1b) : QColor(0xc3, 0xcd, 0xd6);
}

QColor colours::heading()
{
    return QApplication::palette().color(QPalette::Link);
}

QIcon applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(iconOfSize(size));
    return icon;
}

void centreOn(QWidget& form, const QWidget& frame)
{
    form.move(qMax(0, (frame.width() - form.width()) / 2), qMax(0, (frame.height() - form.height()) / 2));
}

QRect roomOnScreen(const QWidget& form)
{
    // Desktops report the size of a frame only after the window is shown.
    constexpr QMargins frame(8, 40, 8, 10);
    return form.screen()->availableGeometry().marginsRemoved(frame);
}

void centreOnScreen(QWidget& form, QSize good)
{
    const QRect room = roomOnScreen(form);
    QRect place(QPoint(), good.boundedTo(room.size()));
    place.moveCenter(room.center());
    form.setGeometry(place);
}

} // namespace norvane::ui
