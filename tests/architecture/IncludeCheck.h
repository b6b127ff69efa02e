// Holds the includes of all sources against the links of the targets that own them.
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

} // namespace norvane::test
