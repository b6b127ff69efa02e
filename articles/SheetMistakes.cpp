// See SheetMistakes.h.
#include "articles/SheetMistakes.h"

#include <algorithm>

namespace norvane::articles
{

void SheetMistakes::add(SheetMistake mistake)
{
    ++m_count;
    m_kept.push_back(std::move(mistake));
    // Sorting at every mistake would take too long.
    if (m_kept.size() >= 2 * mostKept)
        m_kept = first();
}

std::vector<SheetMistake> SheetMistakes::first() const
{
    auto mistakes = m_kept;
    std::ranges::stable_sort(mistakes, {}, &SheetMistake::line);
    mistakes.resize(std::min(mistakes.size(), mostKept));
    return mistakes;
}

} // namespace norvane::articles
