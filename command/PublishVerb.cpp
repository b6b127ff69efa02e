// Publishes shops to the PostgreSQL of their chain.
#include "chain/ChainSchema.h"
#include "chain/Publisher.h"
#include "command/PublishEnds.h"
#include "command/PublishRun.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerLog.h"
#include "platform/FolderLock.h"
#include "platform/RuntimeFailure.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

using chain::ChainFailure;
using chain::Vanished;

struct FailureCode {
    ChainFailure failure;
    ExitCode code;
    bool isOfShop; ///< the other shops can be published all the same
};
constexpr auto failureCodes = std::to_array<FailureCode>({
    {ChainFailure::BadConnection, ExitCode::Usage, false},
    {ChainFailure::Unreachable, ExitCode::NoServer, false},
    {ChainFailure::ConnectionLost, ExitCode::ConnectionLost, false},
    {ChainFailure::NoRights, ExitCode::NoRights, false},
    {ChainFailure::Unfit, ExitCode::UnfitServer, false},
    {ChainFailure::OtherShop, ExitCode::OtherShop, true},
    {ChainFailure::Busy, ExitCode::Busy, true},
    {ChainFailure::BadRows, ExitCode::Unsound, true},
    {ChainFailure::Unwritable, ExitCode::Unwritable, true},
    {ChainFailure::Refused, ExitCode::Failed, false},
});

const FailureCode& rowOf(const chain::ChainError& error)
{
    return *std::ranges::find(failureCodes, error.failure(), &FailureCode::failure);
}

[[noreturn]] void rethrow(const chain::ChainError& error)
{
    throw CommandError(rowOf(error).code, error.text());
}

/// The answers of --vanished.
struct VanishedWord {
    QLatin1StringView word;
    Vanished meaning;
};
constexpr auto vanishedWords = std::to_array<VanishedWord>({
    {{}, Vanished::Ask},
    {"keep"_L1, Vanished::Keep},
    {"remove"_L1, Vanished::Remove},
});

Vanished vanishedOf(const Invocation& words)
{
    const QString given = words.value("vanished"_L1);
    const auto* const word =
        std::ranges::find_if(vanishedWords, [&](const auto& each) { return given == each.word; });
    if (word == vanishedWords.end())
        throw CommandError(ExitCode::Usage, u"Either --vanished keep or --vanished remove."_s);
    return word->meaning;
}

QString shopName(const ApplicationValues& customer)
{
    return QFileInfo(customer.customerPath).fileName();
}

QStringList headings(bool comparesSums)
{
    QStringList all{u"Shop"_s, u"Days"_s, u"Rows"_s, u"Unchanged"_s, u"Vanished"_s};
    if (comparesSums)
        all << u"Differences"_s;
    return all;
}

class PublishRun
{
public:
    PublishRun(const Workplace& workplace, const Invocation& words, bool comparesSums)
        : m_workplace(workplace), m_words(words),
          m_isPreview(words.has("dry-run"_L1)), m_options{vanishedOf(words), words.has("adopt"_L1),
                                                          [](const QString& text) {
                                                              stopIfSignalled();
                                                              printStep(text);
                                                          },
                                                          comparesSums},
          m_listing(headings(comparesSums))
    {
    }

    /// @throws CommandError for the first thing that went wrong; failures of a single shop were already
    /// reported.
    void run();

private:
    [[nodiscard]] std::vector<ApplicationValues> takeCustomers();
    void publishAll(chain::Server& server, const std::vector<ApplicationValues>& customers);
    void publishOrReport(chain::Server& server, const ApplicationValues& customer);
    void publish(chain::Server& server, const ApplicationValues& customer);
    [[nodiscard]] chain::Published publishLogged(chain::Server& server, const chain::ShopFolder& folder);
    void show(const chain::ShopFolder& folder, const chain::Published& published);
    void showDifferences(const QString& name, const QStringList& differences);
    void note(ExitCode code, const QString& text);

    const Workplace& m_workplace;
    const Invocation& m_words;
    bool m_isPreview;
    chain::PublishOptions m_options;
    Listing m_listing;
    ExitCode m_code = ExitCode::Done;
};

void PublishRun::run()
{
    const auto customers = takeCustomers();
    withServer(m_words, [&](chain::Server& server) {
        if (!m_isPreview)
            chain::prepareSchema(server);
        publishAll(server, customers);
    });
    if (m_code != ExitCode::Done)
        throw CommandError(m_code, {});
}

/// A mistyped name stops the whole run, a damaged shop only its own publication.
std::vector<ApplicationValues> PublishRun::takeCustomers()
{
    std::vector<ApplicationValues> customers;
    for (const QString& name : m_words.operands) {
        try {
            const ApplicationValues customer = takeCustomer(m_workplace, name);
            if (std::ranges::find(customers, customer.customerPath, &ApplicationValues::customerPath) ==
                customers.end())
                customers.push_back(customer);
        } catch (const CommandError& error) {
            if (error.code() != ExitCode::Unsound)
                throw;
            note(error.code(), error.text());
        }
    }
    return customers;
}

void PublishRun::publishAll(chain::Server& server, const std::vector<ApplicationValues>& customers)
{
    try {
        for (const auto& customer : customers)
            publishOrReport(server, customer);
    } catch (const chain::ChainError&) {
        m_workplace.show(m_listing);
        throw;
    }
    m_workplace.show(m_listing);
}

void PublishRun::publishOrReport(chain::Server& server, const ApplicationValues& customer)
{
    try {
        publish(server, customer);
    } catch (const chain::ChainError& error) {
        if (!rowOf(error).isOfShop)
            throw;
        // What the server says of rows does not name the shop.
        const bool isNameless = error.failure() == ChainFailure::BadRows;
        note(rowOf(error).code, isNameless ? shopName(customer) + u": "_s + error.text() : error.text());
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::UserInterrupt)
            throw;
        note(codeOf(failure), u"%1: Run-time error '%2': %3"_s.arg(shopName(customer))
                                  .arg(failure.number())
                                  .arg(failure.text()));
    }
}

void PublishRun::publish(chain::Server& server, const ApplicationValues& customer)
{
    // A collection must not store half a day meanwhile. The program's folder is not needed, so that other
    // shops can collect.
    catchStopSignals();
    const auto lock = FolderLock::take(customer.customerPath, m_workplace.boxes);
    if (lock == nullptr) {
        // The box does not name the shop.
        note(ExitCode::Busy, u"\"%1\" was not published."_s.arg(shopName(customer)));
        return;
    }
    const chain::ShopFolder folder{shopName(customer), customer.customerPath, customer.databasePath};
    stopIfSignalled();
    show(folder, m_isPreview ? chain::previewShop(server, folder, m_options) : publishLogged(server, folder));
}

chain::Published PublishRun::publishLogged(chain::Server& server, const chain::ShopFolder& folder)
{
    customers::LoggedWork work(folder.customerPath, u"publication"_s);
    auto published = work.during([&] { return chain::publishShop(server, folder, m_options); });
    work.setResult(u"%1 days, %2 rows"_s.arg(published.days).arg(published.rows));
    return published;
}

void PublishRun::show(const chain::ShopFolder& folder, const chain::Published& published)
{
    QVariantList line{folder.name, published.days, published.rows, published.same, published.vanished.size()};
    if (m_options.comparesSums)
        line << published.differences.size();
    m_listing.add(line);
    showDifferences(folder.name, published.differences);
    for (const QString& day : published.unsound)
        note(ExitCode::Unsound, u"%1: %2 The day is not published."_s.arg(folder.name, day));
    const bool hasVanished = !published.vanished.isEmpty() || !published.vanishedNames.isEmpty();
    if (m_options.vanished == Vanished::Ask && hasVanished)
        note(ExitCode::Vanished, vanishedText(folder.name, published));
}

/// A difference that was mended is not a failure.
void PublishRun::showDifferences(const QString& name, const QStringList& differences)
{
    constexpr qsizetype most = 20;
    for (const QString& difference : differences.first(std::min(most, differences.size())))
        printMessage(name + u": "_s + difference);
    if (differences.size() > most)
        printMessage(u"%1: and %2 more."_s.arg(name).arg(differences.size() - most));
    if (m_isPreview && !differences.isEmpty())
        note(ExitCode::Unsound, {});
}

void PublishRun::note(ExitCode code, const QString& text)
{
    if (!text.isEmpty())
        printMessage(text);
    if (m_code == ExitCode::Done)
        m_code = code;
}

/// "1 day", "3 published days".
QString daysText(qsizetype count, const QString& kind = {})
{
    return u"%1 %2%3"_s.arg(count).arg(kind, count == 1 ? u"day"_s : u"days"_s);
}

} // namespace

ExitCode codeOf(const chain::ChainError& error)
{
    return rowOf(error).code;
}

bool isOfShop(const chain::ChainError& error)
{
    return rowOf(error).isOfShop;
}

QString vanishedText(const QString& name, const chain::Published& published)
{
    QStringList parts;
    if (!published.vanished.isEmpty()) {
        parts << u"%1 (%2 to %3)"_s.arg(daysText(published.vanished.size(), u"published "_s),
                                        published.vanished.first().toString(Qt::ISODate),
                                        published.vanished.last().toString(Qt::ISODate));
    }
    if (!published.vanishedNames.isEmpty())
        parts << u"all %1"_s.arg(published.vanishedNames.join(u", "_s));
    QString text = u"\"%1\" no longer has %2: they remain as published."_s.arg(name, parts.join(u" and "_s));
    if (published.heldBack > 0)
        text += u" So does what differs in %1."_s.arg(daysText(published.heldBack));
    return text + u" Was the shop reset? --vanished keep keeps them, --vanished remove deletes them."_s;
}

void withServer(const Invocation& words, const std::function<void(chain::Server&)>& work)
{
    if (!words.has("to"_L1))
        throw CommandError(ExitCode::Usage, u"Name the PostgreSQL with --to."_s);
    try {
        chain::Server server(words.value("to"_L1));
        work(server);
    } catch (const chain::ChainError& error) {
        rethrow(error);
    }
}

void publishShops(const Workplace& workplace, const Invocation& words, bool comparesSums)
{
    PublishRun(workplace, words, comparesSums).run();
}

void publish(const Workplace& workplace, const Invocation& words)
{
    publishShops(workplace, words, false);
}

} // namespace norvane::command
