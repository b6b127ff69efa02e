// See Chart.h.
#include "reports/data/Chart.h"

namespace norvane::reports
{

QString shownValue(const Chart& chart, const Decimal& value)
{
    return dressed(shownNumber(value, chart.leastDecimals, chart.mostDecimals), chart.dress);
}

} // namespace norvane::reports
