// See LineSums.h.
#include "reports/lines/LineSums.h"

#include "reports/lines/RecordRows.h"

namespace norvane::reports
{

void LineSums::add(store::BoundQuery& row)
{
    auto& sums = lineOf(row.value(0), static_cast<std::size_t>(row.columnCount()) - 1).sums;
    int column = 0;
    for (DecimalTotal& sum : sums)
        row.addTo(++column, sum);
}

/// Every day and every month has nearly the same keys in the same order, so most keys are found without a
/// search.
LineSums::Line& LineSums::lineOf(const store::Value& key, std::size_t sums)
{
    if (m_next >= m_lines.size() || m_lines[m_next].key != key) {
        const auto [found, isNew] = m_places.try_emplace(keyTextOf(key), m_lines.size());
        if (isNew)
            m_lines.push_back({key, std::vector<DecimalTotal>(sums)});
        m_next = found->second;
    }
    return m_lines[m_next++];
}

std::vector<LineFields> LineSums::lines() const
{
    std::vector<LineFields> lines;
    lines.reserve(m_lines.size());
    for (const Line& line : m_lines) {
        LineFields& fields = lines.emplace_back();
        fields.reserve(line.sums.size() + 1);
        fields.push_back(line.key);
        for (const DecimalTotal& sum : line.sums)
            fields.push_back(store::Value::text(sum.text()));
    }
    return lines;
}

} // namespace norvane::reports
