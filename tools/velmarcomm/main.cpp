// VELMARCOMM: moves register files between the working directory and the bank of registers and leaves the
// result in status.out.
#include "tools/bank/Files.h"
#include "tools/bank/ToolFailure.h"
#include "tools/velmarcomm/Transfer.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace bank;

struct Outcome {
    int result = Done;
    QString status; ///< as set in the fault file
};

void run(const QStringList& words, Outcome& outcome)
{
    const auto order = parseOrder(words);
    const auto found = Bank::find(QCoreApplication::applicationDirPath());
    if (!found) {
        throw ToolFailure(TimeOut, u"no registers.ini here or beside the tool: no register answers"_s);
    }
    const auto fault = dueFault(found->folder(), {u"VELMARCOMM"_s, order.kindWord(), order.file});
    if (fault) {
        suffer(*fault);
        outcome.status = fault->status;
    }
    outcome.result = carryOut(order, *found, fault);
}

void leaveStatus(const Outcome& outcome)
{
    if (outcome.status == "none"_L1)
        return;
    auto text = QByteArray::number(outcome.result);
    if (outcome.status == "garbage"_L1)
        text = "\x01?!";
    writeFile(pathOf(QDir::currentPath(), u"status.out"_s), text + "\r\n");
}

/// Reports a failure on standard error. @return its code, Done if @p work succeeded
template <typename Work>
int codeOf(Work work)
{
    try {
        work();
    } catch (const ToolFailure& failure) {
        std::fprintf(stderr, "VELMARCOMM: %s\n", failure.what());
        return failure.code();
    }
    return Done;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Outcome outcome;
    const int failure = codeOf([&] { run(QCoreApplication::arguments().mid(1), outcome); });
    if (failure != Done)
        outcome.result = failure;
    const int statusFailure = codeOf([&] { leaveStatus(outcome); });
    return outcome.result == Done && statusFailure == Done ? 0 : 1;
}
