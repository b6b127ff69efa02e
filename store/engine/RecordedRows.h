// Which rows of a table a piece of work has changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace norvane::store
{

/// Ids of rows. Most work walks over a table in the order of its row ids, and then every row is a new one.
class RecordedRows
{
public:
    /// @return false for a row that was added before.
    [[nodiscard]] bool add(std::int64_t rowId);

private:
    [[nodiscard]] bool isNew(std::int64_t rowId);

    std::vector<std::int64_t> m_ids;
    std::int64_t m_highest = 0;
    std::unordered_set<std::int64_t> m_known; ///< the first of m_ids
    std::ptrdiff_t m_knownCount = 0;
};

} // namespace norvane::store
