// See SheetUpdate.h.
#include "articles/SheetUpdate.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Recordset.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::articles
{
namespace
{

using store::Value;

std::size_t placeOf(const TableSheet& sheet, const SheetColumn& column)
{
    return static_cast<std::size_t>(&column - sheet.columns.data());
}

/// New records.
class Additions
{
public:
    Additions(store::Database& database, const TableSheet& sheet)
        : m_sheet(sheet), m_records(database.openTable(sheet.table))
    {
        for (const SheetColumn& column : sheet.columns)
            m_places.push_back(m_records.fieldOrdinal(column.field));
        // A screen cannot show a record whose number fields are empty.
        for (int place = 0; place < m_records.fieldCount(); ++place) {
            const auto type = m_records.field(place).type;
            if (type == store::FieldType::Long || type == store::FieldType::YesNo)
                m_zeros.push_back(place);
        }
    }

    void store(const SheetChange& change)
    {
        m_records.addNew();
        for (const int place : m_zeros)
            m_records.setValue(place, Value::whole(0));
        for (const SheetColumn& column : m_sheet.columns)
            set(column, newCellValue(column));
        set(m_sheet.columns.front(), Value::text(change.number));
        for (const auto& [column, before, after] : change.fields)
            set(*column, Value::text(after));
        m_records.update();
    }

private:
    void set(const SheetColumn& column, Value&& value)
    {
        m_records.setValue(m_places[placeOf(m_sheet, column)], std::move(value));
    }

    const TableSheet& m_sheet;
    store::Recordset m_records;
    std::vector<int> m_places; ///< of the columns
    std::vector<int> m_zeros;
};

/// Finds a known record where the comparison saw it.
void storeKnown(store::Recordset& records, const TableSheet& sheet, const SheetChange& change)
{
    if (!records.moveTo(change.position) || records.value(0).toUtf8() != change.number) {
        throw RuntimeFailure(
            Failure::RecordDeleted,
            u"%1 records were added or deleted meanwhile, near %2. Nothing was imported; please start again."_s
                .arg(sheet.name, QString::fromStdString(change.number)));
    }
    records.edit();
    for (const auto& [column, before, after] : change.fields)
        records.setValue(static_cast<int>(placeOf(sheet, *column)), Value::text(after));
    records.update();
}

} // namespace

void applySheetChanges(store::Database& database, const SheetComparison& comparison,
                       const KeepGoing& keepGoing)
{
    store::allOrNothing(database, [&] { storeSheetChanges(database, comparison, keepGoing); });
}

void storeSheetChanges(store::Database& database, const SheetComparison& comparison,
                       const KeepGoing& keepGoing)
{
    const TableSheet& sheet = comparison.sheet();
    auto known = database.openQuery(recordsOf(sheet));
    Additions additions(database, sheet);
    comparison.forEach([&](const SheetChange& change) {
        stopUnless(keepGoing);
        if (change.isNew) {
            additions.store(change);
        } else {
            storeKnown(known, sheet, change);
        }
    });
}

} // namespace norvane::articles
