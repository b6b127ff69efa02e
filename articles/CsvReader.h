// Splits a CSV text into records and cells.
#pragma once

#include <QtGlobal>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvane::articles
{

/// Record after record of a text, which must outlive it. A record ends with LF, CR LF or CR. A cell that
/// begins with a quote runs to the quote that closes it, over separators and line ends; two quotes within it
/// are one.
class CsvReader
{
public:
    CsvReader(std::string_view text, char separator) : m_text(text), m_separator(separator) {}

    /// Goes to the next record; the first call goes to the first one. @return false after the last.
    [[nodiscard]] bool next();
    /// Offset of the next record in the text, for goTo(). After goTo(), line() is wrong.
    [[nodiscard]] std::size_t place() const { return m_at; }
    void goTo(std::size_t place) { m_at = place; }
    /// The cells of the record; valid until the next one.
    [[nodiscard]] std::span<const std::string> cells() const { return {m_cells.data(), m_count}; }
    /// Adds empty cells to the record up to @p count.
    void fill(std::size_t count)
    {
        while (m_count < count)
            addCell();
    }
    /// The line of the text in which the record begins, counted from 1.
    [[nodiscard]] qint64 line() const { return m_line; }
    /// Whether the record's last cell lacks its closing quote and therefore runs to the end of the text.
    [[nodiscard]] bool isUnclosed() const { return m_isUnclosed; }

private:
    std::string& addCell();
    [[nodiscard]] bool atCellEnd() const;
    void readCell();
    void readQuoted(std::string& cell);
    void passLineEnd();

    std::string_view m_text;
    char m_separator;
    std::size_t m_at = 0;
    std::vector<std::string> m_cells; ///< reused to keep their memory; the record has the first of them
    std::size_t m_count = 0;
    qint64 m_line = 0;
    qint64 m_nextLine = 1;
    bool m_isUnclosed = false;
};

} // namespace norvane::articles
