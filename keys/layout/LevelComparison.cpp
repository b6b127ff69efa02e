// See LevelComparison.h.
#include "keys/layout/LevelComparison.h"

namespace norvane::keys
{

std::vector<KeyDifference> differencesOf(const KeyLevel& left, const KeyLevel& right)
{
    std::vector<KeyDifference> differences;
    int number = 0;
    for (const KeyCell cell : left.geometry().walk()) {
        ++number;
        if (!doTheSame(left.key(cell), right.key(cell)))
            differences.push_back({number, cell, left.key(cell), right.key(cell)});
    }
    return differences;
}

} // namespace norvane::keys
