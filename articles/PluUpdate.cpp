// See PluUpdate.h.
#include "articles/PluUpdate.h"

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

std::size_t placeOf(const PluColumn& column)
{
    return static_cast<std::size_t>(&column - pluColumns().data());
}

/// The columns of all PLUs in the order of their numbers. A record of the whole table has fifty fields;
/// reading all of them for each PLU would take as long as storing it.
QString columnsOfAll()
{
    QStringList fields;
    for (const PluColumn& column : pluColumns())
        fields << column.field;
    return u"select %1 from PLUDATA order by PLUNUMBER"_s.arg(fields.join(u", "));
}

/// New PLUs.
class Additions
{
public:
    explicit Additions(store::Database& database) : m_plus(database.openTable(u"PLUDATA"_s))
    {
        for (const PluColumn& column : pluColumns())
            m_places.push_back(m_plus.fieldOrdinal(column.field));
        // The screen cannot show a PLU whose number fields are empty.
        for (int place = 0; place < m_plus.fieldCount(); ++place) {
            const auto type = m_plus.field(place).type;
            if (type == store::FieldType::Long || type == store::FieldType::YesNo)
                m_zeros.push_back(place);
        }
    }

    void store(const PluChange& change)
    {
        m_plus.addNew();
        for (const int place : m_zeros)
            m_plus.setValue(place, Value::whole(0));
        for (const PluColumn& column : pluColumns())
            set(column, newPluValue(column));
        set(pluColumns().front(), Value::text(change.number));
        for (const auto& [column, before, after] : change.fields)
            set(*column, Value::text(after));
        m_plus.update();
    }

private:
    void set(const PluColumn& column, Value&& value)
    {
        m_plus.setValue(m_places[placeOf(column)], std::move(value));
    }

    store::Recordset m_plus;
    std::vector<int> m_places; ///< of the columns
    std::vector<int> m_zeros;
};

/// Finds a known PLU where the comparison saw it.
void storeKnown(store::Recordset& plus, const PluChange& change)
{
    if (!plus.moveTo(change.position) || plus.value(0).textView() != change.number) {
        throw RuntimeFailure(
            Failure::RecordDeleted,
            u"PLUs were added or deleted meanwhile, near %1. Nothing was imported; please start again."_s.arg(
                QString::fromStdString(change.number)));
    }
    plus.edit();
    for (const auto& [column, before, after] : change.fields)
        plus.setValue(static_cast<int>(placeOf(*column)), Value::text(after));
    plus.update();
}

} // namespace

void applyPluChanges(store::Database& database, const PluComparison& comparison, const KeepGoing& keepGoing)
{
    store::allOrNothing(database, [&] {
        auto known = database.openQuery(columnsOfAll());
        Additions additions(database);
        comparison.forEach([&](const PluChange& change) {
            stopUnless(keepGoing);
            if (change.isNew) {
                additions.store(change);
            } else {
                storeKnown(known, change);
            }
        });
    });
}

} // namespace norvane::articles
