// Packing and moving; see LookUpLines.h.
#include "keys/lookups/LookUpLines.h"

#include <algorithm>

namespace norvane::keys
{
namespace
{

/// Whatever the number of lines is.
constexpr int packingPasses = 20;

void packOnce(LookUpLines& lines)
{
    for (std::size_t next = 1; next < lines.size(); ++next) {
        if (lines[next - 1].isEmpty())
            lines[next - 1] = std::exchange(lines[next], LookUpLine());
    }
}

bool isLine(const LookUpLines& lines, int place)
{
    return place >= 0 && place < static_cast<int>(lines.size());
}

} // namespace

/// A PLU number of zeros only is empty.
bool LookUpLine::isEmpty() const
{
    return std::all_of(code.begin(), code.end(), [](QChar digit) { return digit == u'0'; });
}

void packLines(LookUpLines& lines)
{
    for (int pass = 0; pass < packingPasses; ++pass)
        packOnce(lines);
}

bool moveLine(LookUpLines& lines, int from, int to)
{
    if (!isLine(lines, from) || !isLine(lines, to))
        return false;
    const auto first = lines.begin() + std::min(from, to);
    const auto after = lines.begin() + std::max(from, to) + 1;
    std::rotate(first, from < to ? first + 1 : after - 1, after);
    return true;
}

int usedLines(const LookUpLines& lines)
{
    return static_cast<int>(
        std::ranges::count_if(lines, [](const LookUpLine& line) { return !line.isEmpty(); }));
}

} // namespace norvane::keys
