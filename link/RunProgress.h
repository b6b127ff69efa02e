// How far a run is.
#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace norvane::link
{

/// As it was when a file began.
struct RunProgress {
    int file = 0; ///< from 1; 0 when nothing is known
    int files = 0;
    std::optional<std::chrono::milliseconds> left; ///< by former runs

    /// "file 12 of 36, about 40 s left", when the file began @p ago. Without the time once it is over.
    [[nodiscard]] QString inWords(std::chrono::milliseconds ago = {}) const;
};

} // namespace norvane::link
