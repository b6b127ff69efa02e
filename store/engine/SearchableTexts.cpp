// See SearchableTexts.h.
#include "store/engine/SearchableTexts.h"

#include <algorithm>
#include <numeric>

namespace norvane::store
{
namespace
{

/// A line end inside a text would cut it.
std::string lineOf(QString text)
{
    return text.replace(u'\n', u' ').toStdString() + '\n';
}

} // namespace

void SearchableTexts::clear()
{
    m_shown.clear();
    m_folded.clear();
    m_begins.clear();
}

void SearchableTexts::add(const QString& number, const QString& text)
{
    m_begins.push_back(
        {static_cast<std::uint32_t>(m_shown.size()), static_cast<std::uint32_t>(m_folded.size())});
    m_shown += lineOf(number) + lineOf(text);
    m_folded += lineOf(number.toCaseFolded()) + lineOf(text.toCaseFolded());
}

QString SearchableTexts::shown(int record, int line) const
{
    std::size_t begin = m_begins.at(static_cast<std::size_t>(record)).shown;
    if (line > 0)
        begin = m_shown.find('\n', begin) + 1;
    const std::size_t end = m_shown.find('\n', begin);
    return QString::fromUtf8(m_shown.data() + begin, static_cast<qsizetype>(end - begin));
}

std::vector<int> SearchableTexts::containing(const QString& part) const
{
    std::vector<int> found;
    if (part.isEmpty()) {
        found.resize(m_begins.size());
        std::iota(found.begin(), found.end(), 0);
        return found;
    }
    const std::string sought = part.toCaseFolded().toStdString();
    auto next = m_begins.cbegin();
    for (std::size_t at = m_folded.find(sought); at != std::string::npos; at = m_folded.find(sought, at)) {
        next = std::find_if(next, m_begins.cend(), [at](const Begin& begin) { return begin.folded > at; });
        found.push_back(static_cast<int>(next - m_begins.cbegin()) - 1);
        if (next == m_begins.cend())
            break;
        at = next->folded;
    }
    return found;
}

int SearchableTexts::find(const QString& number) const
{
    const std::string line = lineOf(number);
    const auto hasNumber = [&](const Begin& begin) {
        return m_shown.compare(begin.shown, line.size(), line) == 0;
    };
    const auto found = std::find_if(m_begins.cbegin(), m_begins.cend(), hasNumber);
    return found == m_begins.cend() ? -1 : static_cast<int>(found - m_begins.cbegin());
}

} // namespace norvane::store
