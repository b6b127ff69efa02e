// ringsales: rings up a day's sales on registers of a bank.
//   ringsales <folder> [--registers 1,3] [--tickets N] [--seed N] [--key L/K] [--journal file]
// The sales are added to those that the registers already have.
#include "tools/bank/Bank.h"
#include "tools/bank/Files.h"
#include "tools/bank/TextRecords.h"
#include "tools/bank/ToolFailure.h"
#include "tools/ringsales/Journal.h"
#include "tools/ringsales/Posting.h"

#include <QCommandLineParser>
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

template <typename Number>
Number numberOf(const QCommandLineParser& parser, const QString& name, Number most)
{
    bool isNumber = false;
    const auto number = parser.value(name).toULongLong(&isNumber);
    if (!isNumber || number > static_cast<quint64>(most))
        throw std::runtime_error(u"--%1 takes 0 to %2"_s.arg(name).arg(most).toStdString());
    return static_cast<Number>(number);
}

void declareOptions(QCommandLineParser& parser)
{
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"Folder of the bank."_s);
    parser.addOptions({
        {u"registers"_s, u"Their numbers, such as 1,3; all when left out."_s, u"numbers"_s},
        {u"tickets"_s, u"Customers at each register."_s, u"N"_s, u"100"_s},
        {u"seed"_s, u"The same number rings the same day; today's date else."_s, u"N"_s,
         QDate::currentDate().toString(u"yyyyMMdd"_s)},
        {u"key"_s, u"Sells only what is on this key: level and key, such as 2/17."_s, u"L/K"_s},
        {u"journal"_s, u"File for a line of each item rung."_s, u"file"_s},
    });
}

std::optional<KeyPlace> keyOf(const QCommandLineParser& parser)
{
    if (!parser.isSet(u"key"_s))
        return {};
    const auto key = KeyPlace::of(parser.value(u"key"_s));
    if (!key)
        throw std::runtime_error("--key takes a level and a key, such as 2/17");
    return key;
}

Wish readWish(const QCoreApplication& application)
{
    QCommandLineParser parser;
    declareOptions(parser);
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        throw std::runtime_error("one folder is needed, see --help");
    return {parser.positionalArguments().first(),
            parser.value(u"registers"_s).split(u',', Qt::SkipEmptyParts),
            numberOf(parser, u"tickets"_s, mostTickets),
            numberOf(parser, u"seed"_s, ~quint64{0}),
            keyOf(parser),
            parser.value(u"journal"_s)};
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
    try {
        run(readWish(application));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "ringsales: %s\n", failure.what());
        return 1;
    }
    return 0;
}
