// See TravelRule.h.
#include "exchange/TravelRule.h"

#include "records/FieldTravel.h"
#include "records/TextImport.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::exchange
{

TravelRule::TravelRule(const records::RegisterFile& file, store::Database& here, store::Database& there,
                       const records::ProcedureContext& context)
    : m_file(file), m_here(here), m_there(there), m_context(context),
      m_table(there.table(QLatin1String(file.table)))
{
}

QString TravelRule::reason(const programme::DifferentField& field)
{
    const Known& about = known(field.field);
    if (!about.oneWay.isEmpty())
        return about.oneWay;
    if (!m_echo)
        m_echo.emplace(m_file, m_here, m_there, records::traitsOf(m_context));
    if (m_key != field.key) {
        m_key = field.key;
        m_arrivals.clear();
    }
    const store::Value* const returned = m_echo->value(field.key, field.field);
    if (returned == nullptr)
        return {};
    if (programme::isSameValue(field.table, about.field, *returned, field.from))
        return u"a send would leave the register as it is"_s;
    if (!programme::isSameValue(field.table, about.field, *returned, field.to))
        m_arrivals.insert(field.field, programme::shownField(field.table, about.field, *returned));
    return {};
}

const TravelRule::Known& TravelRule::known(const QString& field)
{
    auto found = m_known.find(field);
    if (found == m_known.end()) {
        const store::FieldDefinition* const definition = store::fieldNamed(m_table, field);
        Q_ASSERT(definition != nullptr);
        found = m_known.insert(field, {records::oneWayReason(m_file.layout(), field), *definition});
    }
    return *found;
}

} // namespace norvane::exchange
