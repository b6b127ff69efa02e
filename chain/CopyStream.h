// Rows on their way into a table of PostgreSQL.
#pragma once

#include <pqxx/pqxx>
#include <string>
#include <vector>

namespace norvane::chain
{

/// Rows that are already in the format that COPY reads, with line ends between. The library's stream formats
/// each value of a tuple, whose length must be known to the compiler, and sends every row as a separate
/// message; years of sales would take twice as long.
struct CopyLines {
    const std::string& text;
};
/// What the stream calls to spell what it sends.
inline std::string separated_list(const char* /*separator*/, const CopyLines& lines,
                                  const pqxx::internal::TypedCopyEscaper& /*escaper*/)
{
    return lines.text;
}

/// One COPY. Nothing else can be done in the transaction until complete().
class CopyStream
{
public:
    CopyStream(pqxx::work& work, const char* table, const std::vector<std::string>& columns)
        : m_stream(work, table, columns)
    {
    }

    /// Every row that follows begins with these values: the shop, or shop and day.
    void setLeading(const std::string& values) { m_leading = values; }
    /// @p rest is what readDay() and readNames() pass on.
    void add(const std::string& rest)
    {
        if (!m_lines.empty())
            m_lines += '\n';
        m_lines.append(m_leading).append(rest);
        if (m_lines.size() > bytesAtOnce)
            send();
    }
    /// Reports what the server says of the rows.
    void complete()
    {
        send();
        m_stream.complete();
    }

private:
    static constexpr std::size_t bytesAtOnce = 32 * 1024;

    void send()
    {
        if (!m_lines.empty())
            m_stream << CopyLines{m_lines};
        m_lines.clear();
    }

    pqxx::stream_to m_stream;
    std::string m_leading;
    std::string m_lines; ///< not sent yet
};

} // namespace norvane::chain
