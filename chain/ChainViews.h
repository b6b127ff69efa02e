// The views of a chain: its takings by day, shop, group and PLU; see docs/chain.md.
#pragma once

#include <string>
#include <vector>

namespace norvane::chain
{

/// The statements that make the views, in the order in which they read each other.
[[nodiscard]] std::vector<std::string> viewStatements();

} // namespace norvane::chain
