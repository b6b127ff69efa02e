// Adds the place to a failure: the line of a file, the section of a screen. No other code rethrows.
#pragma once

#include "platform/RuntimeFailure.h"

#include <utility>

namespace norvane
{

/// Runs @p work. If it fails, the failure keeps its number and @p explain makes the new text from the old
/// one, for example by prefixing "67.txt, line 3: ". @p explain is called only then.
/// @return what @p work returns.
template <typename Explain, typename Work>
decltype(auto) atPlace(Explain&& explain, Work&& work)
{
    try {
        return std::forward<Work>(work)();
    } catch (const RuntimeFailure& failure) {
        throw RuntimeFailure(failure.failure(), std::forward<Explain>(explain)(failure.text()));
    }
}

} // namespace norvane
