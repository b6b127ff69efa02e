// The text form of a collected report: values between commas and line ends, with no regard to lines.
#pragma once

#include <optional>
#include <string_view>

namespace norvane::sales
{

/// Takes one value after another, trimmed and without the quotes that it may stand in, as views of the text,
/// which must outlive it. A line end parts two values as a comma does; blank lines at the end of the text and
/// what comes behind an end mark (byte 1A) are no values.
class PollText
{
public:
    explicit PollText(std::string_view text);

    [[nodiscard]] bool atEnd() const { return m_rest.empty() && !m_valueDue; }
    /// The next value, which may be empty. @return nothing at the end of the text.
    [[nodiscard]] std::optional<std::string_view> next();

private:
    std::string_view m_rest;
    bool m_valueDue = false; ///< behind a comma that ends the text
};

} // namespace norvane::sales
