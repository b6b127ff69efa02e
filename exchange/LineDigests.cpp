// See LineDigests.h.
#include "exchange/LineDigests.h"

#include "records/RegisterFiles.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <iterator>

namespace norvane::exchange
{
namespace
{

constexpr std::size_t wordSize = sizeof(std::uint64_t);
/// Odd, with its bits spread evenly.
constexpr std::uint64_t spreader = 0x9E3779B97F4A7C15;

constexpr std::uint64_t mixed(std::uint64_t digest, std::uint64_t word)
{
    const std::uint64_t product = (digest ^ word) * spreader;
    return product ^ (product >> 29);
}

std::uint64_t lastWord(std::string_view bytes)
{
    std::array<char, wordSize> word{};
    std::ranges::copy(bytes, word.begin());
    return qFromLittleEndian<std::uint64_t>(word.data());
}

} // namespace

std::uint64_t digestOf(std::string_view bytes, std::uint64_t seed)
{
    std::uint64_t digest = mixed(seed, bytes.size());
    for (; bytes.size() >= wordSize; bytes.remove_prefix(wordSize))
        digest = mixed(digest, qFromLittleEndian<std::uint64_t>(bytes.data()));
    digest = mixed(digest, lastWord(bytes));
    return mixed(digest, spreader);
}

LineDigester::LineDigester(int file)
{
    const records::RegisterFile* const known = records::registerFile(file);
    m_isPlaced = known != nullptr && !known->layout().lineNumberField.empty();
}

std::uint64_t LineDigester::next(std::string_view line)
{
    return digestOf(line, m_isPlaced ? ++m_place : 0);
}

qint64 differences(const Digests& now, const Digests& then)
{
    const auto same = static_cast<qint64>(inBoth(now, then).size());
    return static_cast<qint64>(std::max(now.size(), then.size())) - same;
}

Digests inBoth(const Digests& left, const Digests& right)
{
    Digests both;
    std::ranges::set_intersection(left, right, std::back_inserter(both));
    return both;
}

} // namespace norvane::exchange
