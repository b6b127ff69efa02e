// See UnsentWatch.h.
#include "shell/UnsentWatch.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

namespace norvane::shell
{

UnsentWatch::State UnsentWatch::stateOf(const ApplicationValues& values)
{
    State state{values.customerPath, 0};
    for (const QFileInfo& file : QDir(values.customerPath).entryInfoList(QDir::Files)) {
        state.files =
            qHashMulti(state.files, file.fileName(), file.size(), file.lastModified().toMSecsSinceEpoch());
    }
    return state;
}

/// A reading that is going on is never stopped for another one: it might wait for the database.
OverviewLine UnsentWatch::line(const ApplicationValues& values)
{
    const State state = stateOf(values);
    if (!m_look.isLooking() && state != m_known)
        begin(values, state);
    return m_known.customerPath == values.customerPath ? m_line : unreadUnsent();
}

void UnsentWatch::begin(const ApplicationValues& values, const State& state)
{
    m_reading = state;
    m_look.look(ownValues(values));
}

} // namespace norvane::shell
