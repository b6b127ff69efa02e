// How a café sells: more customers at noon, happy hour, take-away, a refund now and then; see Day.h.
#include "tools/ringsales/Day.h"

#include <algorithm>
#include <numeric>

namespace bank
{
namespace
{

constexpr qint64 thousand = 1000;
constexpr qint64 cent = 10; ///< in thousandths
constexpr int opens = 7;
constexpr int hoursOpen = 15;

constexpr std::size_t tableLevel = 0;
constexpr std::size_t largeLevel = 1;
constexpr std::size_t takeOutLevel = 2;
constexpr std::size_t happyHourLevel = 3;

/// Half a cent counts as a whole one.
qint64 inWholeCents(qint64 cents, qint64 parts, qint64 whole)
{
    return (cents * parts + whole / 2) / whole * cent;
}

class Till
{
public:
    Till(const Programme& programme, Dice dice) : m_programme(programme), m_dice(dice)
    {
        constexpr int clerksOnShift = 4;
        for (int i = 0; i < clerksOnShift; ++i)
            m_shift.push_back(m_dice.pick(programme.clerks));
    }

    std::vector<int> customersOfTheDay(int count)
    {
        constexpr int noon = 12;
        std::vector<int> clocks;
        for (int i = 0; i < count; ++i) {
            const int hour = m_dice.chance(35) ? noon + m_dice.below(2) : opens + m_dice.below(hoursOpen);
            const int minute = m_dice.below(60);
            clocks.push_back(100 * hour + minute);
        }
        std::sort(clocks.begin(), clocks.end());
        return clocks;
    }

    Ticket ring(int number, int clock)
    {
        Ticket ticket;
        ticket.number = number;
        ticket.clock = clock;
        ticket.period = m_programme.periodAt(clock);
        ticket.clerk = m_dice.pick(m_shift);
        ticket.takeOut = m_dice.chance(30);
        ticket.tender = tender();
        const int items = 1 + m_dice.below(5);
        for (int i = 0; i < items; ++i)
            ticket.items.push_back(item(ticket));
        return ticket;
    }

private:
    Tender tender()
    {
        const int percent = m_dice.below(100);
        if (percent < 45)
            return Tender::Cash;
        if (percent < 48)
            return Tender::Cheque;
        return percent < 80 ? Tender::Card : Tender::DebitCard;
    }

    std::size_t wantedLevel(const Ticket& ticket)
    {
        const bool large = m_dice.chance(20);
        if (ticket.takeOut)
            return takeOutLevel;
        if (ticket.clock >= 1700 && ticket.clock < 1900)
            return happyHourLevel;
        return large ? largeLevel : tableLevel;
    }

    /// The first that has a price: what the customer asks for, else the level that the article is sold at.
    std::size_t level(const Ticket& ticket, const Article& article)
    {
        for (const std::size_t each : {wantedLevel(ticket), tableLevel}) {
            if (article.cents.at(each) != 0)
                return each;
        }
        const auto priced =
            std::find_if(article.cents.begin(), article.cents.end(), [](qint64 cents) { return cents != 0; });
        return static_cast<std::size_t>(priced - article.cents.begin());
    }

    qint64 quantity(const Article& article)
    {
        if (article.weighed)
            return 100 + 5 * m_dice.below(180);
        return thousand * (m_dice.chance(75) ? 1 : 2 + m_dice.below(3));
    }

    Entry entry(const Article& article)
    {
        const int percent = m_dice.below(100);
        if (percent < 3)
            return Entry::Refund;
        if (percent < 6 && article.promotion)
            return Entry::Promotion;
        return percent >= 98 && article.waste ? Entry::Waste : Entry::Sale;
    }

    /// Articles early in the programme, such as the coffee, sell many times as often as late ones.
    const Article& wanted()
    {
        const int count = static_cast<int>(m_programme.articles.size());
        const int first = std::min({m_dice.below(count), m_dice.below(count), m_dice.below(count)});
        return m_programme.articles.at(static_cast<std::size_t>(first));
    }

    Item item(const Ticket& ticket)
    {
        const Article& article = wanted();
        Item item;
        item.article = &article;
        item.level = level(ticket, article);
        item.entry = entry(article);
        item.quantity = quantity(article);
        const qint64 cents = article.cents.at(item.level);
        item.amount = inWholeCents(cents, item.quantity, thousand);
        const bool discounted = item.entry == Entry::Sale && article.discount && m_dice.chance(5);
        if (discounted)
            item.discount = inWholeCents(item.amount / cent, 10, 100);
        return item;
    }

    const Programme& m_programme;
    Dice m_dice;
    std::vector<int> m_shift;
};

} // namespace

qint64 Item::soldQuantity() const
{
    switch (entry) {
    case Entry::Sale:
        return quantity;
    case Entry::Refund:
        return -quantity;
    default:
        return 0;
    }
}

qint64 Item::soldValue() const
{
    switch (entry) {
    case Entry::Sale:
        return amount - discount;
    case Entry::Refund:
        return -amount;
    default:
        return 0;
    }
}

qint64 Ticket::value() const
{
    return std::accumulate(items.begin(), items.end(), qint64{0},
                           [](qint64 sum, const Item& item) { return sum + item.soldValue(); });
}

std::vector<Ticket> ringDay(const Programme& programme, int tickets, Dice dice)
{
    Till till(programme, dice);
    std::vector<Ticket> day;
    for (const int clock : till.customersOfTheDay(tickets))
        day.push_back(till.ring(static_cast<int>(day.size()) + 1, clock));
    return day;
}

} // namespace bank
