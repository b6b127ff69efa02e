// See StopSignals.h.
#include "command/StopSignals.h"

#include "platform/RuntimeFailure.h"

#include <csignal>

namespace norvane::command
{
namespace
{

volatile std::sig_atomic_t received = 0;

extern "C" void remember(int signal)
{
    received = signal;
    std::signal(signal, SIG_DFL);
}

} // namespace

void catchStopSignals()
{
    for (const int signal : {SIGINT, SIGTERM}) {
        if (std::signal(signal, remember) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

int stopSignal()
{
    return received;
}

void stopIfSignalled()
{
    if (received != 0)
        throw RuntimeFailure(Failure::UserInterrupt, QStringLiteral("stopped by a signal"));
}

bool untilSignalled()
{
    stopIfSignalled();
    return true;
}

} // namespace norvane::command
