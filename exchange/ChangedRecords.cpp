// See ChangedRecords.h.
#include "exchange/ChangedRecords.h"

#include "exchange/ExchangeLedger.h"
#include "exchange/ExchangePlan.h"
#include "exchange/SendContent.h"
#include "exchange/UnsentChanges.h"
#include "records/FileProcedures.h"
#include "records/RegisterFiles.h"
#include "store/engine/Database.h"

#include <algorithm>
#include <set>
#include <string>

namespace norvane::exchange
{
namespace
{

bool isMadeFrom(const QString& table, int file)
{
    return records::hasExporter(file) &&
           table.compare(QLatin1StringView(records::registerFile(file)->table), Qt::CaseInsensitive) == 0;
}

/// Of a file that was never sent nothing is known.
LedgerEntry known(const ExchangeLedger& ledger, int file, const ApplicationValues& values)
{
    const LedgerEntry* const entry = ledger.entry(file, modelOf(values));
    return entry != nullptr ? *entry : LedgerEntry();
}

} // namespace

std::vector<store::Value> changedRecords(const ApplicationValues& values, const QString& table,
                                         const QString& keyField)
{
    const ExchangeLedger ledger = ExchangeLedger::read(values);
    store::Database database(values.databasePath);
    std::set<std::string> taken;
    std::vector<store::Value> keys;
    for (const DownloadRow& row : downloadPlan()) {
        if (!isMadeFrom(table, row.file) || isLeftOut(row, values))
            continue;
        const LedgerEntry entry = known(ledger, row.file, values);
        forEachSendLine(values, database, {row.file, entry.generation, keyField},
                        [&](std::uint64_t line, const store::Value& key) {
                            const bool isKnown = std::ranges::binary_search(entry.lines, line);
                            if (!isKnown && taken.insert(key.toUtf8()).second)
                                keys.push_back(key);
                        });
    }
    return keys;
}

} // namespace norvane::exchange
