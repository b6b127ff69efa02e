// Totals of any days of a chain, out of whole months and the days at the edges.
#pragma once

#include <string>
#include <vector>

namespace norvane::chain
{

/// A select of the last 30 days of every PLU, not rounded: shop, shop_name, plu, description, group_no,
/// group_name, quantity, takings.
[[nodiscard]] std::string recentPluTotals();

/// The functions plu_takings, group_takings and time_takings, which take a first and a last day; see
/// docs/chain.md.
[[nodiscard]] std::vector<std::string> rangeFunctions();

} // namespace norvane::chain
