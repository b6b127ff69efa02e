// See ListRoom.h.
#include "screens/ListRoom.h"

#include "ui/Appearance.h"
#include "ui/ValueList.h"

namespace norvane::screens
{
namespace
{

/// Minimum space between a list and its neighbour, in pixels.
constexpr double listGap = 4;

bool inOneRow(const QRect& left, const QRect& right)
{
    return left.top() <= right.bottom() && right.top() <= left.bottom();
}

/// How wide @p list can be.
int roomFor(const QWidget& list, const QVector<QWidget*>& controls)
{
    int edge = rightEdge(controls);
    for (const QWidget* const control : controls) {
        if (control->x() > list.x() && inOneRow(control->geometry(), list.geometry()))
            edge = qMin(edge, control->x() - ui::scaled(listGap));
    }
    return edge - list.x();
}

} // namespace

int rightEdge(const QVector<QWidget*>& controls)
{
    int edge = 0;
    for (const QWidget* const control : controls)
        edge = qMax(edge, control->x() + control->width());
    return edge;
}

void widenLists(const QVector<QWidget*>& controls)
{
    for (QWidget* const control : controls) {
        const auto* const list = qobject_cast<const ui::ValueList*>(control);
        if (list == nullptr)
            continue;
        const int wanted = qMin(list->fullWidth(), roomFor(*list, controls));
        control->resize(qMax(control->width(), wanted), control->height());
    }
}

} // namespace norvane::screens
