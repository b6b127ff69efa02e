// VELMARCOMM: moves register files between the working directory and the bank of registers and leaves the
// result in status.out.
#include "tools/bank/Files.h"
#include "tools/bank/ToolFailure.h"
#include "tools/velmarcomm/Transfer.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

namespace
{

using namespace bank;

struct Outcome {
    int result = Done;
    QString status; ///< as the fault file wants it
};

void run(const QStringList& words, Outcome& outcome)
{
    const auto order = parseOrder(words);
    const auto found = Bank::find(QCoreApplication::applicationDirPath());
    if (!found) {
        throw ToolFailure(TimeOut,
                          QStringLiteral("no registers.ini here or beside the tool: no register answers"));
    }
    const auto fault =
        dueFault(found->folder(), {QStringLiteral("VELMARCOMM"), order.kindWord(), order.file});
    if (fault) {
        suffer(*fault);
        outcome.status = fault->status;
    }
    outcome.result = carryOut(order, *found, fault);
}

void leaveStatus(const Outcome& outcome)
{
    if (outcome.status == QLatin1String("none"))
        return;
    auto text = QByteArray::number(outcome.result);
    if (outcome.status == QLatin1String("garbage"))
        text = "\x01?!";
    writeFile(pathOf(QDir::currentPath(), QStringLiteral("status.out")), text + "\r\n");
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Outcome outcome;
    try {
        run(QCoreApplication::arguments().mid(1), outcome);
    } catch (const ToolFailure& failure) {
        outcome.result = failure.code();
        std::fprintf(stderr, "VELMARCOMM: %s\n", failure.what());
    }
    try {
        leaveStatus(outcome);
    } catch (const ToolFailure& failure) {
        std::fprintf(stderr, "VELMARCOMM: %s\n", failure.what());
        return 1;
    }
    return outcome.result == Done ? 0 : 1;
}
