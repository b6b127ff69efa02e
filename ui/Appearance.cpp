// Look of the program; see Appearance.h.
#include "ui/Appearance.h"

#include "ui/RegisterPicture.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

/// Fusion on every platform, without the icons that some desktops put on dialog buttons.
class FormStyle : public QProxyStyle
{
public:
    FormStyle() : QProxyStyle(u"Fusion"_s) {}

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
};

QPalette formPalette()
{
    QPalette palette(colours::window);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf7, 0xf9, 0xfb));
    palette.setColor(QPalette::Highlight, colours::accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, colours::accent);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours::text);
        palette.setColor(QPalette::Disabled, role, colours::greyedText);
    }
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
    QApplication::setStyle(new FormStyle);
    QApplication::setPalette(formPalette());
    QFont font = QApplication::font();
    font.setPixelSize(fontPixels);
    QApplication::setFont(font);
    application.setWindowIcon(applicationIcon());
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

} // namespace norvane::ui
