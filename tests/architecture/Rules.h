// The rules of docs/architecture.md, held against the build and the sources.
#pragma once

#include "tests/architecture/BuildMap.h"

namespace norvane::test
{

/** @brief What the walk over the sources found. */
struct IncludeReport {
    int includes = 0;  ///< includes of our own headers that were held against links
    QStringList wrong; ///< one sentence each, with file and line
};

/** @brief Walks all .cpp and .h files below root, except folders that hold no target in this build.
 *
 *  A file may include a header of its own target and of every target that it reaches by its links. A header
 * of the tests that no library owns is looked at as a part of each file that includes it. */
[[nodiscard]] IncludeReport checkIncludes(const BuildMap& map, const QString& root);

/** @brief Libraries with widgets that are neither in ui/ nor named ..._forms; empty when all is well. */
[[nodiscard]] QStringList misplacedWidgets(const BuildMap& map);

/** @brief Pairs of folders whose libraries reach each other, as "exchange and sales reach each other". */
[[nodiscard]] QStringList folderCycles(const BuildMap& map);

/** @brief Targets in tools/ that link something of the product, for what the product writes wrongly must
 * show. */
[[nodiscard]] QStringList partialTools(const BuildMap& map);

} // namespace norvane::test
