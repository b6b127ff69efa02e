// See WorkHistory.h.
#include "store/engine/WorkHistory.h"

#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <utility>

namespace norvane::store
{
namespace
{

template <typename Works>
auto latestOf(Works& works, const QString& databasePath)
{
    return std::find_if(works.rbegin(), works.rend(), [&databasePath](const FinishedWork& work) {
        return work.databasePath == databasePath;
    });
}

} // namespace

void WorkHistory::add(FinishedWork work)
{
    if (work.changes.isEmpty())
        return;
    m_works.push_back(std::move(work));
    std::size_t bytes = 0;
    const auto fits = std::find_if(m_works.rbegin(), m_works.rend(), [&bytes](const FinishedWork& each) {
        bytes += each.changes.size();
        return bytes > mostBytes;
    });
    m_works.erase(m_works.begin(), fits.base());
}

const FinishedWork* WorkHistory::latest(const QString& databasePath) const
{
    const auto found = latestOf(m_works, databasePath);
    return found == m_works.rend() ? nullptr : &*found;
}

void WorkHistory::removeLatest(const QString& databasePath)
{
    if (const auto found = latestOf(m_works, databasePath); found != m_works.rend())
        m_works.erase(std::next(found).base());
}

RecordedWork::RecordedWork(WorkHistory* history, Database& database, const QString& databasePath,
                           const QStringList& tables)
    : m_history(history), m_databasePath(databasePath)
{
    if (history != nullptr)
        m_recorder.emplace(database, tables);
}

/// Without a record of it the work cannot be undone, but it is done.
RecordedWork::~RecordedWork()
{
    try {
        if (m_recorder)
            m_history->add({m_databasePath, m_name, QTime::currentTime(), m_recorder->finish()});
    } catch (const RuntimeFailure&) {
        return;
    }
}

} // namespace norvane::store
