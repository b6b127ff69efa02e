// The chain in a browser: a static site that needs no server and no scripts.
#pragma once

#include <QString>

namespace norvane::chain
{

class Server;

/// Writes "index.html" with all shops together and "shop-1.html" and so on, a page for each shop: takings by
/// day and month beside those of a year earlier, groups, best sellers, shops without a collection. All
/// figures are of one moment. Pages of the same names are replaced, each as a whole.
/// @param folder an existing one.
/// @return how many pages there are.
/// @throws ChainError for a schema that is missing or of a former program, and as the server answers;
/// RuntimeFailure with Failure::PathOrFileAccess or Failure::DiskFull.
int writeChainPages(Server& server, const QString& folder);

} // namespace norvane::chain
