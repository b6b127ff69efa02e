// See UnsentChanges.h.
#include "exchange/UnsentChanges.h"

#include "base/CustomerSettings.h"
#include "exchange/ExchangeLedger.h"
#include "exchange/ExchangePlan.h"
#include "exchange/PluPoints.h"
#include "exchange/SendContent.h"
#include "link/LinkSettings.h"
#include "records/FileProcedures.h"
#include "store/engine/Database.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{
namespace
{

/// The files of one customer against what its registers are known to have.
class Comparison
{
public:
    explicit Comparison(const ApplicationValues& values)
        : m_values(values), m_ledger(ExchangeLedger::read(values)), m_database(values.databasePath),
          m_registers(link::readLinkSettings(values).registers()), m_model(modelOf(values))
    {
    }

    void add(int file, BoxChanges& box)
    {
        if (const LedgerEntry* const entry = m_ledger.entry(file, m_model)) {
            addKnown(file, *entry, box);
        } else {
            count(file, sendLines(m_values, m_database, file), box);
        }
    }

private:
    void addKnown(int file, const LedgerEntry& entry, BoxChanges& box)
    {
        const auto now = sendContent(m_values, m_database, file, entry.generation);
        if (!now)
            return;
        count(file, differences(*now, entry.lines), box);
        box.mayBeAtSome |= entry.mayBeAtSome;
        box.isNotAtAll |= entry.registers < m_registers;
    }
    static void count(int file, qint64 differing, BoxChanges& box)
    {
        if (records::hasExporter(file)) {
            box.records += differing;
        } else {
            box.files += differing > 0 ? 1 : 0;
        }
    }

    const ApplicationValues& m_values;
    ExchangeLedger m_ledger;
    store::Database m_database;
    int m_registers;
    int m_model;
};

QString counted(qint64 count, const QString& one, const QString& several)
{
    return count == 1 ? one : several.arg(count);
}

} // namespace

bool isLeftOut(const DownloadRow& row, const ApplicationValues& values)
{
    if (row.box >= firstSmartCardBox && !registerModelByText(values).hasCards)
        return true;
    return row.file == pluPointsFile && pluPointsWait(values);
}

UnsentTotal totalOf(const AllChanges& changes)
{
    UnsentTotal total;
    for (int box = 0; box < boxCount; ++box) {
        const BoxChanges& each = changes.at(static_cast<std::size_t>(box));
        if (each.isUnsent())
            total.boxes << box;
        total.changes.records += each.records;
        total.changes.files += each.files;
        total.changes.mayBeAtSome |= each.mayBeAtSome;
        total.changes.isNotAtAll |= each.isNotAtAll;
    }
    return total;
}

AllChanges unsentChanges(const ApplicationValues& values, const std::function<bool()>& goOn)
{
    AllChanges changes;
    Comparison comparison(values);
    for (const DownloadRow& row : downloadPlan()) {
        if (!goOn())
            break;
        if (!isLeftOut(row, values))
            comparison.add(row.file, changes.at(static_cast<std::size_t>(row.box)));
    }
    return changes;
}

QString changesInWords(const BoxChanges& changes)
{
    QStringList parts;
    if (changes.records > 0)
        parts << counted(changes.records, u"1 record not sent"_s, u"%1 records not sent"_s);
    if (changes.files > 0)
        parts << counted(changes.files, u"1 file not sent"_s, u"%1 files not sent"_s);
    if (changes.mayBeAtSome)
        parts << u"some registers may have it"_s;
    if (changes.isNotAtAll)
        parts << u"not at all registers"_s;
    return parts.join(u", "_s);
}

} // namespace norvane::exchange
