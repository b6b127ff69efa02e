// The printer that the system prints on when nobody is asked.
#pragma once

#include <QPrinter>

#include <memory>

namespace norvane::paper
{

/// @return the system's default printer at its full resolution; null when the system has none.
[[nodiscard]] std::unique_ptr<QPrinter> defaultPrinter();

} // namespace norvane::paper
