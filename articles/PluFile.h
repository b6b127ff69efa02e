// The lines of a file of PLUs as they were typed.
#pragma once

#include "articles/CsvReader.h"
#include "articles/DecimalSign.h"
#include "articles/PluColumns.h"
#include "articles/PluMistakes.h"
#include "register/PluNumber.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace norvane::articles
{

/// A line of the file.
struct PluLine {
    PluNumber number;
    std::size_t place;    ///< in the text
    std::uint32_t line;   ///< counted from 1
    bool isTaken = false; ///< a stored PLU has this number, or a line before this one
};

/// A file that was read once. Its cells remain in the text, and a line is split when needed: the cells of a
/// million lines would take ten times as much memory as the text.
class PluFile
{
public:
    /// Reads CSV in UTF-8. A line of headings names the columns, in any order and case; up to four lines
    /// before it, such as a title, are skipped. So are empty lines.
    /// @param content must outlive this object
    /// @param separator of the values; nothing for what the headings show: a semicolon, comma or tab
    PluFile(const QByteArray& content, std::optional<char> separator);

    [[nodiscard]] const std::vector<const PluColumn*>& columns() const { return m_columns; }
    /// In the order of the file. Those that could not be read are missing.
    [[nodiscard]] const std::vector<PluLine>& lines() const { return m_lines; }
    [[nodiscard]] const PluMistakes& mistakes() const { return m_mistakes; }
    [[nodiscard]] const DecimalSign& decimalSign() const { return m_decimalSign; }
    /// One cell for each column, UTF-8; valid until the next call.
    [[nodiscard]] std::span<const std::string> cells(std::uint32_t line) const;
    /// Takes the line with this number. @return its index; nothing if there is none or it is already taken.
    [[nodiscard]] std::optional<std::uint32_t> take(PluNumber number);

private:
    void findHeadings(std::optional<char> separator);
    void takeHeadings();
    void takeHeading(const std::string& cell);
    void takeLine(std::size_t place);
    void takeNumber(std::size_t place);
    void learnDecimalSign();
    void sortByNumber();
    void markDoubles();
    void add(qint64 line, const QString& column, const QString& reason);

    std::string_view m_text;
    mutable CsvReader m_csv{{}, ','};
    std::vector<const PluColumn*> m_columns;
    std::size_t m_numberPlace = 0; ///< of the column with the number
    std::vector<PluLine> m_lines;
    std::vector<std::uint32_t> m_byNumber; ///< indexes of lines
    std::size_t m_next = 0;                ///< in m_byNumber, after the last line that was taken
    PluMistakes m_mistakes;
    DecimalSign m_decimalSign;
};

} // namespace norvane::articles
