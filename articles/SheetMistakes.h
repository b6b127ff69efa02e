// What is wrong with a file of records.
#pragma once

#include <QString>

#include <vector>

namespace norvane::articles
{

/// Why a file cannot be imported.
struct SheetMistake {
    qint64 line = 0; ///< of the file, or row of the spreadsheet, counted from 1
    QString column;  ///< its heading; empty if the whole line is meant
    QString reason;
    QString place; ///< for the user: "line 7", "row 7" or, for a cell of a spreadsheet, "C7"
};

/// Counts all mistakes and keeps those of the first lines: a file of a million lines may have one in each.
class SheetMistakes
{
public:
    static constexpr std::size_t mostKept = 100;

    void add(SheetMistake mistake);
    [[nodiscard]] std::size_t count() const { return m_count; }
    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    /// By line, those of one line as they were added; at most mostKept.
    [[nodiscard]] std::vector<SheetMistake> first() const;

private:
    std::vector<SheetMistake> m_kept;
    std::size_t m_count = 0;
};

} // namespace norvane::articles
