// See LabelPairs.h.
#include "screens/LabelPairs.h"

#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHash>
#include <QLabel>

#include <algorithm>
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
/// Between the boxes of a row.
constexpr double columnGap = 40;

/// The nearest of @p others that begins right after @p widget in its row.
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

void nameAfter(QWidget& control, const QString& text)
{
    const QString former = ui::spokenName(control);
    control.setAccessibleName(former.isEmpty() ? text : former + u' ' + text);
}

QString textOf(const QLabel& label)
{
    return ui::spokenText(label.text());
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

/// The heading of the column of @p widget.
const QLabel* headingAbove(const QWidget& widget, const QVector<QLabel*>& labels)
{
    const QLabel* nearest = nullptr;
    for (const QLabel* const label : labels) {
        const bool isAbove = label->x() == widget.x() && label->y() < widget.y() && !label->buddy();
        if (isAbove && (!nearest || label->y() > nearest->y()))
            nearest = label;
    }
    return nearest;
}

/// What a sighted user takes in at a glance: which label begins the row of a control, and what heads its
/// column.
struct GridPlace {
    const QLabel* row;
    const QLabel* column;
};

/// A row ends at a gap that is wider than the columns of a table are apart.
const QLabel* beginningOfRow(const QWidget& control, const QVector<QLabel*>& labels,
                             const QVector<QWidget*>& controls)
{
    const QLabel* nearest = nullptr;
    for (const QLabel* const label : labels) {
        if (label->x() < control.x() && inOneRow(*label, control) && (!nearest || label->x() > nearest->x()))
            nearest = label;
    }
    const auto reaches = [&](const QWidget& left) {
        return left.geometry().right() + ui::scaled(columnGap) >= control.x();
    };
    const bool isJoined =
        nearest && (reaches(*nearest) || std::ranges::any_of(controls, [&](const QWidget* other) {
                        return other->x() > nearest->x() && other->x() < control.x() &&
                               inOneRow(*other, control) && reaches(*other);
                    }));
    return isJoined ? nearest : nullptr;
}

GridPlace gridPlaceOf(const QWidget& control, const QVector<QLabel*>& labels,
                      const QVector<QWidget*>& controls)
{
    const QLabel* const row = beginningOfRow(control, labels, controls);
    const QLabel* const above = headingAbove(control, labels);
    return {row, above || !row ? above : headingAbove(*row, labels)};
}

/// A heading within a name: "Price 1 level".
QString withSmallLetter(QString heading)
{
    if (heading.size() > 1 && heading[1].isLower())
        heading[0] = heading[0].toLower();
    return heading;
}

void nameByPlace(QWidget& control, const GridPlace& place)
{
    const QString row = place.row ? textOf(*place.row) : QString();
    const QString column = place.column ? textOf(*place.column) : QString();
    control.setAccessibleName(row.isEmpty() ? column : (row + u' ' + withSmallLetter(column)).trimmed());
}

/// Controls with the same name are distinguished by the text before or above them.
void nameApart(QWidget& control, const GridPlace& place)
{
    const QString name = ui::spokenName(control);
    const bool isInRow = place.row && textOf(*place.row) != name;
    if (const QLabel* const apart = isInRow ? place.row : place.column)
        control.setAccessibleName(textOf(*apart) + u' ' + name);
}

/// Screen readers prefer the text of a label to the name of its control.
void nameAsControl(QLabel& label)
{
    const QString name = label.buddy() ? ui::spokenName(*label.buddy()) : QString();
    label.setAccessibleName(name == textOf(label) ? QString() : name);
}

/// A label right before a control names it; one right after a control adds to its name; others are headings.
void tieLabel(QLabel& label, const QVector<QLabel*>& labels, const QVector<QWidget*>& controls)
{
    QWidget* const control = nextInRow(label, controls);
    const QLabel* const between = nextInRow(label, labels);
    if (control && (!between || between->x() > control->x())) {
        label.setBuddy(control);
        control->setAccessibleName((textOf(label) + u' ' + ui::spokenName(*control)).trimmed());
        return;
    }
    if (QWidget* const before = controlBefore(label, controls, labels)) {
        nameAfter(*before, textOf(label));
    } else {
        makeHeading(label);
    }
    label.setText(textOf(label));
}

} // namespace

void tieLabels(const QVector<QLabel*>& labels, const QVector<QWidget*>& controls)
{
    for (QLabel* const label : labels)
        tieLabel(*label, labels, controls);
    QHash<QString, int> holders;
    for (QWidget* const control : controls) {
        if (ui::spokenName(*control).isEmpty())
            nameByPlace(*control, gridPlaceOf(*control, labels, controls));
        ++holders[ui::spokenName(*control)];
    }
    for (QWidget* const control : controls) {
        if (holders.value(ui::spokenName(*control)) > 1)
            nameApart(*control, gridPlaceOf(*control, labels, controls));
    }
    std::ranges::for_each(labels, [](QLabel* label) { nameAsControl(*label); });
}

} // namespace norvane::screens
