// Look of the program; see Appearance.h.
#include "ui/Appearance.h"

#include "ui/RegisterPicture.h"
#include "ui/SpokenCombos.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Fusion on every platform, without the icons that some desktops put on dialog buttons. On a dark ground its
/// frames around boxes are darker still and could hardly be seen.
class FormStyle : public QProxyStyle
{
public:
    FormStyle() : QProxyStyle(u"Fusion"_s) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        const bool isTick = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        if (isTick && isDark(option->palette)) {
            drawWithPaleFrame<QStyleOptionButton>(element, *option, painter, widget);
        } else if (element == PE_FrameLineEdit && isDark(option->palette)) {
            drawWithPaleFrame<QStyleOptionFrame>(element, *option, painter, widget);
        } else {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }

    /// Marks the entry of the menu bar that Alt and the arrow keys have reached. Fusion marks it only once
    /// its menu is open.
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        if (element != CE_MenuBarItem || !entry || !entry->state.testFlag(State_Selected))
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionMenuItem marked(*entry);
        marked.state |= State_Sunken;
        QProxyStyle::drawControl(element, &marked, painter, widget);
    }

private:
    /// The style makes the colour of a frame from that of the window.
    template <typename Option>
    void drawWithPaleFrame(PrimitiveElement element, const QStyleOption& option, QPainter* painter,
                           const QWidget* widget) const
    {
        Option pale = static_cast<const Option&>(option);
        pale.palette.setColor(QPalette::Window, pale.palette.color(QPalette::PlaceholderText));
        QProxyStyle::drawPrimitive(element, &pale, painter, widget);
    }
};

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
    const bool systemIsDark = isDark(QApplication::palette());
    QApplication::setStyle(new FormStyle);
    QApplication::setPalette(formPalette(systemIsDark ? dark : light));
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

QColor colours::desktop()
{
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

void centreOnScreen(QWidget& form, QSize good)
{
    // Desktops tell the size of a frame only after the window is shown.
    constexpr QMargins frame(8, 40, 8, 10);
    const QRect room = form.screen()->availableGeometry().marginsRemoved(frame);
    QRect place(QPoint(), good.boundedTo(room.size()));
    place.moveCenter(room.center());
    form.setGeometry(place);
}

} // namespace norvane::ui
