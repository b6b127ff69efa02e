// Totals of any days of a chain, out of whole months and the days at the edges.
#pragma once

#include <string>
#include <vector>

namespace norvane::chain
{

/// The select of a chain's best sellers, PLU by PLU and not rounded, from @p first to @p last, which are
/// expressions of PostgreSQL: shop, shop_name, plu, description, group_no, group_name, quantity, takings.
[[nodiscard]] std::string pluTotals(const std::string& first, const std::string& last);

/// The functions plu_takings, group_takings and time_takings, which take a first and a last day; see
/// docs/chain.md.
[[nodiscard]] std::vector<std::string> rangeFunctions();

} // namespace norvane::chain
