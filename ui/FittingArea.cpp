// See FittingArea.h.
#include "ui/FittingArea.h"

#include "ui/Appearance.h"

#include <QScreen>
#include <QScrollBar>

namespace norvane::ui
{
namespace
{

/// What stands around it: the window's frame and a desktop's bars, the form's margins and buttons. At the
/// usual font.
constexpr QSize around(40, 150);

} // namespace

FittingArea::FittingArea(QWidget* contents, QWidget* parent) : QScrollArea(parent)
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
    const QSize room = screen()->availableSize() - scaled(around);
    QSize size = whole;
    if (whole.width() > room.width())
        size.rheight() += horizontalScrollBar()->sizeHint().height();
    if (whole.height() > room.height())
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    return size.boundedTo(room);
}

} // namespace norvane::ui
