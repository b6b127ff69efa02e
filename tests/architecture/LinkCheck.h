// The rules that the links themselves follow, whoever includes what.
#pragma once

#include "tests/architecture/BuildMap.h"

namespace norvane::test
{

/** @brief Libraries with widgets that are neither in ui/ nor named ..._forms; empty when all is well. */
[[nodiscard]] QStringList misplacedWidgets(const BuildMap& map);

/** @brief Pairs of folders whose libraries reach each other, as "exchange and sales reach each other". */
[[nodiscard]] QStringList folderCycles(const BuildMap& map);

/** @brief Targets in tools/ that link something of the product, for what the product writes wrongly must
 * show. */
[[nodiscard]] QStringList partialTools(const BuildMap& map);

} // namespace norvane::test
