// Tables of the week and the year; see ShopCalendar.h.
#include "scripts/demoshop/ShopCalendar.h"

#include <array>
#include <random>

namespace demo
{
namespace
{

constexpr int usualCustomers = 70;

/// In percent of a usual day.
constexpr std::array byWeekday{80, 85, 90, 95, 120, 150, 125}; // Monday first
constexpr std::array byMonth{75, 80, 90, 100, 110, 120, 130, 125, 105, 95, 90, 125};
constexpr int leastChance = 88;
constexpr int mostChance = 112;

bool isClosed(QDate date)
{
    const bool christmasDay = date.month() == 12 && date.day() == 25;
    const bool newYearsDay = date.month() == 1 && date.day() == 1;
    return christmasDay || newYearsDay;
}

int customersOn(QDate date)
{
    // The generator's numbers are the same everywhere, those of a distribution are not.
    std::mt19937 dice(static_cast<std::mt19937::result_type>(date.toJulianDay()));
    const int chance = leastChance + static_cast<int>(dice() % (mostChance - leastChance + 1));
    const int weekday = byWeekday.at(static_cast<std::size_t>(date.dayOfWeek() - 1));
    const int month = byMonth.at(static_cast<std::size_t>(date.month() - 1));
    return usualCustomers * weekday * month * chance / 1'000'000;
}

} // namespace

std::vector<TradeDay> tradeDays(QDate first, QDate last)
{
    std::vector<TradeDay> days;
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        if (!isClosed(date))
            days.push_back({date, customersOn(date)});
    }
    return days;
}

} // namespace demo
