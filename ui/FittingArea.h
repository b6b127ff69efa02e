// Contents that may be larger than the screen.
#pragma once

#include <QScrollArea>

namespace norvane::ui
{

/// Shows its contents whole where the screen has room for them, and scrolls otherwise, so that large type on
/// a small screen puts no button out of reach. Buttons belong outside.
class FittingArea : public QScrollArea
{
public:
    /// Takes over @p contents.
    explicit FittingArea(QWidget* contents, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace norvane::ui
