// What a layout may have to know of the customer's register.
#pragma once

#include <cstddef>
#include <functional>

namespace norvane::records
{

/// Asked only where a layout depends on it, since asking may show a box.
struct RegisterTraits {
    std::function<std::size_t()> messageWidth; ///< characters of a message line, asked for each record
    /// Written, asked once, before the first record; read, asked in each line, before the first column that
    /// only newer firmware has.
    std::function<int()> firmwareGeneration;
};

} // namespace norvane::records
