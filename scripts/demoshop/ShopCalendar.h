// When the demo shop is open, and how many customers come.
#pragma once

#include <QDate>

#include <vector>

namespace demo
{

struct TradeDay {
    QDate date;
    int customers;
};

/// The days from @p first to @p last on which the shop is open: more customers at weekends, in summer and
/// before Christmas, none on Christmas Day and New Year's Day. The same every time.
[[nodiscard]] std::vector<TradeDay> tradeDays(QDate first, QDate last);

} // namespace demo
