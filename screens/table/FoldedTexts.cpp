// See FoldedTexts.h.
#include "screens/table/FoldedTexts.h"

#include <algorithm>

namespace norvane::screens
{
namespace
{

bool isAscii(std::string_view text)
{
    return std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

char smallLetter(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

void FoldedTexts::clear()
{
    m_folded.clear();
    m_begins.clear();
}

void FoldedTexts::add(std::string_view utf8)
{
    m_begins.push_back(static_cast<std::uint32_t>(m_folded.size()));
    if (isAscii(utf8)) {
        std::ranges::transform(utf8, std::back_inserter(m_folded), smallLetter);
    } else {
        const auto text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
        m_folded += text.toCaseFolded().toStdString();
    }
    m_folded += '\0';
}

std::vector<bool> FoldedTexts::having(const QString& part) const
{
    std::vector<bool> found(m_begins.size(), part.isEmpty());
    if (part.isEmpty())
        return found;
    const std::string sought = part.toCaseFolded().toStdString();
    auto next = m_begins.cbegin();
    for (std::size_t at = m_folded.find(sought); at != std::string::npos; at = m_folded.find(sought, at)) {
        next = std::upper_bound(next, m_begins.cend(), at);
        found[static_cast<std::size_t>(next - m_begins.cbegin()) - 1] = true;
        if (next == m_begins.cend())
            break;
        at = *next;
    }
    return found;
}

} // namespace norvane::screens
