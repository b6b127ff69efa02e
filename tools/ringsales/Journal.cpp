// Columns of the journal; see Journal.h.
#include "tools/ringsales/Journal.h"

#include "tools/bank/Totals.h"

#include <QByteArrayList>

#include <array>

namespace bank
{
namespace
{

constexpr std::array entryWords{"sale", "refund", "promo", "waste"};
constexpr std::array tenderWords{"cash", "cheque", "card", "debit card"};

} // namespace

QByteArray journalHead()
{
    return "register,ticket,clock,period,clerk,destination,tender,plu,level,offer,entry,quantity,amount,"
           "discount\r\n";
}

QByteArray journalLines(int registerNumber, const Ticket& ticket)
{
    const auto number = [](int value) {
        return QByteArray::number(value);
    };
    QByteArray lines;
    for (const auto& item : ticket.items) {
        const QByteArrayList columns{
            number(registerNumber),
            number(ticket.number),
            number(ticket.clock).rightJustified(4, '0'),
            number(ticket.period),
            number(ticket.clerk),
            ticket.takeOut ? "take out" : "eat in",
            tenderWords.at(static_cast<std::size_t>(ticket.tender)),
            item.article->number,
            number(static_cast<int>(item.level) + 1),
            number(item.article->offer),
            entryWords.at(static_cast<std::size_t>(item.entry)),
            numberText(item.quantity),
            numberText(item.amount),
            numberText(item.discount),
        };
        lines += columns.join(',') + "\r\n";
    }
    return lines;
}

} // namespace bank
