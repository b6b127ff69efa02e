// The style of all forms.
#pragma once

#include <QProxyStyle>

namespace norvane::ui
{

/// Whether @p palette writes in pale letters.
[[nodiscard]] bool isDark(const QPalette& palette);

/// Fusion on every platform, without the icons that some desktops put on dialog buttons. Ticks, radio marks,
/// arrows and scroll bars grow with the font. The frames of boxes and of the focus can be seen in light, in
/// dark and in high contrast.
class FormStyle : public QProxyStyle
{
    Q_OBJECT

public:
    FormStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                         const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
};

} // namespace norvane::ui
