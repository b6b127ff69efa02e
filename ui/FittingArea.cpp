// See FittingArea.h.
#include "ui/FittingArea.h"

#include "ui/Appearance.h"

#include <QScreen>
#include <QScrollBar>

namespace norvane::ui
{
namespace
{

/// Beside it: the window's frame and the form's margins. At the usual font.
constexpr int leftAndRight = 40;

} // namespace

FittingArea::FittingArea(QWidget* contents, int aboveAndBelow) : m_around(leftAndRight, aboveAndBelow)
{
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setWidget(contents);
}

QSize FittingArea::sizeHint() const
{
    const QSize whole =
        widget()->sizeHint().expandedTo(widget()->minimumSize()).boundedTo(widget()->maximumSize());
    const QSize room = screen()->availableSize() - scaled(m_around);
    QSize size = whole;
    if (whole.width() > room.width())
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    if (whole.height() > room.height())
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    return size.boundedTo(room);
}

} // namespace norvane::ui
