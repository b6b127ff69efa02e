// Copies parts of one customer's programme to others.
#include "base/CustomerSettings.h"
#include "command/CustomerRun.h"
#include "command/StopSignals.h"
#include "command/TerminalBoxes.h"
#include "command/Verbs.h"
#include "customers/CustomerFolders.h"
#include "programme/ProgrammeParts.h"
#include "programme/ReceivingShop.h"

#include <algorithm>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// Lists what would change at all shops, then changes one shop after the other.
class ProgrammeCopyRun
{
public:
    ProgrammeCopyRun(const Workplace& workplace, const ApplicationValues& from, programme::ChosenParts parts,
                     bool isDryRun)
        : m_workplace(workplace), m_from(from), m_database(from.databasePath), m_model(registerModel(from)),
          m_parts(std::move(parts)), m_isDryRun(isDryRun)
    {
        catchStopSignals();
    }

    void add(const QString& name)
    {
        m_run.attempt(name, [&] { compareWith(name); });
    }
    void show() const
    {
        m_workplace.show({u"Shop"_s, u"Table"_s, u"Record"_s, u"Field"_s, u"Old"_s, u"New"_s},
                         [this](const auto& take) {
                             for (const auto& shop : m_shops)
                                 listChanges(*shop, take);
                         });
    }
    void copy()
    {
        for (const auto& shop : m_shops) {
            m_run.attempt(shop->name(), [&] {
                printStep(u"%1: %2"_s.arg(shop->name(), shop->copy(m_from.customerName, untilSignalled)));
            });
        }
    }
    /// @throws CommandError with the code of the first shop that failed.
    void end() const { m_run.end(); }

private:
    void compareWith(const QString& name)
    {
        auto shop = std::make_unique<programme::ReceivingShop>(takeCustomer(m_workplace, name));
        if (isNamed(shop->folder()))
            return;
        if (!m_isDryRun)
            shop->lock();
        shop->compare({m_database, m_model}, m_parts, untilSignalled);
        for (const auto& what : shop->comparison().leftOut())
            printMessage(u"%1: left out: %2"_s.arg(shop->name(), what.inWords()));
        m_shops.push_back(std::move(shop));
    }
    [[nodiscard]] bool isNamed(const QString& folder) const
    {
        return std::ranges::any_of(m_shops, [&](const auto& shop) { return shop->folder() == folder; });
    }

    static void listChanges(const programme::ReceivingShop& shop,
                            const std::function<void(const QVariantList& row)>& take)
    {
        const auto list = [&](const programme::RecordChange& change) {
            forEachLine(change, [&](const programme::ChangeLine& line) {
                take({shop.name(), change.table, change.record, line.what, line.before, line.after});
            });
            return true;
        };
        shop.comparison().forEach(list, untilSignalled);
    }

    const Workplace& m_workplace;
    const ApplicationValues& m_from;
    store::Database m_database;
    const RegisterModel& m_model;
    programme::ChosenParts m_parts;
    bool m_isDryRun;
    std::vector<std::unique_ptr<programme::ReceivingShop>> m_shops;
    CustomerRun m_run{u"nothing was copied."_s};
};

/// @throws CommandError Usage without tables and for a name that is neither a part nor a table.
QStringList tablesToCopy(const Invocation& words)
{
    QStringList parts;
    for (const auto& part : programme::programmeParts())
        parts << part.name;
    const QString hint = u"Name parts or tables after --tables: %1."_s.arg(parts.join(u", "_s));
    QStringList unknown;
    QStringList tables =
        programme::tablesNamed(words.value("tables"_L1).split(u',', Qt::SkipEmptyParts), unknown);
    if (!unknown.isEmpty()) {
        throw CommandError(ExitCode::Usage,
                           u"There is no part or table \"%1\". %2"_s.arg(unknown.first(), hint));
    }
    if (tables.isEmpty())
        throw CommandError(ExitCode::Usage, hint);
    return tables;
}

} // namespace

void copyProgramme(const Workplace& workplace, const Invocation& words)
{
    const QStringList tables = tablesToCopy(words);
    const ApplicationValues from = takeCustomer(workplace, words.operands.front());
    const QStringList targets = words.operands.sliced(1);
    for (const QString& target : targets) {
        if (customers::foldersNamed(workplace.appPath, target).contains(from.customerPath)) {
            throw CommandError(ExitCode::Usage,
                               u"\"%1\" is the customer whose programme is copied."_s.arg(target));
        }
    }
    const bool isDryRun = words.has("dry-run"_L1);
    ProgrammeCopyRun run(workplace, from, {tables, {}}, isDryRun);
    std::ranges::for_each(targets, [&](const QString& target) { run.add(target); });
    run.show();
    if (!isDryRun)
        run.copy();
    run.end();
}

} // namespace norvane::command
