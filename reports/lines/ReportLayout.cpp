// See ReportLayout.h.
#include "reports/lines/ReportLayout.h"

#include <algorithm>

namespace norvane::reports
{

bool LineSource::isKey(const FieldName& field) const
{
    return std::ranges::find(keys, field) != keys.end();
}

bool LineSource::isSum(const FieldName& field) const
{
    return addsUp() && field.table == table && !isKey(field);
}

std::optional<FieldName> LineSource::day() const
{
    return table->searchedField.isEmpty() ? std::nullopt
                                          : findField(table->name + u'.' + table->searchedField);
}

Slot LineSource::slotOf(const FieldName& field)
{
    const auto found = std::ranges::find(fields, field);
    const auto slot = static_cast<Slot>(found - fields.begin());
    if (found == fields.end())
        fields.push_back(field);
    return slot;
}

bool ReportLayout::reads(const store::TableDefinition& table) const
{
    return &table == source.table ||
           std::ranges::any_of(joins, [&table](const Join& join) { return join.table == &table; });
}

bool ReportLayout::hasGroups() const
{
    return group || (classes && !classes->heading.isEmpty());
}

bool ReportLayout::needsWhole() const
{
    return classes || std::ranges::any_of(columns, [](const ColumnLayout& column) {
               return column.number && column.number->needsWhole();
           });
}

} // namespace norvane::reports
