// See LabelPairs.h.
#include "screens/LabelPairs.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QLabel>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

bool inOneRow(const QWidget& left, const QWidget& right)
{
    const int middle = left.geometry().center().y();
    return middle >= right.geometry().top() && middle <= right.geometry().bottom();
}

/// Pixels between a label and its control. Anything further off is another column.
constexpr int neighbourGap = 14;

/// The nearest of @p others that begins right behind @p widget in its row.
template <typename Widget>
Widget* nextInRow(const QWidget& widget, const QVector<Widget*>& others)
{
    Widget* nearest = nullptr;
    int distance = std::numeric_limits<int>::max();
    for (Widget* const other : others) {
        const int gap = other->x() - widget.geometry().center().x();
        const bool isNear = other->x() - widget.geometry().right() <= neighbourGap;
        if (other != &widget && gap > 0 && isNear && gap < distance && inOneRow(widget, *other)) {
            nearest = other;
            distance = gap;
        }
    }
    return nearest;
}

void makeHeading(QLabel& label)
{
    QFont font = label.font();
    font.setBold(true);
    label.setFont(font);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ui::colours::accent);
    label.setPalette(palette);
}

void describe(QWidget& control, const QLabel& label)
{
    const QString text = ui::spokenText(label.text());
    const QString former = control.accessibleDescription();
    control.setAccessibleDescription(former.isEmpty() ? text : former + u' ' + text);
}

/// The control whose next neighbour in the row is @p label.
QWidget* controlBefore(QLabel& label, const QVector<QWidget*>& controls, const QVector<QLabel*>& labels)
{
    for (QWidget* const control : controls) {
        if (nextInRow(*control, labels) == &label)
            return control;
    }
    return nullptr;
}

} // namespace

void tieLabels(const QVector<QLabel*>& labels, const QVector<QWidget*>& controls)
{
    for (QLabel* const label : labels) {
        QWidget* const control = nextInRow(*label, controls);
        const QLabel* const between = nextInRow(*label, labels);
        if (control && (!between || between->x() > control->x())) {
            label->setBuddy(control);
            describe(*control, *label);
            continue;
        }
        if (QWidget* const before = controlBefore(*label, controls, labels)) {
            describe(*before, *label);
        } else {
            makeHeading(*label);
        }
        label->setText(ui::spokenText(label->text()));
    }
}

} // namespace norvane::screens
