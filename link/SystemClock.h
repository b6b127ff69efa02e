// The machine's clock.
#pragma once

#include "link/Clock.h"

namespace norvane::link
{

/// The machine's clock and the application's event queue.
class SystemClock : public Clock
{
public:
    [[nodiscard]] double secondsSinceMidnight() override;
    void pause() override;
    void yieldEvents() override;
};

} // namespace norvane::link
