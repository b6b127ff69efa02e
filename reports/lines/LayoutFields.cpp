// See LayoutFields.h.
#include "reports/lines/LayoutFields.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

const Join* joinOf(const ReportLayout& layout, const store::TableDefinition* table)
{
    const auto found = std::ranges::find(layout.joins, table, &Join::table);
    return found == layout.joins.end() ? nullptr : &*found;
}

std::shared_ptr<const NameList> nameListOf(ReportLayout& layout, const FieldName& name, qsizetype column)
{
    const auto same =
        std::ranges::find_if(layout.nameLists, [&name](const auto& list) { return list->name == name; });
    if (same != layout.nameLists.end())
        return *same;
    const auto& indexes = name.table->indexes;
    const auto key = indexes.isEmpty() ? std::nullopt : findField(indexes.first().field, name.table);
    if (!key)
        throw FormulaError(column, u"records of table %1 have no number"_s.arg(name.table->name));
    return layout.nameLists.emplace_back(std::make_shared<NameList>(NameList{name, *key, {}}));
}

} // namespace

std::vector<FieldName> parseFields(QStringView text, const store::TableDefinition* own)
{
    FormulaTokens tokens(text, own);
    std::vector<FieldName> fields;
    do {
        fields.push_back(tokens.takeField());
    } while (tokens.takeSymbol(u","));
    tokens.expectEnd();
    return fields;
}

std::optional<SortKey> parseSortKey(QStringView text, const store::TableDefinition* own)
{
    FormulaTokens tokens(text, own);
    SortKey key{tokens.takeField()};
    if (tokens.takeWord(u"descending")) {
        key.order = Order::Descending;
    } else if (tokens.takeWord(u"by") && tokens.takeWord(u"value")) {
        key.order = Order::ByValue;
    }
    if (tokens.current().kind != TokenKind::End)
        return std::nullopt;
    return key;
}

FieldName rootOf(const ReportLayout& layout, FieldName field)
{
    while (const auto* join = joinOf(layout, field.table))
        field = join->of;
    return field;
}

void checkField(const ReportLayout& layout, const LineSource& source, const FieldName& field,
                qsizetype column)
{
    if (!layout.reads(*field.table))
        throw FormulaError(column, u"the report does not read table %1"_s.arg(field.table->name));
    if (!source.addsUp() || (field.table == source.table && field.isNumber()))
        return;
    if (!source.isKey(rootOf(layout, field))) {
        throw FormulaError(
            column, u"%1 is not the same in all rows that make a line, and no number"_s.arg(field.text()));
    }
}

FieldSlots fieldSlots(ReportLayout& layout, LineSource& source)
{
    return {source.table,
            [&layout, &source](const FieldName& field, qsizetype column) {
                checkField(layout, source, field, column);
                return source.slotOf(field);
            },
            [&layout](const FieldName& name, qsizetype column) {
                return nameListOf(layout, name, column);
            }};
}

} // namespace norvane::reports
