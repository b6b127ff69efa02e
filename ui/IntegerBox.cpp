// Whole numbers; see IntegerBox.h.
#include "ui/IntegerBox.h"

#include <limits>

namespace norvane::ui
{

IntegerBox::IntegerBox(QWidget* parent) : NumberBox(Point::None, parent)
{
    setMaximum(Decimal(std::numeric_limits<std::int32_t>::max(), 0));
    IntegerBox::setValue({});
}

void IntegerBox::setValue(const Decimal& value)
{
    NumberBox::setValue(value.rounded(0));
}

QString IntegerBox::shownText(const Decimal& value) const
{
    return QString::fromStdString(value.text());
}

} // namespace norvane::ui
