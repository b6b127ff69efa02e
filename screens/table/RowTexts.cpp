// See RowTexts.h.
#include "screens/table/RowTexts.h"

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
    : m_columns(columns), m_entries(static_cast<std::size_t>(columns.size()))
{
    for (qsizetype column = 0; column < columns.size(); ++column) {
        for (const ListEntry& entry : columns[column].entries) {
            m_entries[static_cast<std::size_t>(column)].emplace(entry.value.toDecimal().toWhole(),
                                                                entry.shown.toStdString());
        }
    }
}

const std::string& RowTexts::of(store::BoundQuery& query)
{
    m_text.clear();
    for (std::size_t column = 0; column < m_entries.size(); ++column)
        append(column, query.value(static_cast<int>(column) + 1));
    return m_text;
}

void RowTexts::append(std::size_t place, const store::Value& value)
{
    const TableColumn& column = m_columns.at(static_cast<qsizetype>(place));
    if (isNothing(value) || column.kind() == ControlKind::Check)
        return;
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
