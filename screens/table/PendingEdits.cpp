// See PendingEdits.h.
#include "screens/table/PendingEdits.h"

#include <algorithm>
#include <utility>

namespace norvane::screens
{
namespace
{

std::pair<qint64, int> cellOf(const PendingEdit& edit)
{
    return {edit.row, edit.column};
}

} // namespace

const PendingEdit* PendingEdits::find(qint64 row, int column) const
{
    const auto found = std::ranges::lower_bound(m_edits, std::pair(row, column), {}, cellOf);
    return found == m_edits.end() || cellOf(*found) != std::pair(row, column) ? nullptr : &*found;
}

void PendingEdits::add(std::vector<PendingEdit> edits)
{
    std::vector<PendingEdit> all = std::move(m_edits);
    all.reserve(all.size() + edits.size());
    std::ranges::move(edits, std::back_inserter(all));
    if (!std::ranges::is_sorted(all, {}, cellOf))
        std::ranges::stable_sort(all, {}, cellOf);
    m_edits.clear();
    m_edits.reserve(all.size());
    for (PendingEdit& edit : all) {
        if (m_edits.empty() || cellOf(m_edits.back()) != cellOf(edit)) {
            m_edits.push_back(std::move(edit));
        } else {
            m_edits.back().after = std::move(edit.after);
        }
    }
    std::erase_if(m_edits, [](const PendingEdit& edit) { return edit.before == edit.after; });
}

void PendingEdits::remove(std::vector<int> places)
{
    std::ranges::sort(places);
    int place = 0;
    std::erase_if(m_edits, [&](const PendingEdit&) { return std::ranges::binary_search(places, place++); });
}

} // namespace norvane::screens
