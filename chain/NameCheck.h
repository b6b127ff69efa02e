// Whether the chain has the names that a shop has, without trusting their digests.
#pragma once

#include "chain/ChainTables.h"
#include "chain/Server.h"
#include "store/engine/Database.h"

namespace norvane::chain
{

/// Compares the rows of a table of names.
/// @return "plus differs in 0002 and 3 more."; empty if no row differs.
[[nodiscard]] QString nameDifference(pqxx::work& work, store::Database& database, const NameTable& table,
                                     int shop);

} // namespace norvane::chain
