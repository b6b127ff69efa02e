// See RowsAfter.h.
#include "store/engine/RowsAfter.h"

namespace norvane::store
{
namespace
{

QStringList chosenOf(const QStringList& fields, const std::vector<bool>& isChosen)
{
    QStringList chosen;
    for (qsizetype place = 0; place < fields.size(); ++place) {
        if (isChosen[static_cast<std::size_t>(place)])
            chosen += fields[place];
    }
    return chosen;
}

} // namespace

RowsAfter::RowsAfter(sqlite3* handle, const QString& table, const QStringList& fields,
                     const std::vector<bool>& isChanged)
    : m_all(handle, table, fields), m_changed(handle, table, chosenOf(fields, isChanged))
{
    for (std::size_t place = 0; place < isChanged.size(); ++place) {
        if (isChanged[place])
            m_places.push_back(place);
    }
}

const std::string& RowsAfter::read(std::int64_t rowId, std::string_view before)
{
    if (before.empty() || m_places.empty())
        return m_all.read(rowId);
    m_after.clear();
    splitImage(m_changed.read(rowId), m_new);
    if (m_new.empty())
        return m_after;
    splitImage(before, m_old);
    const char* from = before.data();
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        const std::string_view old = m_old[m_places[i]];
        m_after.append(from, old.data()).append(m_new[i]);
        from = old.data() + old.size();
    }
    m_after.append(from, before.data() + before.size());
    return m_after;
}

} // namespace norvane::store
