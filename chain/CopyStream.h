// Rows on their way into a table of PostgreSQL.
#pragma once

#include <pqxx/pqxx>
#include <string>
#include <vector>

namespace norvane::chain
{

/// A row that is spelled as COPY reads it already. The library's stream spells each value of a tuple, whose
/// length must be known to the compiler, and joins them value by value; years of sales would take twice as
/// long so.
struct CopyLine {
    const std::string& text;
};
/// What the stream calls to spell a row.
inline std::string separated_list(const char* /*separator*/, const CopyLine& line,
                                  const pqxx::internal::TypedCopyEscaper& /*escaper*/)
{
    return line.text;
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
    /// @p rest is what readDay() and readNames() hand on.
    void add(const std::string& rest)
    {
        m_line.assign(m_leading).append(rest);
        m_stream << CopyLine{m_line};
    }
    /// Reports what the server says of the rows.
    void complete() { m_stream.complete(); }

private:
    pqxx::stream_to m_stream;
    std::string m_leading;
    std::string m_line;
};

} // namespace norvane::chain
