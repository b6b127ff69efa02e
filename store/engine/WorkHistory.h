// The pieces of work since the program was started, for undoing them.
#pragma once

#include "store/engine/ChangeRecorder.h"

#include <QTime>

#include <deque>
#include <optional>

namespace norvane::store
{

/// A piece of work and what it changed.
struct FinishedWork {
    QString databasePath;
    QString name; ///< "PLU 1001 saved", for the user
    QTime ended;
    RowChanges changes;
};

/// The latest pieces of work, some 64 MB of them.
class WorkHistory
{
public:
    static constexpr std::size_t mostBytes = std::size_t{64} * 1024 * 1024;

    /// Work that changed nothing is not added.
    void add(FinishedWork work);
    /// The latest in the database at @p databasePath; nullptr if there is none. Valid until the next add().
    [[nodiscard]] const FinishedWork* latest(const QString& databasePath) const;
    void removeLatest(const QString& databasePath);

private:
    std::deque<FinishedWork> m_works; ///< the latest last
};

/// Records work in the scope in which it is done. Work that fails is recorded too: what it has stored can be
/// undone.
class RecordedWork
{
public:
    /// @param history may be nullptr: then nothing is recorded.
    RecordedWork(WorkHistory* history, Database& database, const QString& databasePath,
                 const QStringList& tables);
    ~RecordedWork();
    RecordedWork(const RecordedWork&) = delete;
    RecordedWork& operator=(const RecordedWork&) = delete;

    void setName(const QString& name) { m_name = name; }

private:
    WorkHistory* m_history;
    QString m_databasePath;
    QString m_name;
    std::optional<ChangeRecorder> m_recorder;
};

} // namespace norvane::store
