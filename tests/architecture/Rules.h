// The rules of docs/architecture.md, held against the build and the sources.
#pragma once

#include "tests/architecture/BuildMap.h"

namespace norvane::test
{

/** @brief Includes of a folder that no target of the including folder reaches, as "base/Value.cpp includes
 * top/Plan.h". Tests, benchmarks and scripts drive whatever they need and are not looked at. */
[[nodiscard]] QStringList undeclaredIncludes(const BuildMap& map, const QString& root);

/** @brief Libraries with widgets that are neither in ui/ nor named ..._forms; empty when all is well. */
[[nodiscard]] QStringList misplacedWidgets(const BuildMap& map);

/** @brief Pairs of folders whose libraries reach each other, as "exchange and sales reach each other". */
[[nodiscard]] QStringList folderCycles(const BuildMap& map);

/** @brief Targets in tools/ that link something of the product, for what the product writes wrongly must
 * show. */
[[nodiscard]] QStringList partialTools(const BuildMap& map);

} // namespace norvane::test
