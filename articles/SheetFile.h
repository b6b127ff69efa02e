// The lines of a file of records as they were typed.
#pragma once

#include "articles/CsvReader.h"
#include "articles/DecimalSign.h"
#include "articles/SheetMistakes.h"
#include "articles/TableSheet.h"

#include <QByteArray>
#include <QHash>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace norvane::articles
{

/// What may separate the cells of a file, in the order in which they are tried.
inline constexpr auto csvSeparators = std::to_array({';', ',', '\t'});
/// The line of headings is among the first lines of a file.
inline constexpr int linesForHeadings = 5;
/// The text of a file without the mark that many begin with. @param content must outlive it
[[nodiscard]] std::string_view csvTextOf(const QByteArray& content);

/// How the text of a file is to be read.
struct SheetReading {
    std::optional<char> separator;    ///< nothing for what the headings show: a semicolon, comma or tab
    QHash<QString, QString> headings; ///< of a column by the file's, in small letters; empty for one to skip
    bool isFromSpreadsheet = false;   ///< made by spreadsheetText()
};

/// A line of the file.
struct SheetLine {
    PluNumber number;     ///< of the record
    std::size_t place;    ///< in the text
    std::uint32_t line;   ///< counted from 1; a row in a spreadsheet
    bool isTaken = false; ///< a stored record has this number, or a line before this one
};

/// A file that was read once. Its cells remain in the text, and a line is split when needed: the cells of a
/// million lines would take ten times as much memory as the text.
class SheetFile
{
public:
    /// Reads CSV in UTF-8. A line of headings names the columns, in any order and case; up to four lines
    /// before it, such as a title, are skipped. So are empty lines.
    /// @param sheet, content must outlive this object
    SheetFile(const TableSheet& sheet, const QByteArray& content, SheetReading reading = {});

    /// In the order of the file; nullptr for one that is skipped.
    [[nodiscard]] const std::vector<const SheetColumn*>& columns() const { return m_columns; }
    /// In the order of the file. Those that could not be read are missing.
    [[nodiscard]] const std::vector<SheetLine>& lines() const { return m_lines; }
    [[nodiscard]] const SheetMistakes& mistakes() const { return m_mistakes; }
    [[nodiscard]] const DecimalSign& decimalSign() const { return m_decimalSign; }
    /// One cell for each column, UTF-8; valid until the next call.
    [[nodiscard]] std::span<const std::string> cells(std::uint32_t line) const;
    /// Takes the line with this number. @return its index; nothing if there is none or it is already taken.
    [[nodiscard]] std::optional<std::uint32_t> take(PluNumber number);
    /// Where a mistake is, in words. @param column of the file; nothing for a whole line
    [[nodiscard]] QString placeOf(qint64 line, std::optional<std::size_t> column) const;

private:
    [[nodiscard]] bool next();
    [[nodiscard]] std::span<const std::string> cells() const;
    [[nodiscard]] qint64 line() const;
    [[nodiscard]] QString headingOf(const std::string& cell) const;
    [[nodiscard]] bool hasHeadings() const;
    void findHeadings();
    void takeHeadings();
    void takeHeading(std::size_t place);
    void takeLine(std::size_t place);
    void takeNumber(std::size_t place);
    [[nodiscard]] bool isFit();
    void learnDecimalSign();
    void sortByNumber();
    void markDoubles();
    void add(qint64 line, std::optional<std::size_t> column, const QString& heading, const QString& reason);

    const TableSheet& m_sheet;
    SheetReading m_reading;
    std::string_view m_text;
    mutable CsvReader m_csv{{}, ','};
    std::vector<const SheetColumn*> m_columns;
    std::size_t m_numberPlace = 0; ///< of the column with the number
    std::vector<SheetLine> m_lines;
    std::vector<std::uint32_t> m_byNumber; ///< indexes of lines
    std::size_t m_next = 0;                ///< in m_byNumber, after the last line that was taken
    SheetMistakes m_mistakes;
    DecimalSign m_decimalSign;
};

} // namespace norvane::articles
