// See RowTexts.h.
#include "screens/table/RowTexts.h"

#include "store/engine/QuotedName.h"

namespace norvane::screens
{
namespace
{

/// Between two columns, so that nothing is found across them.
constexpr char columnEnd = '\t';

bool isNothing(const store::Value& value)
{
    return value.isNull() || (value.isWhole() && std::get<std::int64_t>(value.data()) == 0);
}

} // namespace

RowTexts::RowTexts(const TableColumns& columns)
{
    for (const TableColumn& column : columns) {
        if (column.kind() == ControlKind::Check)
            continue;
        m_columns.push_back(&column);
        auto& entries = m_entries.emplace_back();
        for (const ListEntry& entry : column.entries)
            entries.emplace(entry.value.toDecimal().toWhole(), entry.shown.toStdString());
    }
}

std::string RowTexts::select(const QString& table) const
{
    std::string sql = "SELECT rowid";
    for (const TableColumn* const column : m_columns)
        sql += ", " + store::quotedName(column->field.name);
    return sql + " FROM " + store::quotedName(table);
}

const std::string& RowTexts::of(store::BoundQuery& query)
{
    m_text.clear();
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        append(column, query.value(static_cast<int>(column) + 1));
    return m_text;
}

void RowTexts::append(std::size_t place, const store::Value& value)
{
    if (isNothing(value))
        return;
    const TableColumn& column = *m_columns[place];
    const auto& entries = m_entries[place];
    if (value.isWhole() && entries.contains(std::get<std::int64_t>(value.data()))) {
        m_text += entries.at(std::get<std::int64_t>(value.data()));
    } else if (column.isNumber()) {
        appendNumber(column, value);
    } else if (column.isKey) {
        m_text += column.text(value).toStdString();
    } else {
        m_text += value.isText() ? value.textView() : value.toUtf8();
    }
    m_text += columnEnd;
}

void RowTexts::appendNumber(const TableColumn& column, const store::Value& value)
{
    const auto number = Decimal::plain(value.isText() ? value.textView() : value.toUtf8());
    if (number != Decimal())
        m_text += number ? number->text(column.decimals()) : column.text(value).toStdString();
}

} // namespace norvane::screens
