// Numbers and texts of many records, to be searched while a user types.
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace norvane::store
{

/// Keeps all texts in two long strings, one to show and one in small letters to search, so that 100,000
/// records are searched in a few milliseconds and take a few megabytes. Records count from 0.
class SearchableTexts
{
public:
    void clear();
    void add(const QString& number, const QString& text);

    [[nodiscard]] int size() const { return static_cast<int>(m_begins.size()); }
    [[nodiscard]] QString number(int record) const { return shown(record, 0); }
    [[nodiscard]] QString text(int record) const { return shown(record, 1); }
    /// The records with @p part anywhere in number or text, in any case of letters. An empty text gives all.
    [[nodiscard]] std::vector<int> containing(const QString& part) const;
    /// The first record of this number, -1 without one.
    [[nodiscard]] int find(const QString& number) const;

private:
    /// Where a record begins; number and text each end in a line end.
    struct Begin {
        std::uint32_t shown;
        std::uint32_t folded;
    };
    [[nodiscard]] QString shown(int record, int line) const;

    std::string m_shown; ///< UTF-8, as m_folded
    std::string m_folded;
    std::vector<Begin> m_begins;
};

} // namespace norvane::store
