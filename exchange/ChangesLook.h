// Looks for what was not sent in a thread of its own, so that a window can be used meanwhile.
#pragma once

#include "exchange/UnsentChanges.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <thread>

namespace norvane::exchange
{

/// Opens the database on a connection of its own and only reads.
class ChangesLook
{
public:
    /// @param take gets what was found, in the event loop of the thread that makes this. It is not called for
    /// a database that cannot be read.
    explicit ChangesLook(std::function<void(const AllChanges& changes)> take) : m_take(std::move(take)) {}
    ~ChangesLook() { stop(); }
    ChangesLook(const ChangesLook&) = delete;
    ChangesLook& operator=(const ChangesLook&) = delete;

    /// Looks once; a look in progress is stopped.
    void look(const ApplicationValues& values);
    /// Waits for the table that is being read, and nothing is taken any more. To be called before the tables
    /// are written to, as they would wait.
    void stop();

private:
    void run(const ApplicationValues& values);

    std::function<void(const AllChanges&)> m_take;
    QObject m_receiver;
    std::atomic<bool> m_goesOn = false;
    std::thread m_thread;
};

} // namespace norvane::exchange
