// The database of a chain as a whole.
#include "chain/ChainPages.h"
#include "chain/ChainRights.h"
#include "command/PublishRun.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "platform/FilePaths.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto publicationOptions =
    std::to_array<QLatin1StringView>({"vanished"_L1, "adopt"_L1, "dry-run"_L1});
constexpr auto pagesOptions = std::to_array<QLatin1StringView>({"out"_L1});

/// What can be done with a chain.
struct ChainOrder {
    QLatin1StringView word;
    qsizetype leastNames;
    qsizetype mostNames;                        ///< -1 for any number
    std::span<const QLatin1StringView> options; ///< beside --to; others, such as --dry-run, are refused
    void (*run)(const Workplace& workplace, const Invocation& words);
};

void checkShops(const Workplace& workplace, const Invocation& words)
{
    publishShops(workplace, words, true);
}

void writePages(const Workplace& workplace, const Invocation& words)
{
    if (words.value("out"_L1).isEmpty() || !words.operands.isEmpty())
        throw CommandError(ExitCode::Usage, u"chain pages --to CONNECTION --out DIR"_s);
    const QString folder = workplace.userFile(words.value("out"_L1));
    if (!QFileInfo(folder).isDir())
        throw CommandError(ExitCode::Unwritable, u"There is no folder %1."_s.arg(folder));
    withServer(words, [&](chain::Server& server) {
        printMessage(u"%1 pages: %2"_s.arg(chain::writeChainPages(server, folder))
                         .arg(joinPath(folder, u"index.html"_s)));
    });
}

void initChain(const Workplace& /*workplace*/, const Invocation& words)
{
    withServer(words, [](chain::Server& server) { chain::prepareRights(server); });
}

/// As psql reads it.
QString asIdentifier(QString user)
{
    return u'"' + user.replace(u'"', u"\"\""_s) + u'"';
}

void addShop(const Workplace& workplace, const Invocation& words)
{
    const QString name = words.operands.front().trimmed();
    if (name.isEmpty())
        throw CommandError(ExitCode::Usage, u"Name the shop as its folder is named."_s);
    withServer(words, [&](chain::Server& server) {
        const auto [shop, user] = chain::addShopUser(server, name);
        Listing listing({u"Shop"_s, u"Name"_s, u"User"_s});
        listing.add({shop, name, user});
        workplace.show(listing);
        printMessage(
            u"Set the password of a new user in psql, as the owner of the chain: \\password %1"_s.arg(
                asIdentifier(user)));
    });
}

constexpr auto orders = std::to_array<ChainOrder>({
    {"check"_L1, 1, -1, publicationOptions, checkShops},
    {"pages"_L1, 0, 0, pagesOptions, writePages},
    {"init"_L1, 0, 0, {}, initChain},
    {"add-shop"_L1, 1, 1, {}, addShop},
});

bool takes(const ChainOrder& order, QLatin1StringView option)
{
    return std::ranges::find(order.options, option) != order.options.end();
}

bool fits(const ChainOrder& order, const Invocation& words)
{
    const auto isForeign = [&](QLatin1StringView option) {
        return words.has(option) && !takes(order, option);
    };
    const qsizetype names = words.operands.size();
    return names >= order.leastNames && (order.mostNames < 0 || names <= order.mostNames) &&
           std::ranges::none_of(publicationOptions, isForeign) &&
           std::ranges::none_of(pagesOptions, isForeign);
}

} // namespace

void manageChain(const Workplace& workplace, const Invocation& words)
{
    const auto* const order = std::ranges::find_if(
        orders, [&](const ChainOrder& each) { return words.operands.front() == each.word; });
    Invocation rest = words;
    rest.operands.removeFirst();
    if (order == orders.end() || !fits(*order, rest)) {
        throw CommandError(ExitCode::Usage,
                           u"chain check CUSTOMER..., chain pages --out DIR, or chain init or chain add-shop "
                           "NAME with --to only"_s);
    }
    order->run(workplace, rest);
}

} // namespace norvane::command
