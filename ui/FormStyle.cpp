// See FormStyle.h.
#include "ui/FormStyle.h"

#include "ui/Appearance.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

/// What the base style reserves for the arrow of a combo box.
constexpr int usualComboArrow = 19;
/// Half the width of an arrow.
/// Height that a line of a list has more than its letters.
constexpr int moreForLine = 3;
constexpr double usualArrow = 4;
constexpr double focusPen = 2;

bool growsWithFont(QStyle::PixelMetric metric)
{
    switch (metric) {
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_RadioButtonLabelSpacing:
    case QStyle::PM_MenuButtonIndicator:
    case QStyle::PM_ScrollBarExtent:
    case QStyle::PM_ScrollBarSliderMin:
    case QStyle::PM_TitleBarHeight:
    case QStyle::PM_TitleBarButtonSize:
    case QStyle::PM_TitleBarButtonIconSize:
    case QStyle::PM_SmallIconSize:
        return true;
    default:
        return false;
    }
}

int moreForCombo()
{
    return scaled(usualComboArrow) - usualComboArrow;
}

/// On a dark ground the base style's frames are darker still and could hardly be seen; for high contrast they
/// are as strong as letters. It makes their colour from that of the window.
void makeFrameVisible(QPalette& palette)
{
    if (isHighContrast()) {
        palette.setColor(QPalette::Window, palette.color(QPalette::WindowText));
    } else if (isDark(palette)) {
        palette.setColor(QPalette::Window, palette.color(QPalette::PlaceholderText));
    }
}

/// Draws with a frame that can be seen. The base style also draws parts of one control with options of
/// another, or with plain ones.
template <typename Option, typename Draw>
void drawFramed(const QStyleOption& option, const Draw& draw)
{
    if (const auto* const known = qstyleoption_cast<const Option*>(&option)) {
        Option framed(*known);
        makeFrameVisible(framed.palette);
        draw(framed);
    } else if (option.type == QStyleOption::SO_Default) {
        QStyleOption framed(option);
        makeFrameVisible(framed.palette);
        draw(framed);
    } else {
        draw(option);
    }
}

/// The base style writes titles in white on the colour of selections, and in black where the window is not
/// the active one.
QStyleOptionTitleBar readableTitle(const QStyleOptionTitleBar& option)
{
    QStyleOptionTitleBar title(option);
    title.palette.setColor(QPalette::Highlight, Qt::black);
    title.palette.setColor(QPalette::Window, Qt::white);
    return title;
}

/// Degrees by which an arrow is turned that points down.
int turnOf(QStyle::PrimitiveElement arrow)
{
    switch (arrow) {
    case QStyle::PE_IndicatorArrowUp:
        return 180;
    case QStyle::PE_IndicatorArrowLeft:
        return 90;
    case QStyle::PE_IndicatorArrowRight:
        return 270;
    default:
        return 0;
    }
}

bool isArrow(QStyle::PrimitiveElement element)
{
    return element == QStyle::PE_IndicatorArrowDown || element == QStyle::PE_IndicatorArrowUp ||
           element == QStyle::PE_IndicatorArrowLeft || element == QStyle::PE_IndicatorArrowRight;
}

void paintArrow(QPainter& painter, const QRect& place, int turn, const QColor& colour)
{
    const double half =
        qMin(usualArrow * fontPixels() / usualFontPixels, qMin(place.width(), place.height()) / 2.0);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.rotate(turn);
    QPainterPath path;
    path.addPolygon(QPolygonF{{{-half, -half / 2}, {half, -half / 2}, {0, half / 2}}});
    painter.fillPath(path, colour);
    painter.restore();
}

void paintFocus(QPainter& painter, const QRectF& place, const QPalette& palette)
{
    const auto role = isHighContrast()  ? QPalette::WindowText
                      : isDark(palette) ? QPalette::Link
                                        : QPalette::Highlight;
    constexpr double corner = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(role), focusPen));
    constexpr double half = focusPen / 2;
    painter.drawRoundedRect(place.adjusted(half, half, -half, -half), corner, corner);
    painter.restore();
}

/// With an arrow in the size of the type.
template <typename Draw>
void drawCombo(const QStyleOptionComboBox& combo, const QRect& arrow, QPainter& painter, const Draw& drawBase)
{
    QStyleOptionComboBox withoutArrow(combo);
    withoutArrow.subControls &= ~QStyle::SC_ComboBoxArrow;
    makeFrameVisible(withoutArrow.palette);
    drawBase(withoutArrow);
    paintArrow(painter, arrow, 0, combo.palette.color(QPalette::ButtonText));
    if (combo.state.testFlag(QStyle::State_HasFocus))
        paintFocus(painter, combo.rect, combo.palette);
}

void drawArrow(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter)
{
    const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
    const auto group = isEnabled ? QPalette::Active : QPalette::Disabled;
    paintArrow(painter, option.rect, turnOf(element), option.palette.color(group, QPalette::ButtonText));
}

} // namespace

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

FormStyle::FormStyle() : QProxyStyle(u"Fusion"_s) {}

void FormStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    const auto drawBase = [&](const QStyleOption& drawn) {
        QProxyStyle::drawPrimitive(element, &drawn, painter, widget);
    };
    if (isArrow(element))
        return drawArrow(element, *option, *painter);
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        return drawFramed<QStyleOptionButton>(*option, drawBase);
    case PE_PanelButtonCommand:
        drawFramed<QStyleOptionButton>(*option, drawBase);
        if (option->state.testFlag(State_HasFocus) && option->state.testFlag(State_KeyboardFocusChange))
            paintFocus(*painter, option->rect, option->palette);
        return;
    case PE_Frame:
        return drawFramed<QStyleOptionFrame>(*option, drawBase);
    case PE_FrameLineEdit:
        drawFramed<QStyleOptionFrame>(*option, drawBase);
        if (option->state.testFlag(State_HasFocus))
            paintFocus(*painter, option->rect, option->palette);
        return;
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange))
            paintFocus(*painter, option->rect, option->palette);
        return;
    default:
        return drawBase(*option);
    }
}

/// Marks the entry of the menu bar that Alt and the arrow keys have reached. Fusion marks it only once its
/// menu is open.
void FormStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element != CE_MenuBarItem || !entry || !entry->state.testFlag(State_Selected))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem marked(*entry);
    marked.state |= State_Sunken;
    QProxyStyle::drawControl(element, &marked, painter, widget);
}

/// The base style draws the arrow of a combo box in one size, and the sliders of scroll bars hardly at all.
void FormStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    const auto drawBase = [&](const QStyleOptionComplex& drawn) {
        QProxyStyle::drawComplexControl(control, &drawn, painter, widget);
    };
    const auto placeOf = [&](SubControl part) {
        return subControlRect(control, option, part, widget);
    };
    const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (title && isHighContrast()) {
        drawBase(readableTitle(*title));
    } else if (combo) {
        drawCombo(*combo, placeOf(SC_ComboBoxArrow), *painter, drawBase);
    } else {
        drawBase(*option);
        if (control == CC_ScrollBar && isHighContrast()) {
            painter->fillRect(placeOf(SC_ScrollBarSlider).adjusted(2, 2, -2, -2),
                              option->palette.color(QPalette::WindowText));
        }
    }
}

int FormStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
    return growsWithFont(metric) ? scaled(pixels) : pixels;
}

QRect FormStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const
{
    const QRect place = QProxyStyle::subControlRect(control, option, part, widget);
    if (control != CC_ComboBox)
        return place;
    const bool isLeft = option->direction == Qt::RightToLeft;
    if (part == SC_ComboBoxArrow)
        return isLeft ? place.adjusted(0, 0, moreForCombo(), 0) : place.adjusted(-moreForCombo(), 0, 0, 0);
    if (part == SC_ComboBoxEditField)
        return isLeft ? place.adjusted(moreForCombo(), 0, 0, 0) : place.adjusted(0, 0, -moreForCombo(), 0);
    return place;
}

QSize FormStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const
{
    const QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ItemViewItem) {
        return whole +
               QSize(0, scaled(moreForLine)); // or the current line loses the lower ends of its letters
    }
    return type == CT_ComboBox ? whole + QSize(moreForCombo(), 0) : whole;
}

int FormStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* answer) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    if (hint == SH_Table_GridLineColor && option && isHighContrast())
        return static_cast<int>(option->palette.color(QPalette::Text).rgb());
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace norvane::ui
