// Names of former tables against the catalogue; see TablePlan.h.
#include "former/TablePlan.h"

#include "store/catalogue/Catalogue.h"

#include <algorithm>

namespace norvane::former
{
namespace
{

int columnNamed(const FormerTable& table, const QString& name)
{
    const auto found = std::ranges::find_if(table.fields, [&name](const FormerField& field) {
        return field.name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == table.fields.cend() ? -1 : static_cast<int>(found - table.fields.cbegin());
}

void planFields(TablePlan& plan, const FormerTable& former, const store::TableDefinition& known)
{
    plan.fieldOfColumn.assign(static_cast<std::size_t>(former.fields.size()), -1);
    for (const auto& field : known.fields) {
        const int column = columnNamed(former, field.name);
        if (column < 0)
            continue;
        plan.fieldOfColumn.at(static_cast<std::size_t>(column)) = static_cast<int>(plan.table.fields.size());
        plan.columnOfField.push_back(column);
        plan.table.fields.append(field);
    }
}

} // namespace

bool TablePlans::plan(TablePlan& plan, const FormerTable& table)
{
    plan = {};
    const auto* const known = store::catalogueTable(table.name);
    if (known == nullptr || m_planned.contains(known->name))
        return false;
    m_planned.insert(known->name);
    plan.table.name = known->name;
    planFields(plan, table, *known);
    if (plan.table.fields.isEmpty())
        return false;
    if (store::fieldNamed(plan.table, known->searchedField) != nullptr)
        plan.table.searchedField = known->searchedField;
    for (const auto& index : known->indexes) {
        if (store::fieldNamed(plan.table, index.field) != nullptr)
            plan.table.indexes.append(index);
    }
    for (std::size_t column = 0; column < plan.fieldOfColumn.size(); ++column) {
        if (plan.fieldOfColumn[column] < 0)
            plan.unknownFields << table.fields.at(static_cast<qsizetype>(column)).name;
    }
    return true;
}

} // namespace norvane::former
