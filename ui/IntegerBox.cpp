// Whole numbers; see IntegerBox.h.
#include "ui/IntegerBox.h"

#include <limits>

namespace norvane::ui
{

IntegerBox::IntegerBox(QWidget* parent, int digits) : NumberBox(Point::None, parent), m_digits(digits)
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
    return QString::fromStdString(value.text()).rightJustified(m_digits, u'0');
}

} // namespace norvane::ui
