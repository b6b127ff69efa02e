// Contents that may be larger than the screen.
#pragma once

#include <QScrollArea>

namespace norvane::ui
{

/// Shows its contents completely where the screen has room for them, and scrolls otherwise, so that large
/// type on a small screen puts no button out of reach. Buttons belong outside.
class FittingArea : public QScrollArea
{
public:
    /// Takes over @p contents. @param aboveAndBelow pixels at the usual font that the screen has for other
    /// things: the window's frame and a desktop's bars, the form's margins and buttons.
    explicit FittingArea(QWidget* contents, int aboveAndBelow = 150);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

private:
    QSize m_around; ///< pixels at the usual font
};

} // namespace norvane::ui
