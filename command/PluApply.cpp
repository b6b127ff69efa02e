// Stores the changes of an import; see PluImport.h.
#include "command/PluImport.h"
#include "platform/RuntimeFailure.h"
#include "store/AllOrNothing.h"
#include "store/Recordset.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

using store::Value;

class Writer
{
public:
    explicit Writer(store::Database& database) : m_plus(database.openTable(u"PLUDATA"_s))
    {
        m_plus.setIndex(u"plunumber"_s);
        for (const PluColumn& column : pluColumns())
            m_places.push_back(m_plus.fieldOrdinal(column.field));
        findZeros();
    }

    void store(const PluChange& change)
    {
        if (change.isNew) {
            begin(change.number);
        } else {
            edit(change.number);
        }
        for (const PluFieldChange& field : change.fields)
            m_plus.setValue(placeOf(*field.column), Value::text(field.after));
        m_plus.update();
    }

private:
    [[nodiscard]] int placeOf(const PluColumn& column) const
    {
        return m_places[static_cast<std::size_t>(&column - pluColumns().data())];
    }

    /// The screen cannot show a PLU whose number boxes hold nothing.
    void findZeros()
    {
        for (int place = 0; place < m_plus.fieldCount(); ++place) {
            const auto type = m_plus.field(place).type;
            if (type == store::FieldType::Long || type == store::FieldType::YesNo)
                m_zeros.push_back(place);
        }
    }

    void begin(const std::string& number)
    {
        m_plus.addNew();
        for (const int place : m_zeros)
            m_plus.setValue(place, Value::whole(0));
        for (const PluColumn& column : pluColumns())
            m_plus.setValue(placeOf(column), newPluValue(column));
        m_plus.setValue(m_places.front(), Value::text(number));
    }

    void edit(const std::string& number)
    {
        if (!m_plus.seek(store::Seek::Equal, Value::text(number))) {
            throw RuntimeFailure(Failure::RecordDeleted,
                                 u"PLU %1 was deleted meanwhile."_s.arg(QString::fromStdString(number)));
        }
        m_plus.edit();
    }

    store::Recordset m_plus;
    std::vector<int> m_places; ///< of the columns
    std::vector<int> m_zeros;
};

} // namespace

void applyPluChanges(store::Database& database, std::span<const PluChange> changes)
{
    store::allOrNothing(database, [&] {
        Writer writer(database);
        for (const PluChange& change : changes)
            writer.store(change);
    });
}

} // namespace norvane::command
