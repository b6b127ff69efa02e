// Charts over days have a bar for those without sales, too.
#pragma once

#include "reports/lines/ChartBuilder.h"

#include <QDate>

#include <cstddef>
#include <string>
#include <vector>

namespace norvane::reports
{

/// Adds the days without sales to a chart over days, at zero.
class DayFiller
{
public:
    DayFiller(ChartPoints& points, std::size_t daySlot, std::size_t slots)
        : m_points(points), m_daySlot(daySlot), m_fields(slots), m_zeros(slots, "0")
    {
    }

    void begin(QDate first) { m_next = first; }
    /// Adds the days before @p day, which comes next. An invalid day adds nothing.
    void fillUpTo(QDate day)
    {
        for (; m_next.isValid() && day.isValid() && m_next < day; m_next = m_next.addDays(1)) {
            m_fields[m_daySlot] = store::Value::date(m_next);
            m_points.add(textOf(m_points.layout().label, m_fields), {m_zeros, {}}, m_next);
        }
        if (day.isValid())
            m_next = day.addDays(1);
    }

private:
    ChartPoints& m_points;
    std::size_t m_daySlot;
    LineFields m_fields;
    std::vector<std::string> m_zeros;
    QDate m_next; ///< the day that is expected next
};

} // namespace norvane::reports
