// makebank: creates a bank of registers with factory contents.
//   makebank <folder> [--registers N] [--model 0|1|2|3] [--plus N] [--fresh]
// An existing bank is kept unchanged unless --fresh is given.
#include "tools/bank/Bank.h"
#include "tools/bank/CommandLine.h"
#include "tools/makebank/Factory.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace bank;

constexpr int mostRegisters = 32;
constexpr int mostPlus = 99999;

struct Wish {
    QString folder;
    int registers = 1;
    int kind = 2;
    int plus = 0;
    bool fresh = false;
};

Wish readWish()
{
    const CommandLine words({
        {u"registers"_s, u"Number of registers."_s, u"N"_s, u"1"_s},
        {u"model"_s, u"Kind of register, 0 to 3."_s, u"index"_s, u"2"_s},
        {u"plus"_s, u"Number of PLUs; 0: the shop's own range."_s, u"N"_s, u"0"_s},
        {u"fresh"_s, u"Create the bank again."_s},
    });
    return {words.folder(), words.number(u"registers"_s, 1, mostRegisters), words.number(u"model"_s, 0, 3),
            words.number(u"plus"_s, 0, mostPlus), words.isSet(u"fresh"_s)};
}

void makeRegister(const Wish& wish, int number)
{
    const auto& kind = kindOf(wish.kind);
    Register made;
    made.number = number;
    made.folder = QDir(wish.folder).filePath(QString::number(number));
    made.model = kind.model;
    made.generation = kind.generation;
    made.cards = kind.cards;
    if (!QDir().mkpath(made.folder))
        throw std::runtime_error("cannot make folder " + made.folder.toStdString());
    fillRegister(made, wish.kind, wish.plus);
    made.save();
}

/// Removes what makebank made and leaves everything else in the folder.
void removeBank(const Wish& wish)
{
    const QDir bank(wish.folder);
    for (int number = 1; number <= mostRegisters; ++number) {
        QDir folder(bank.filePath(QString::number(number)));
        if (folder.exists(u"register.ini"_s))
            folder.removeRecursively();
    }
    QFile::remove(bank.filePath(u"faults.log"_s));
}

void run(const Wish& wish)
{
    if (wish.fresh)
        removeBank(wish);
    if (!Bank(wish.folder).registers().isEmpty()) {
        std::printf("The bank %s is kept unchanged.\n", qPrintable(wish.folder));
        return;
    }
    for (int number = 1; number <= wish.registers; ++number)
        makeRegister(wish, number);
    std::printf("Made %d registers in %s.\n", wish.registers, qPrintable(wish.folder));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    return bank::runTool("makebank", [] { run(readWish()); });
}
