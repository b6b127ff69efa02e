// Adds up rows by their key.
#pragma once

#include "platform/DecimalTotal.h"
#include "reports/lines/TextTemplate.h"
#include "store/engine/BoundQuery.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace norvane::reports
{

/// Exact sums of the rows of a query, for each key. The engine would sort all rows by the key before it adds
/// them up, which takes three times as long.
class LineSums
{
public:
    /// Adds the row that the query has reached: the key is its first column, all others are added up.
    /// @throws RuntimeFailure with Failure::Overflow for an infinite number.
    void add(store::BoundQuery& row);
    /// One line for each key, in the order of their first rows: the key, then the sums as texts of decimals.
    [[nodiscard]] std::vector<LineFields> lines() const;

private:
    struct Line {
        store::Value key;
        std::vector<DecimalTotal> sums;
    };
    [[nodiscard]] Line& lineOf(const store::Value& key, std::size_t sums);

    std::vector<Line> m_lines;
    std::unordered_map<std::string, std::size_t> m_places; ///< of the lines, by keyTextOf()
    std::size_t m_next = 0;                                ///< the line after that of the last row
};

} // namespace norvane::reports
