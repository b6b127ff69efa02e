// See RecordRows.h.
#include "reports/lines/RecordRows.h"

namespace norvane::reports
{

std::string keyTextOf(const store::Value& key)
{
    return key.isNull() ? std::string() : '=' + key.toUtf8();
}

void RecordRows::add(LineFields row)
{
    m_places.emplace(keyTextOf(row.front()), m_rows.size());
    m_rows.push_back(std::move(row));
}

std::optional<std::size_t> RecordRows::placeOf(const store::Value& key) const
{
    const auto found = m_places.find(keyTextOf(key));
    return found == m_places.end() ? std::nullopt : std::optional(found->second);
}

std::shared_ptr<const RecordRows> RecordCache::find(const State& state, const std::string& statement) const
{
    const std::scoped_lock lock(m_mutex);
    const auto found = m_records.find(statement);
    return state == m_state && found != m_records.end() ? found->second : nullptr;
}

void RecordCache::keep(const State& state, const std::string& statement,
                       std::shared_ptr<const RecordRows> records)
{
    constexpr std::size_t most = 8;
    const std::scoped_lock lock(m_mutex);
    if (state != m_state || m_records.size() >= most)
        m_records.clear();
    m_state = state;
    m_records[statement] = std::move(records);
}

} // namespace norvane::reports
