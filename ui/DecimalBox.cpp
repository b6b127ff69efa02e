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
    tellRange();
}

void DecimalBox::setDecimals(int decimals)
{
    m_decimals = qBound(0, decimals, mostDecimals);
    setText(shownText(value()));
    tellRange();
}

QString DecimalBox::shownText(const Decimal& value) const
{
    QString text = QString::fromStdString(value.text());
    auto point = text.indexOf(u'.');
    if (point < 0 && m_decimals > 0) {
        point = text.size();
        text += u'.';
    }
    const auto behindPoint = point < 0 ? 0 : text.size() - point - 1;
    return text + QString(qMax<qsizetype>(0, m_decimals - behindPoint), u'0');
}

} // namespace norvane::ui
