// How a command ended, for scripts.
#pragma once

#include "platform/TextError.h"

#include <QLatin1StringView>

#include <span>

namespace norvane
{
class RuntimeFailure;
}

namespace norvane::command
{

/// Exit codes of norvane-shop.
enum class ExitCode {
    Done = 0,
    Failed = 1,
    Usage = 2,
    NoCustomer = 3,
    NoSuchName = 4,
    Busy = 5,
    Stopped = 6,
    Unwritable = 7,
    Unsound = 8,
    BadFile = 9,
    NoServer = 10,
    ConnectionLost = 11,
    NoRights = 12,
    UnfitServer = 13,
    OtherShop = 14,
    Vanished = 15,
    FormerDamaged = 16,
    FormerOfAnother = 17,
    FormerTooNew = 18,
    FormerLocked = 19,
    CustomerExists = 20,
    NotAsPlanned = 21,
    Different = 22,
    // As shells report them: 128 and the number of the signal.
    Interrupted = 130,
    Terminated = 143,
};

/// An exit code and its meaning.
struct ExitMeaning {
    ExitCode code;
    QLatin1StringView text;
};
/// All codes with their meaning, as shown in help and manual.
[[nodiscard]] std::span<const ExitMeaning> exitMeanings();

/// The exit code of an uncaught failure.
[[nodiscard]] ExitCode codeOf(const RuntimeFailure& failure);

/// Ends a command. The text, which may be empty if a message was already shown, goes to standard error.
class CommandError : public TextError
{
public:
    CommandError(ExitCode code, const QString& text) : TextError(text), m_code(code) {}
    [[nodiscard]] ExitCode code() const { return m_code; }

private:
    ExitCode m_code;
};

} // namespace norvane::command
