// Numbers with digits after the point; see DecimalBox.h.
#include "ui/DecimalBox.h"

namespace norvane::ui
{
namespace
{

constexpr int mostDecimals = 9;

} // namespace

DecimalBox::DecimalBox(QWidget* parent) : NumberBox(Point::Allowed, parent)
{
    NumberBox::setValue({});
    showRange();
}

void DecimalBox::setDecimals(int decimals)
{
    m_decimals = qBound(0, decimals, mostDecimals);
    setText(shownText(value()));
    showRange();
}

QString DecimalBox::shownText(const Decimal& value) const
{
    return QString::fromStdString(value.text(m_decimals));
}

} // namespace norvane::ui
