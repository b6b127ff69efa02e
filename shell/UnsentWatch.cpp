// See UnsentWatch.h.
#include "shell/UnsentWatch.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{

UnsentWatch::~UnsentWatch()
{
    m_goesOn = false;
    if (m_reading != nullptr)
        m_reading->wait();
}

UnsentWatch::State UnsentWatch::stateOf(const ApplicationValues& values)
{
    State state{values.customerPath, 0};
    for (const QFileInfo& file : QDir(values.customerPath).entryInfoList(QDir::Files)) {
        state.files =
            qHashMulti(state.files, file.fileName(), file.size(), file.lastModified().toMSecsSinceEpoch());
    }
    return state;
}

OverviewLine UnsentWatch::line(const ApplicationValues& values)
{
    const State state = stateOf(values);
    if (m_reading == nullptr && state != m_known)
        begin(values, state);
    return m_known.customerPath == values.customerPath ? m_line : unreadUnsent();
}

/// A reading that is going on is never stopped for another one: it might wait for the database.
void UnsentWatch::begin(const ApplicationValues& values, const State& state)
{
    const auto take = [this, state](const OverviewLine& line) {
        m_reading->wait();
        m_reading.reset();
        m_known = state;
        m_line = line;
        Q_EMIT found();
    };
    m_reading.reset(QThread::create([this, values, take] {
        const OverviewLine line = readUnsent(values, [this] { return m_goesOn.load(); });
        QMetaObject::invokeMethod(
            this, [take, line] { take(line); }, Qt::QueuedConnection);
    }));
    m_reading->start();
}

} // namespace norvane::shell
