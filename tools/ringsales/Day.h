// A day at the till: the tickets in the order of the clock, each rung from the register's own programme.
#pragma once

#include "tools/ringsales/Dice.h"
#include "tools/ringsales/Programme.h"

#include <vector>

namespace bank
{

enum class Entry { Sale, Refund, Promotion, Waste };
enum class Tender { Cash, Cheque, Card, DebitCard };

/// Quantities and money are thousandths.
struct Item {
    const Article* article = nullptr;
    std::size_t level = 0; ///< from 0
    Entry entry = Entry::Sale;
    qint64 quantity = 0;
    qint64 amount = 0;   ///< quantity times price, in whole cents
    qint64 discount = 0; ///< of a sale

    /// What it adds to the day's sales; nothing for what was given away or written off.
    [[nodiscard]] qint64 soldQuantity() const;
    [[nodiscard]] qint64 soldValue() const;
};

struct Ticket {
    int number = 0; ///< from 1
    int clock = 0;  ///< 1435 is twenty-five to three
    int period = 0; ///< 0: none is active
    int clerk = 0;
    bool takeOut = false;
    Tender tender = Tender::Cash;
    std::vector<Item> items;

    [[nodiscard]] qint64 value() const;
};

/// @return @p tickets tickets that point into @p programme
[[nodiscard]] std::vector<Ticket> ringDay(const Programme& programme, int tickets, Dice dice);

} // namespace bank
