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

QByteArrayList ticketColumns(int registerNumber, const Ticket& ticket)
{
    return {QByteArray::number(registerNumber),
            QByteArray::number(ticket.number),
            QByteArray::number(ticket.clock).rightJustified(4, '0'),
            QByteArray::number(ticket.period),
            QByteArray::number(ticket.clerk),
            ticket.takeOut ? "take out" : "eat in",
            tenderWords.at(static_cast<std::size_t>(ticket.tender))};
}

QByteArrayList itemColumns(const Item& item)
{
    return {item.article->number,
            QByteArray::number(item.level + 1),
            item.article->key ? item.article->key->text() : QByteArray(),
            QByteArray::number(item.article->offer),
            entryWords.at(static_cast<std::size_t>(item.entry)),
            numberText(item.quantity),
            numberText(item.amount),
            numberText(item.discount)};
}

} // namespace

QByteArray journalHead()
{
    return "register,ticket,clock,period,clerk,destination,tender,plu,level,key,offer,entry,quantity,amount,"
           "discount\r\n";
}

QByteArray journalLines(int registerNumber, const Ticket& ticket)
{
    QByteArray lines;
    for (const auto& item : ticket.items)
        lines += (ticketColumns(registerNumber, ticket) + itemColumns(item)).join(',') + "\r\n";
    return lines;
}

} // namespace bank
