// Texts that the external tools leave: values between commas and line ends.
#pragma once

#include <optional>
#include <string_view>

namespace norvane
{

/// The part of a text file before the end mark (byte 1A) that old tools write after the last line. Only line
/// ends, blanks and further marks may follow it; elsewhere the byte is an ordinary character, and the records
/// after it count.
[[nodiscard]] std::string_view withoutEndMark(std::string_view text);

/// Takes one value after another from a text, as views of it; the text must outlive them. Each value comes
/// trimmed and without the quotes around it. A line end separates two values as a comma does. After an
/// opening quote without a closing one, the rest, quote included, is one value. Blank lines at the end and
/// the end mark are not values.
class CommaValues
{
public:
    explicit CommaValues(std::string_view text);

    [[nodiscard]] bool atEnd() const { return m_rest.empty() && !m_valueDue; }
    /// The next value, which may be empty. @return nothing at the end of the text.
    [[nodiscard]] std::optional<std::string_view> next();

private:
    std::string_view m_rest;
    bool m_valueDue = false; ///< an empty value follows a comma that ends the text
};

} // namespace norvane
