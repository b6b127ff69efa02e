// Adds to a failure where it happened. Whoever knows the place (a file's line, a screen's section) wraps the
// work in atPlace(); nobody rethrows by hand.
#pragma once

#include "platform/RuntimeFailure.h"

#include <utility>

namespace norvane
{

/// Runs @p work. A failure that it throws keeps its number; its text becomes what @p explain makes of it,
/// such as "67.txt, line 3: " and the text. @p explain is called only then, and takes the failure's text.
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
