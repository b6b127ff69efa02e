// Looks for what was not sent in a thread of its own, so that a window can be used meanwhile.
#pragma once

#include "exchange/UnsentChanges.h"
#include "platform/RuntimeFailure.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <optional>
#include <thread>

namespace norvane::exchange
{

/// What was not sent, or why it is not known.
struct FoundChanges {
    AllChanges changes;
    std::optional<RuntimeFailure> failure = {}; ///< database or settings cannot be read
};

/// As unsentChanges(), with a failure instead of an exception.
[[nodiscard]] FoundChanges findChanges(
    const ApplicationValues& values, const std::function<bool()>& goOn = [] { return true; });

/// Opens the database on a connection of its own and only reads.
class ChangesLook
{
public:
    /// @param take gets what was found, in the event loop of the thread that makes this.
    explicit ChangesLook(std::function<void(const FoundChanges& found)> take) : m_take(std::move(take)) {}
    ~ChangesLook() { stop(); }
    ChangesLook(const ChangesLook&) = delete;
    ChangesLook& operator=(const ChangesLook&) = delete;

    /// Looks once; a look in progress is stopped.
    void look(const ApplicationValues& values);
    /// Whether something will be taken.
    [[nodiscard]] bool isLooking() const { return m_isLooking; }
    /// Waits for the table that is being read, and nothing is taken any more. To be called before the tables
    /// are written to, as they would wait.
    void stop();

private:
    void run(const ApplicationValues& values);
    void found(const FoundChanges& found);

    std::function<void(const FoundChanges&)> m_take;
    QObject m_receiver;
    std::atomic<bool> m_goesOn = false;
    bool m_isLooking = false;
    std::thread m_thread;
};

} // namespace norvane::exchange
