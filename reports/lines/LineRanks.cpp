// See LineRanks.h. Numbers are added exactly; only a share is rounded, to 17 digits.
#include "reports/lines/LineRanks.h"

#include "platform/DecimalTotal.h"
#include "platform/RuntimeFailure.h"
#include "reports/formula/ExactNumbers.h"
#include "reports/lines/LineNumbers.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr int shareDigits = 17;
constexpr int hundred = 2; ///< places that a per cent moves the point

std::optional<Decimal> sharePerCent(const Decimal& number, const Decimal& whole)
{
    if (whole <= Decimal())
        return std::nullopt;
    return number.dividedBy(whole, shareDigits).shifted(hundred);
}

struct NumberedLine {
    Decimal number;
    LineFields fields;
};

std::vector<Decimal> numbersOf(const ReportLayout& layout, const std::vector<LineFields>& lines)
{
    LineNumbers numbers(layout);
    std::vector<Decimal> all;
    all.reserve(lines.size());
    for (const auto& fields : lines) {
        numbers.read(fields);
        all.push_back(layout.classes->by.value({numbers.numbers(), {}}).value_or(Decimal()));
    }
    return all;
}

std::vector<NumberedLine> sortedLines(const std::vector<Decimal>& numbers, std::vector<LineFields>& lines)
{
    std::vector<NumberedLine> sorted;
    sorted.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        sorted.push_back({numbers[i], std::move(lines[i])});
    std::ranges::stable_sort(sorted, std::greater<>(), &NumberedLine::number);
    return sorted;
}

/// @return nothing where a number has more digits than a Decimal holds.
template <typename Work>
auto unlessTooLong(Work work) -> decltype(work())
{
    try {
        return work();
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::Overflow)
            throw;
    }
    return std::nullopt;
}

Decimal sumOf(const std::vector<Decimal>& numbers)
{
    DecimalTotal sum;
    for (const auto& number : numbers)
        sum.add(number.text());
    return decimalOf(sum.text());
}

class Ranking
{
public:
    Ranking(const ClassLayout& classes, const Decimal& whole)
        : m_classes(classes), m_counts(classes.limits.size() + 1), m_whole(whole)
    {
    }

    LineRank next(const Decimal& number)
    {
        if (number != m_number)
            m_class = classOf(number);
        m_number = number;
        m_sum.add(number.text());
        m_before = decimalOf(m_sum.text());
        ++m_counts[m_class];
        return {sharePerCent(number, m_whole), sharePerCent(m_before, m_whole), letter()};
    }

    void count(LineRank& rank) const
    {
        const int place = rank.letter == noRank ? 0 : rank.letter.front().unicode() - u'A';
        rank.linesOfClass = m_counts[static_cast<std::size_t>(place)];
    }

private:
    [[nodiscard]] std::size_t classOf(const Decimal& number) const
    {
        const auto isBelow = [this](const Decimal& limit) {
            return m_before.shifted(hundred) < m_whole.times(limit);
        };
        const auto& limits = m_classes.limits;
        if (m_whole <= Decimal())
            return 0;
        if (number <= Decimal())
            return limits.size();
        return static_cast<std::size_t>(std::ranges::find_if(limits, isBelow) - limits.begin());
    }

    [[nodiscard]] QString letter() const
    {
        return m_whole <= Decimal() ? noRank.toString()
                                    : QString(QChar(u'A' + static_cast<char16_t>(m_class)));
    }

    const ClassLayout& m_classes;
    std::vector<int> m_counts; ///< lines of each class
    Decimal m_whole;
    DecimalTotal m_sum;
    Decimal m_before;                ///< the same, to 18 digits
    std::optional<Decimal> m_number; ///< of the line before
    std::size_t m_class = 0;
};

} // namespace

std::vector<LineRank> rankLines(const ReportLayout& layout, std::vector<LineFields>& lines)
{
    const auto numbers = unlessTooLong([&] { return std::optional(numbersOf(layout, lines)); });
    const auto whole = numbers ? unlessTooLong([&] { return std::optional(sumOf(*numbers)); }) : std::nullopt;
    std::vector<LineRank> ranks;
    if (!whole) {
        ranks.resize(lines.size());
        return ranks;
    }
    auto sorted = sortedLines(*numbers, lines);
    Ranking ranking(*layout.classes, *whole);
    ranks.reserve(sorted.size());
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        ranks.push_back(ranking.next(sorted[i].number));
        lines[i] = std::move(sorted[i].fields);
    }
    for (auto& rank : ranks)
        ranking.count(rank);
    return ranks;
}

std::optional<Decimal> shareOf(const ClassLayout& classes, const SlotNumbers& numbers)
{
    return unlessTooLong([&] {
        const auto some = classes.by.value(numbers);
        const auto all = classes.by.value({numbers.whole, numbers.whole});
        return some && all ? sharePerCent(*some, *all) : std::nullopt;
    });
}

} // namespace norvane::reports
