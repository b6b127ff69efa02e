// Look-up in the catalogue; see FieldName.h.
#include "reports/formula/FieldName.h"

#include "store/catalogue/Catalogue.h"

namespace norvane::reports
{

bool FieldName::isNumber() const
{
    const auto type = definition().type;
    return type == store::FieldType::Long || type == store::FieldType::Double ||
           type == store::FieldType::Counter;
}

bool FieldName::isText() const
{
    const auto type = definition().type;
    return type == store::FieldType::Text || type == store::FieldType::Digits;
}

std::optional<FieldName> findField(QStringView name, const store::TableDefinition* own)
{
    const qsizetype point = name.indexOf(u'.');
    const auto* const table = point < 0 ? own : store::catalogueTable(name.left(point).trimmed().toString());
    if (!table)
        return std::nullopt;
    const auto* const found = store::fieldNamed(*table, name.mid(point + 1).trimmed());
    if (found == nullptr)
        return std::nullopt;
    return FieldName{table, static_cast<int>(found - table->fields.constData())};
}

} // namespace norvane::reports
