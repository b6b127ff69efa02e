// What is wrong with a file of PLUs.
#pragma once

#include <QString>

#include <vector>

namespace norvane::articles
{

/// Why a file cannot be imported.
struct PluMistake {
    qint64 line = 0; ///< of the file, counted from 1
    QString column;  ///< its heading; empty if the whole line is meant
    QString reason;
};

/// Counts all mistakes and keeps those of the first lines: a file of a million lines may have one in each.
class PluMistakes
{
public:
    static constexpr std::size_t mostKept = 100;

    void add(PluMistake mistake);
    [[nodiscard]] std::size_t count() const { return m_count; }
    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    /// By line, those of one line as they were added; at most mostKept.
    [[nodiscard]] std::vector<PluMistake> first() const;

private:
    std::vector<PluMistake> m_kept;
    std::size_t m_count = 0;
};

} // namespace norvane::articles
