// The database of a chain as a whole.
#include "command/PublishRun.h"
#include "command/Verbs.h"

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

constexpr auto orders = std::to_array<ChainOrder>({
    {"check"_L1, 1, checkShops},
});

} // namespace

void manageChain(const Workplace& workplace, const Invocation& words)
{
    const auto* const order = std::ranges::find_if(
        orders, [&](const ChainOrder& each) { return words.operands.front() == each.word; });
    Invocation rest = words;
    rest.operands.removeFirst();
    if (order == orders.end() || rest.operands.size() < order->leastNames)
        throw CommandError(ExitCode::Usage, u"chain check CUSTOMER..."_s);
    order->run(workplace, rest);
}

} // namespace norvane::command
