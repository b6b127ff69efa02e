// ringsales: rings up a day's sales on registers of a bank.
//   ringsales <folder> [--registers 1,3] [--tickets N] [--seed N] [--key L/K] [--journal file]
// The sales are added to those that the registers already have.
#include "tools/bank/Bank.h"
#include "tools/bank/CommandLine.h"
#include "tools/bank/Files.h"
#include "tools/bank/TextRecords.h"
#include "tools/ringsales/Journal.h"
#include "tools/ringsales/Posting.h"

#include <QCoreApplication>
#include <QDate>

#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace bank;

constexpr int mostTickets = 100'000;
constexpr qint64 thousand = 1000; ///< of the parts that money is counted in
constexpr qint64 cent = 10;

struct Wish {
    QString folder;
    QStringList registers; ///< empty for all
    int tickets = 0;
    quint64 seed = 0;
    std::optional<KeyPlace> key;
    QString journal;
};

std::optional<KeyPlace> keyOf(const CommandLine& words)
{
    if (!words.isSet(u"key"_s))
        return {};
    const auto key = KeyPlace::of(words.value(u"key"_s));
    if (!key)
        throw std::runtime_error("--key takes a level and a key, such as 2/17");
    return key;
}

Wish readWish()
{
    const CommandLine words({
        {u"registers"_s, u"Their numbers, such as 1,3; all when left out."_s, u"numbers"_s},
        {u"tickets"_s, u"Customers at each register."_s, u"N"_s, u"100"_s},
        {u"seed"_s, u"The same number rings the same day; today's date when left out."_s, u"N"_s,
         QDate::currentDate().toString(u"yyyyMMdd"_s)},
        {u"key"_s, u"Sells only what is on this key: level and key, such as 2/17."_s, u"L/K"_s},
        {u"journal"_s, u"File for a line of each item rung."_s, u"file"_s},
    });
    return {words.folder(),
            words.value(u"registers"_s).split(u',', Qt::SkipEmptyParts),
            words.number(u"tickets"_s, 0, mostTickets),
            words.number(u"seed"_s, quint64{0}, ~quint64{0}),
            keyOf(words),
            words.value(u"journal"_s)};
}

QList<Register> chosenRegisters(const Wish& wish)
{
    auto all = Bank(wish.folder).registers();
    if (all.isEmpty())
        throw std::runtime_error("no registers in " + wish.folder.toStdString());
    if (wish.registers.isEmpty())
        return all;
    QList<Register> chosen;
    for (const auto& word : wish.registers) {
        const int number = word.trimmed().toInt();
        if (number < 1 || number > all.size())
            throw std::runtime_error("no register " + word.toStdString());
        chosen += all.at(number - 1);
    }
    return chosen;
}

/// @return the lines of the journal
QByteArray ring(const Register& on, const Wish& wish)
{
    const auto programme = Programme::read(on, wish.key);
    // A separate seed for each register, so that its day does not depend on the other registers.
    const Dice dice(wish.seed * 100 + static_cast<quint64>(on.number));
    auto totals = Totals::read(openTotals(on));
    QByteArray journal;
    qint64 value = 0;
    for (const auto& ticket : ringDay(programme, wish.tickets, dice)) {
        post(ticket, totals);
        journal += journalLines(on.number, ticket);
        value += ticket.value();
    }
    totals.write(openTotals(on));
    std::printf("Register %d: %d tickets, net sales %s%lld.%02lld\n", on.number, wish.tickets,
                value < 0 ? "-" : "", std::abs(value) / thousand, std::abs(value) % thousand / cent);
    return journal;
}

void run(const Wish& wish)
{
    auto journal = journalHead();
    const auto registers = chosenRegisters(wish);
    for (const auto& each : registers)
        journal += ring(each, wish);
    if (!wish.journal.isEmpty())
        writeFile(wish.journal, journal);
    std::printf("Seed %llu\n", static_cast<unsigned long long>(wish.seed));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return bank::runTool("ringsales", [] { run(readWish()); });
}
