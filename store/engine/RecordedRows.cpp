// See RecordedRows.h.
#include "store/engine/RecordedRows.h"

namespace norvane::store
{

bool RecordedRows::add(std::int64_t rowId)
{
    if (m_ids.empty() || rowId > m_highest) {
        m_highest = rowId;
    } else if (!isNew(rowId)) {
        return false;
    }
    m_ids.push_back(rowId);
    return true;
}

bool RecordedRows::isNew(std::int64_t rowId)
{
    m_known.insert(m_ids.begin() + m_knownCount, m_ids.end());
    m_knownCount = static_cast<std::ptrdiff_t>(m_ids.size());
    return !m_known.contains(rowId);
}

} // namespace norvane::store
