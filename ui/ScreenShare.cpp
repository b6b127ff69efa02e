// See ScreenShare.h.
#include "ui/ScreenShare.h"

#include "ui/Appearance.h"

namespace norvane::ui
{

QSize scaledOnScreen(const QWidget& form, QSize size, double share)
{
    const QSize room = roomOnScreen(form).size() - QSize(2 * spacing::formMargin, 0);
    return scaled(size).boundedTo({room.width(), static_cast<int>(room.height() * share)});
}

} // namespace norvane::ui
