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
constexpr double neighbourGap = 14;

/// The nearest of @p others that begins right behind @p widget in its row.
template <typename Widget>
Widget* nextInRow(const QWidget& widget, const QVector<Widget*>& others)
{
    Widget* nearest = nullptr;
    int distance = std::numeric_limits<int>::max();
    const int farthest = widget.geometry().right() + ui::scaled(neighbourGap);
    for (Widget* const other : others) {
        const int gap = other->x() - widget.geometry().center().x();
        if (other != &widget && gap > 0 && other->x() <= farthest && gap < distance &&
            inOneRow(widget, *other)) {
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
    palette.setColor(QPalette::WindowText, ui::colours::heading());
    label.setPalette(palette);
}

void describe(QWidget& control, const QString& text)
{
    const QString former = control.accessibleDescription();
    control.setAccessibleDescription(former.isEmpty() ? text : former + u' ' + text);
}

void describe(QWidget& control, const QLabel& label)
{
    describe(control, ui::spokenText(label.text()));
}

/// The control whose next neighbour in the row, of all @p others, is @p widget.
template <typename Widget>
QWidget* controlBefore(Widget& widget, const QVector<QWidget*>& controls, const QVector<Widget*>& others)
{
    for (QWidget* const control : controls) {
        if (nextInRow(*control, others) == &widget)
            return control;
    }
    return nullptr;
}

/// The heading of the column that @p control stands in.
const QLabel* headingAbove(const QWidget& control, const QVector<QLabel*>& labels)
{
    const QLabel* nearest = nullptr;
    for (const QLabel* const label : labels) {
        const bool isAbove = label->x() == control.x() && label->y() < control.y() && !label->buddy();
        if (isAbove && (!nearest || label->y() > nearest->y()))
            nearest = label;
    }
    return nearest;
}

/// Where controls stand in rows and columns, only the first of a row has a label of its own.
void describeByRowAndColumn(QWidget& control, const QVector<QLabel*>& labels,
                            const QVector<QWidget*>& controls)
{
    if (const QWidget* const before = controlBefore(control, controls, controls))
        describe(control, before->accessibleDescription());
    if (const QLabel* const heading = headingAbove(control, labels))
        describe(control, *heading);
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
    for (QWidget* const control : controls) {
        if (control->accessibleDescription().isEmpty())
            describeByRowAndColumn(*control, labels, controls);
    }
}

} // namespace norvane::screens
