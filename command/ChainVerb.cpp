// The database of a chain as a whole.
#include "chain/ChainPages.h"
#include "command/PublishRun.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "platform/FilePaths.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// What can be done with a chain.
struct ChainOrder {
    QLatin1StringView word;
    qsizetype leastNames;
    void (*run)(const Workplace& workplace, const Invocation& words);
};

void checkShops(const Workplace& workplace, const Invocation& words)
{
    publishShops(workplace, words, true);
}

void writePages(const Workplace& /*workplace*/, const Invocation& words)
{
    const QString folder = words.value("out"_L1);
    if (folder.isEmpty() || !words.operands.isEmpty())
        throw CommandError(ExitCode::Usage, u"chain pages --to CONNECTION --out DIR"_s);
    if (!QFileInfo(folder).isDir())
        throw CommandError(ExitCode::Unwritable, u"There is no folder %1."_s.arg(folder));
    withServer(words, [&](chain::Server& server) {
        printMessage(u"%1 pages: %2"_s.arg(chain::writeChainPages(server, folder))
                         .arg(joinPath(folder, u"index.html"_s)));
    });
}

constexpr auto orders = std::to_array<ChainOrder>({
    {"check"_L1, 1, checkShops},
    {"pages"_L1, 0, writePages},
});

} // namespace

void manageChain(const Workplace& workplace, const Invocation& words)
{
    const auto* const order = std::ranges::find_if(
        orders, [&](const ChainOrder& each) { return words.operands.front() == each.word; });
    Invocation rest = words;
    rest.operands.removeFirst();
    if (order == orders.end() || rest.operands.size() < order->leastNames)
        throw CommandError(ExitCode::Usage, u"chain check CUSTOMER..., or chain pages --out DIR"_s);
    order->run(workplace, rest);
}

} // namespace norvane::command
