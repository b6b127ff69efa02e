// Cutting a poll text into its values; see PollText.h. A report of all PLUs is close to a million of them.
#include "sales/PollText.h"

#include "records/RecordText.h"

namespace norvane::sales
{
namespace
{

constexpr std::string_view blanks = " \t";
constexpr std::string_view whiteSpace = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isSeparator(char c)
{
    return c == ',' || c == '\r' || c == '\n';
}

/// Where the value that @p text begins with ends. A comma between quotes is part of the value.
std::size_t endOfValue(std::string_view text)
{
    std::size_t from = 0;
    const auto first = text.find_first_not_of(blanks);
    if (first != std::string_view::npos && text[first] == '"') {
        const auto closing = text.find('"', first + 1);
        from = closing == std::string_view::npos ? first : closing + 1;
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

PollText::PollText(std::string_view text) : m_rest(records::withoutEndMark(text))
{
    m_rest = m_rest.substr(0, m_rest.find_last_not_of(whiteSpace) + 1);
}

std::optional<std::string_view> PollText::next()
{
    if (atEnd())
        return std::nullopt;
    const auto end = endOfValue(m_rest);
    const auto value = withoutQuotes(trimmed(m_rest.substr(0, end)));
    m_valueDue = false;
    auto past = end;
    if (past < m_rest.size()) {
        m_valueDue = m_rest[past] == ',';
        past += m_rest.substr(past).starts_with("\r\n") ? 2U : 1U;
    }
    m_rest.remove_prefix(past);
    m_valueDue = m_valueDue && m_rest.empty();
    return value;
}

} // namespace norvane::sales
