// Splitting of register records into lines and comma columns, and what some columns hold. All of it works on
// views of the file's own bytes (Windows-1252).
#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace norvane::records
{

/// Takes one line after another off a text, without its line end: CR LF, a lone LF or a lone CR. A line end
/// at the very end of the text begins no further line.
class Lines
{
public:
    explicit Lines(std::string_view text) : m_text(text) {}
    [[nodiscard]] bool atEnd() const { return m_at >= m_text.size(); }
    [[nodiscard]] std::string_view next();

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_lineFeed = 0; ///< position of the first line feed after the lines taken so far
};

/// Takes the next column from @p line. Columns are never quoted: a comma always ends a column. Columns beyond
/// the end of a line are empty.
[[nodiscard]] std::string_view takeField(std::string_view& line);

/// While the trimmed text begins with a zero, it is replaced by the trimmed text without that zero. Blanks
/// around any other text are kept. @return "0" when nothing is left; a text of blanks alone as it is.
[[nodiscard]] std::string_view StripLeadingZero(std::string_view text);

/// Checks that a column has a length that a register can send. @throws RuntimeFailure with
/// Failure::TextTooLong for one that is longer than any could be: the file is damaged, and converting it
/// would take many times its memory.
void checkLength(std::string_view column);

/// The two digits of an option column, 0 to 9 each, after the text was brought to two digits ("4" is 0 and
/// 4). Empty text counts as "00". @throws RuntimeFailure with Failure::TypeMismatch for anything else.
[[nodiscard]] std::array<int, 2> optionDigits(std::string_view column);

/// A text column as the database holds it: UTF-8, the register's own mark shown as "^".
[[nodiscard]] std::string textFromRegister(std::string_view bytes);

/// A column as shown in a message: only the beginning of a long one.
[[nodiscard]] QString shownFromRegister(std::string_view bytes);

/// A column whose text is copied unchanged; the register's mark is not converted.
[[nodiscard]] std::string plainFromRegister(std::string_view bytes);

} // namespace norvane::records
