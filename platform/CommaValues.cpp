// Splits a text into its values; see CommaValues.h. A report of all PLUs has nearly a million.
#include "platform/CommaValues.h"

#include <algorithm>

namespace norvane
{
namespace
{

/// Ends a text file for tools that do not know its length.
constexpr char endMark = '\x1A';
constexpr std::string_view trailingSpace = " \t\r\n";
constexpr std::string_view endOfText = " \t\r\n\x1A";

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isSeparator(char c)
{
    return c == ',' || c == '\r' || c == '\n';
}

/// Where the first value of @p text ends. Commas between quotes belong to the value; a quote that is never
/// closed takes the rest.
std::size_t endOfValue(std::string_view text)
{
    std::size_t from = 0;
    while (from < text.size() && isBlank(text[from]))
        ++from;
    if (from < text.size() && text[from] == '"') {
        const auto closing = text.find('"', from + 1);
        from = closing == std::string_view::npos ? text.size() : closing + 1;
    }
    while (from < text.size() && !isSeparator(text[from]))
        ++from;
    return from;
}

std::string_view withoutQuotes(std::string_view value)
{
    const bool quoted = value.size() > 1 && value.front() == '"' && value.back() == '"';
    return quoted ? trimmed(value.substr(1, value.size() - 2)) : value;
}

} // namespace

std::string_view withoutEndMark(std::string_view text)
{
    const auto behindLast = text.find_last_not_of(endOfText) + 1;
    return text.substr(0, text.find(endMark, behindLast));
}

CommaValues::CommaValues(std::string_view text) : m_rest(withoutEndMark(text))
{
    m_rest = m_rest.substr(0, m_rest.find_last_not_of(trailingSpace) + 1);
}

std::optional<std::string_view> CommaValues::next()
{
    if (atEnd())
        return std::nullopt;
    const auto end = endOfValue(m_rest);
    const auto value = withoutQuotes(trimmed(m_rest.substr(0, end)));
    m_rest.remove_prefix(end);
    const bool comma = m_rest.starts_with(',');
    const std::size_t separator = m_rest.starts_with("\r\n") ? 2 : 1;
    m_rest.remove_prefix(std::min(separator, m_rest.size()));
    m_valueDue = comma && m_rest.empty();
    return value;
}

} // namespace norvane
