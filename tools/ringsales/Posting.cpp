// Which line of which report a ticket counts in; see Posting.h.
#include "tools/ringsales/Posting.h"

#include <array>

namespace bank
{
namespace
{

/// A line of the reports by its place, counted from 1 as the register's descriptors name it (files 21 and
/// 22); 0: an employee's report has no such line.
struct Line {
    int financial;
    int employee;
};

constexpr Line grossSales{1, 1};
constexpr Line netSales{2, 2};
constexpr Line negativeSales{3, 3};
constexpr Line customers{5, 4};
constexpr Line itemsSold{8, 7};
constexpr Line eatIn{28, 0};
constexpr Line takeOut{29, 0};
constexpr Line tenPercentOff{32, 18};
constexpr Line refund{44, 30};
constexpr Line waste{45, 31};
constexpr Line promotion{46, 32};

struct TenderLines {
    Line taken;
    Line inDrawer;
};

/// In the order of Tender.
constexpr std::array<TenderLines, 4> tenders{{
    {{63, 44}, {81, 62}}, // cash
    {{64, 45}, {82, 63}}, // cheque
    {{65, 46}, {83, 64}}, // card
    {{66, 47}, {83, 64}}, // debit card
}};

constexpr qint64 once = 1000;

class Poster
{
public:
    Poster(const Ticket& ticket, Totals& totals) : m_ticket(ticket), m_totals(totals) {}

    void run()
    {
        for (const auto& item : m_ticket.items)
            postItem(item);
        const auto value = m_ticket.value();
        const auto& tender = tenders.at(static_cast<std::size_t>(m_ticket.tender));
        for (const auto& line :
             {customers, m_ticket.takeOut ? takeOut : eatIn, tender.taken, tender.inDrawer}) {
            postLine(line, once, value);
        }
        if (m_ticket.period != 0)
            m_totals.add(timeReport, static_cast<std::size_t>(m_ticket.period), {once, value});
    }

private:
    void postLine(const Line& line, qint64 quantity, qint64 value)
    {
        m_totals.add(financialReport, static_cast<std::size_t>(line.financial), {quantity, value});
        if (line.employee != 0) {
            const int item = (m_ticket.clerk - 1) * financialItems + line.employee;
            m_totals.add(clerkReport, static_cast<std::size_t>(item), {quantity, value});
        }
    }

    void postItem(const Item& item)
    {
        postEntry(item);
        postLine(netSales, item.soldQuantity(), item.soldValue());
        postLine(itemsSold, item.soldQuantity(), 0);
        postPlu(item);
    }

    void postEntry(const Item& item)
    {
        if (item.entry == Entry::Sale)
            postLine(grossSales, item.quantity, item.amount);
        if (item.discount != 0)
            postLine(tenPercentOff, once, -item.discount);
        if (item.entry == Entry::Refund) {
            postLine(negativeSales, -item.quantity, -item.amount);
            postLine(refund, -item.quantity, -item.amount);
        }
        if (item.entry == Entry::Promotion)
            postLine(promotion, item.quantity, item.amount);
        if (item.entry == Entry::Waste)
            postLine(waste, item.quantity, item.amount);
    }

    void postPlu(const Item& item)
    {
        Numbers numbers(2 + 2 * soldLevels);
        numbers[0] = item.entry == Entry::Promotion ? item.quantity : 0;
        numbers[1] = item.entry == Entry::Waste ? item.quantity : 0;
        numbers[2 + 2 * item.level] = item.soldQuantity();
        numbers[3 + 2 * item.level] = item.soldValue();
        m_totals.addPlu(item.article->number, numbers);
        if (item.article->offer != 0)
            m_totals.add(mixReport, static_cast<std::size_t>(item.article->offer), {item.soldQuantity()});
    }

    const Ticket& m_ticket;
    Totals& m_totals;
};

} // namespace

void post(const Ticket& ticket, Totals& totals)
{
    Poster(ticket, totals).run();
}

} // namespace bank
