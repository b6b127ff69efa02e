// See RegisterComparison.h.
#include "exchange/RegisterComparison.h"

#include "base/CustomerSettings.h"
#include "customers/CustomerLog.h"
#include "customers/DataOwner.h"
#include "customers/RunLock.h"
#include "customers/SafetyCopies.h"
#include "exchange/ExchangeBoxes.h"
#include "exchange/TravelRule.h"
#include "platform/FilePaths.h"
#include "platform/ShownTime.h"
#include "programme/PartCopy.h"
#include "records/RegisterFiles.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/WorkHistory.h"

#include <QFileInfo>

#include <optional>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

using programme::ChangeKind;
using programme::ChosenParts;
using programme::PartComparison;
using programme::RecordChange;

/// Both databases of a comparison for as long as it reads them.
class BothShops
{
public:
    BothShops(const ApplicationValues& customer, const ScratchShop& scratch)
        : m_here(customer.databasePath), m_there(scratch.values().databasePath),
          m_model(registerModelByText(customer)), m_context{scratch.values(), m_noBoxes, {}, {}, {}}
    {
    }

    [[nodiscard]] programme::ShopData here() { return {m_here, m_model}; }
    [[nodiscard]] programme::ShopData there() { return {m_there, m_model}; }
    [[nodiscard]] store::Database& customerDatabase() { return m_here; }
    [[nodiscard]] bool hasTable(const QString& table) const { return m_here.hasTable(table); }

    [[nodiscard]] std::shared_ptr<TravelRule> ruleOf(const records::RegisterFile& file)
    {
        return std::make_shared<TravelRule>(file, m_here, m_there, m_context);
    }
    /// How the differences of a file's table are judged. The rule lives as long as the parts.
    [[nodiscard]] static ChosenParts partsOf(const records::RegisterFile& file,
                                             const std::shared_ptr<TravelRule>& rule,
                                             const QStringList& keys = {})
    {
        return {.tables = {QLatin1String(file.table)},
                .records = keys,
                .isOneShop = true,
                .refusal = [rule](const programme::DifferentField& field) {
                    return rule->reason(field);
                }};
    }

private:
    store::Database m_here;
    store::Database m_there;
    const RegisterModel& m_model;
    SilentBoxes m_noBoxes;
    records::ProcedureContext m_context;
};

ComparedLine lineOf(const RecordChange& change, const QString& key)
{
    ComparedLine line;
    line.table = change.table;
    line.record = change.record;
    line.key = key;
    if (change.kind == ChangeKind::New) {
        line.there = change.text;
        line.remark = u"only at the register"_s;
    } else {
        line.here = change.text;
        line.remark = u"only here"_s;
    }
    return line;
}

QString arrivalInWords(const TravelRule& rule, const QString& field)
{
    if (!rule.hasArrival(field))
        return {};
    const QString arrival = rule.arrival(field);
    return arrival.isEmpty() ? u"a send would empty it"_s : u"a send would make it %1"_s.arg(arrival);
}

/// @return false if @p take does.
bool listChange(const RecordChange& change, const QString& key, const TravelRule& rule,
                const std::function<bool(const ComparedLine& line)>& take)
{
    if (change.kind != ChangeKind::Changed)
        return take(lineOf(change, key));
    for (const programme::FieldChange& field : change.fields) {
        const bool isOneWay = !field.refusal.isEmpty();
        const QString remark = isOneWay ? field.refusal : arrivalInWords(rule, field.field);
        if (!take(
                {change.table, change.record, key, field.field, field.before, field.after, remark, isOneWay}))
            return false;
    }
    return true;
}

/// The kept copy of a file without a table is what a send would send.
std::optional<ComparedLine> keptFileLine(int file, const QString& box, const QString& kept,
                                         const QString& fetched)
{
    ComparedLine line;
    line.record = u"%1, file %2"_s.arg(box).arg(file);
    const QByteArray there = readWholeFile(fetched);
    line.there = u"%1 bytes"_s.arg(there.size());
    if (!pathExists(kept)) {
        line.here = u"no copy"_s;
        line.remark = u"never uploaded"_s;
        return line;
    }
    const QByteArray here = readWholeFile(kept);
    if (here == there)
        return std::nullopt;
    line.here =
        u"%1 bytes of %2"_s.arg(here.size()).arg(shownTime(QFileInfo(existingPath(kept)).lastModified()));
    line.remark = u"other contents"_s;
    return line;
}

/// Of the records of such a table, each shop counts its own.
bool isCounted(const records::RegisterFile& file)
{
    const store::TableDefinition* const table = store::catalogueTable(QLatin1String(file.table));
    const auto* const key = store::fieldNamed(*table, table->indexes.first().field);
    return key->type == store::FieldType::Counter;
}

std::vector<PartComparison> chosenChanges(BothShops& shops, const RegisterRecords& chosen)
{
    std::vector<PartComparison> changes;
    for (const records::RegisterFile& file : records::registerFiles()) {
        const auto keys = chosen.find(QLatin1String(file.table));
        if (keys == chosen.end() || file.upload != records::Upload::ReplacesTable)
            continue;
        changes.emplace_back(
            shops.there(), shops.here(),
            BothShops::partsOf(file, shops.ruleOf(file), isCounted(file) ? QStringList() : *keys));
    }
    return changes;
}

QString amountOf(const RegisterRecords& chosen)
{
    qsizetype count = 0;
    for (const QStringList& keys : chosen)
        count += keys.size();
    return count == 1 ? u"1 record"_s : u"%1 records"_s.arg(count);
}

} // namespace

RegisterComparison::RegisterComparison(ApplicationValues customer, std::unique_ptr<ScratchShop> scratch,
                                       FetchedFiles fetched)
    : m_customer(std::move(customer)), m_scratch(std::move(scratch)), m_fetched(std::move(fetched))
{
}

void RegisterComparison::forEach(const std::function<bool(const ComparedLine& line)>& take,
                                 const KeepGoing& keepGoing) const
{
    for (const UploadRow& row : uploadPlan()) {
        if (!m_fetched.files.contains(row.file))
            continue;
        if (const records::RegisterFile* const file = records::registerFile(row.file)) {
            if (!listTable(*file, take, keepGoing))
                return;
            continue;
        }
        const QString name = u"%1.dat"_s.arg(row.file);
        const auto line = keptFileLine(row.file, boxName(row.box), joinPath(m_customer.customerPath, name),
                                       joinPath(m_scratch->folder(), name));
        if (line && !take(*line))
            return;
    }
}

bool RegisterComparison::listTable(const records::RegisterFile& file,
                                   const std::function<bool(const ComparedLine& line)>& take,
                                   const KeepGoing& keepGoing) const
{
    BothShops shops(m_customer, *m_scratch);
    const QString table = QLatin1String(file.table);
    if (!shops.hasTable(table))
        return true;
    const auto rule = shops.ruleOf(file);
    const ChosenParts parts = BothShops::partsOf(file, rule);
    programme::PartWalk walk(shops.there(), shops.here(), table, parts);
    while (walk.next(keepGoing)) {
        const bool isThere = walk.change().kind != ChangeKind::Gone;
        if (!listChange(walk.change(), isThere ? walk.sourceKey().toText() : QString(), *rule, take))
            return false;
    }
    return true;
}

QStringList RegisterComparison::notes() const
{
    QStringList notes;
    if (!m_fetched.stopped.isEmpty()) {
        notes << u"Stopped at %1."_s.arg(m_fetched.stopped);
        notes << u"Not compared, or only in part: %1."_s.arg(boxNames(m_fetched.boxesLeft));
    }
    if (!m_fetched.notice.isEmpty())
        notes << m_fetched.notice;
    return notes;
}

QString RegisterComparison::useRecords(const RegisterRecords& records, Boxes& boxes,
                                       store::WorkHistory* history) const
{
    const ApplicationValues owner = customers::ownerOfData(m_customer);
    const auto lock = customers::RunLock::take(owner, boxes);
    if (lock == nullptr)
        return u"Nothing was stored: another run is using the customer"_s;
    const QString amount = amountOf(records);
    customers::LoggedWork work(owner.customerPath, u"values of register 1 for %1"_s.arg(amount));
    work.setResult(u"no safety copy"_s);
    if (!customers::copyBeforeJob(owner, boxes, u"before taking values of the register"_s))
        return u"Nothing was stored: there is no safety copy"_s;
    BothShops shops(m_customer, *m_scratch);
    store::RecordedWork recorded(history, shops.customerDatabase(), m_customer.databasePath, records.keys());
    recorded.setName(u"values of the register used for %1"_s.arg(amount));
    work.during([&] { programme::applyParts(chosenChanges(shops, records)); });
    work.setResult(QString(customers::completeResult));
    return u"Used the register's values of %1"_s.arg(amount);
}

} // namespace norvane::exchange
