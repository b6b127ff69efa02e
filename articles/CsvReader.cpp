// See CsvReader.h.
#include "articles/CsvReader.h"

#include <algorithm>

namespace norvane::articles
{

bool CsvReader::next()
{
    m_count = 0;
    m_line = m_nextLine;
    if (m_at >= m_text.size())
        return false;
    readCell();
    while (m_at < m_text.size() && m_text[m_at] == m_separator) {
        ++m_at;
        readCell();
    }
    passLineEnd();
    return true;
}

std::string& CsvReader::addCell()
{
    if (m_count == m_cells.size())
        m_cells.emplace_back();
    std::string& cell = m_cells[m_count++];
    cell.clear();
    return cell;
}

bool CsvReader::atCellEnd() const
{
    if (m_at >= m_text.size())
        return true;
    const char letter = m_text[m_at];
    return letter == m_separator || letter == '\n' || letter == '\r';
}

void CsvReader::readCell()
{
    std::string& cell = addCell();
    if (m_at < m_text.size() && m_text[m_at] == '"')
        readQuoted(cell);
    const std::size_t begin = m_at;
    while (!atCellEnd())
        ++m_at;
    cell.append(m_text.substr(begin, m_at - begin));
}

void CsvReader::readQuoted(std::string& cell)
{
    const std::size_t begin = m_at++;
    for (bool goesOn = true; goesOn;) {
        const std::size_t quote = std::min(m_text.find('"', m_at), m_text.size());
        cell.append(m_text.substr(m_at, quote - m_at));
        m_isUnclosed = quote == m_text.size();
        m_at = std::min(quote + 1, m_text.size());
        goesOn = m_at < m_text.size() && m_text[m_at] == '"';
        if (goesOn)
            cell += m_text[m_at++];
    }
    m_nextLine += std::ranges::count(m_text.substr(begin, m_at - begin), '\n');
}

void CsvReader::passLineEnd()
{
    if (m_at < m_text.size() && m_text[m_at] == '\r')
        ++m_at;
    if (m_at < m_text.size() && m_text[m_at] == '\n')
        ++m_at;
    ++m_nextLine;
}

} // namespace norvane::articles
