// See PluMistakes.h.
#include "articles/PluMistakes.h"

#include <algorithm>

namespace norvane::articles
{

void PluMistakes::add(PluMistake mistake)
{
    ++m_count;
    m_kept.push_back(std::move(mistake));
    // Sorting at every mistake would take too long.
    if (m_kept.size() >= 2 * mostKept)
        m_kept = first();
}

std::vector<PluMistake> PluMistakes::first() const
{
    auto mistakes = m_kept;
    std::ranges::stable_sort(mistakes, {}, &PluMistake::line);
    mistakes.resize(std::min(mistakes.size(), mostKept));
    return mistakes;
}

} // namespace norvane::articles
