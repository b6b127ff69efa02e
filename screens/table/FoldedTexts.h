// The texts of many rows, to be searched while a user types.
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::screens
{

/// Keeps the texts in small letters in one long string: 100,000 rows take some megabytes and are searched
/// within the time of a keystroke. Rows count from 0. Nothing can be shown from it.
class FoldedTexts
{
public:
    void clear();
    /// The next row. @p utf8 has no zero byte, which ends each row.
    void add(std::string_view utf8);

    [[nodiscard]] int size() const { return static_cast<int>(m_begins.size()); }
    /// For each row whether it has @p part, in any case of letters.
    [[nodiscard]] std::vector<bool> having(const QString& part) const;

private:
    std::string m_folded;
    std::vector<std::uint32_t> m_begins;
};

} // namespace norvane::screens
