// See TextSearch.h.
#include "overlay/TextSearch.h"

#include <algorithm>

namespace norvane::overlay
{

bool hasText(const Document& document, int cell, const SoughtText& sought)
{
    const QString& own = document.cell(cell).text;
    if (sought.text.isEmpty())
        return false;
    QString text = own;
    for (int line = cell + 1; line <= document.layout().keyOf(cell).lastCell(); ++line)
        text += document.cell(line).text;
    const qsizetype place = text.indexOf(sought.text, 0, sought.letterCase);
    return place >= 0 && place < own.size();
}

int findNext(const Document& document, const std::vector<int>& order, int cell, const SoughtText& sought)
{
    const auto current = std::ranges::find(order, cell);
    const auto fits = [&](int each) {
        return hasText(document, each, sought);
    };
    const auto from = current == order.end() ? current : current + 1;
    if (const auto after = std::find_if(from, order.end(), fits); after != order.end())
        return *after;
    const auto before = std::find_if(order.begin(), from, fits);
    return before != from ? *before : -1;
}

int replaceIn(Document& document, const std::vector<int>& cells, const SoughtText& sought,
              const QString& replacement)
{
    int changed = 0;
    for (const int cell : cells) {
        QString& text = document.cell(cell).text;
        if (sought.text.isEmpty() || !text.contains(sought.text, sought.letterCase))
            continue;
        text.replace(sought.text, replacement, sought.letterCase);
        text.truncate(cellTextLimit);
        ++changed;
    }
    return changed;
}

} // namespace norvane::overlay
